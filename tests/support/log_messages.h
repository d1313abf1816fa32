// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

namespace support {

/// Catches all messages of Qt for as long as it lives, one at a time:
///   "dataexport.FileExport|warning|3 files to export"
class LogMessages {
public:
    LogMessages() : m_before(qInstallMessageHandler(writeDown)) { written() = &m_lines; }
    LogMessages(const LogMessages&) = delete;
    LogMessages& operator=(const LogMessages&) = delete;
    ~LogMessages()
    {
        qInstallMessageHandler(m_before);
        written() = nullptr;
    }

    const QStringList& lines() const { return m_lines; }

private:
    // The handler is a plain function, so what it writes down is found through this.
    static QStringList*& written()
    {
        // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): see above
        static QStringList* lines = nullptr;
        return lines;
    }

    static void writeDown(QtMsgType type, const QMessageLogContext& context, const QString& line)
    {
        const char* const level = type == QtInfoMsg      ? "info"
                                  : type == QtWarningMsg ? "warning"
                                                         : "other";
        written()->append(QStringLiteral("%1|%2|%3").arg(context.category, level, line));
    }

    QStringList m_lines;
    QtMessageHandler m_before;
};

} // namespace support

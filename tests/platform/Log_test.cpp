// SPDX-License-Identifier: MIT
#include "platform/Log.h"

#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <gtest/gtest.h>

namespace {

// The handler is a plain function, so what it writes down is found through this.
QStringList* written = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

void writeDown(QtMsgType type, const QMessageLogContext& context, const QString& line)
{
    const QString level = type == QtInfoMsg ? "info" : type == QtWarningMsg ? "warning" : "other";
    written->append(QString(context.category) + "|" + level + "|" + line);
}

/// Catches all messages of Qt for as long as it lives.
class Messages {
public:
    Messages() : m_before(qInstallMessageHandler(writeDown)) { written = &m_lines; }
    Messages(const Messages&) = delete;
    Messages& operator=(const Messages&) = delete;
    ~Messages()
    {
        qInstallMessageHandler(m_before);
        written = nullptr;
    }

    const QStringList& lines() const { return m_lines; }

private:
    QStringList m_lines;
    QtMessageHandler m_before;
};

} // namespace

TEST(Log, GivesEachTagItsCategory)
{
    const Messages messages;
    Log("CBackupExporter", 1, "a");
    Log("HEIC", 1, "b");
    Log("FileExport", 2, "c");
    EXPECT_EQ(messages.lines(), QStringList({"dataexport.CBackupExporter|info|a",
                                    "dataexport.HEIC|info|b", "dataexport.FileExport|warning|c"}));
}

TEST(Log, FillsTextsAndNumbersInThePrintfWay)
{
    const Messages messages;
    Log("CBackupExporter", 1, "onDownloadChatAttach %s HttpCode %d", "http://h/ä \"x\" %s", 404);
    EXPECT_EQ(messages.lines(),
        QStringList({QString::fromUtf8("dataexport.CBackupExporter|info|onDownloadChatAttach "
                                       "http://h/ä \"x\" %s HttpCode 404")}));
}

TEST(Log, KeepsLineFeedsAndBlanksOfItsFormat)
{
    const Messages messages;
    Log("FileExport", 2, "exportData failed \n src %s \n des %s ", "a", "b");
    EXPECT_EQ(messages.lines(),
        QStringList({"dataexport.FileExport|warning|exportData failed \n src a \n des b "}));
}

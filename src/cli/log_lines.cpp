// SPDX-License-Identifier: MIT
#include "cli/log_lines.h"

#include "platform/literals.h"

#include <QLoggingCategory>
#include <QString>

#include <cstring>

namespace {

Console*& target()
{
    // A message handler has no other way to know.
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): see above
    static Console* console = nullptr;
    return console;
}

// What the library writes at the head of each category of files; it warns of nothing.
bool isAnnouncement(const QMessageLogContext& context, const QString& message)
{
    return qstrcmp(context.category, "dataexport.FileExport") == 0
           && message.endsWith(" files to export"_L1);
}

void writeLogLine(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (isAnnouncement(context, message) && target()->verbosity() != Verbosity::Verbose) {
        return;
    }
    const bool hasCategory =
        context.category != nullptr && std::strcmp(context.category, "default") != 0;
    const QString line =
        hasCategory ? QString::fromUtf8(context.category) + ": "_L1 + message : message;
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        target()->error(line);
    } else {
        target()->note(line);
    }
}

} // namespace

void showLog(Console& console, Verbosity verbosity)
{
    console.setVerbosity(verbosity);
    QLoggingCategory::setFilterRules(verbosity == Verbosity::Verbose
                                         ? QStringLiteral("dataexport.*.info=true")
                                         : QStringLiteral("dataexport.*.info=false"));
    target() = &console;
    qInstallMessageHandler(writeLogLine);
}

void hideLog()
{
    qInstallMessageHandler(nullptr);
    target() = nullptr;
}

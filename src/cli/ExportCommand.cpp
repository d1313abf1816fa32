// SPDX-License-Identifier: MIT
//   Messages  12  out/Messages
//   Exported 12 records in 0.4 s
//   Could not be fetched: 2 attachments
//   Could not be written as JPEG, and are copied as they are:
//     out/Photos/IMG_0001.HEIC
#include "cli/ExportCommand.h"

#include "cli/ExportProgress.h"
#include "cli/Source.h"
#include "cli/Table.h"
#include "cli/exit_status.h"
#include "cli/image_folder.h"
#include "cli/interrupt.h"
#include "cli/log_lines.h"
#include "cli/owner_name.h"
#include "cli/progress_view.h"
#include "cli/target_checks.h"
#include "cli/unfetched.h"
#include "driver/CBackupExporter.h"
#include "platform/OvResourceMgr.h"
#include "platform/literals.h"

#include <QDir>
#include <QFileInfo>

#include <CLI/CLI.hpp>

namespace {

// Data types.
constexpr int kContacts = 2;
constexpr int kNotes = 27;

QString counted(int count, QLatin1String noun)
{
    return QString::number(count) + " "_L1 + noun + (count == 1 ? ""_L1 : "s"_L1);
}

std::vector<ProgressStage> stagesOf(const ExportPlan& plan, const PRBackup& records)
{
    std::vector<ProgressStage> stages;
    for (const int dataType : plan.written) {
        stages.push_back({.name = PRBackup::dataTypeName(dataType),
            .records = records.getPRData(dataType)->recoverCount()});
    }
    return stages;
}

QString categoryFolder(const QString& target, int dataType)
{
    return QDir(target).filePath(PRBackup::dataTypeName(dataType));
}

// The library takes away the folder of a category that failed, or could not make it. The files for
// other address books are written all the same: there the folder of the page tells.
bool wasWritten(const QString& target, int dataType)
{
    const QDir folder(categoryFolder(target, dataType));
    return dataType == kContacts ? folder.exists("HTML"_L1) : folder.exists();
}

// The pictures stand in the summary as their categories do, by the target as it was given.
QStringList unconvertedLines(const QString& target, const QStringList& paths)
{
    if (paths.isEmpty()) {
        return {};
    }
    QStringList lines{"Could not be written as JPEG, and are copied as they are:"_L1};
    const QDir folder(target);
    for (const QString& path : paths) {
        lines.append("  "_L1 + folder.filePath(folder.relativeFilePath(path)));
    }
    return lines;
}

} // namespace

ExportCommand::ExportCommand(CLI::App& program, Console& console)
    : m_arguments(program.add_subcommand("export", "Write readable files of a source")),
      m_console(console)
{
    addOptions();
}

void ExportCommand::addOptions()
{
    CLI::App& command = *m_arguments;
    command.add_option("SOURCE", m_source, "A backup folder, a record set or a database file")
        ->required();
    command.add_option("TARGET", m_target, "The folder to write to: new, or empty")->required();
    command.add_option("--owner", m_owner, "Whose data it is, in titles and file names")
        ->option_text("NAME");
    command.add_option("--only", m_only, "These categories alone: names or numbers, with commas")
        ->option_text("LIST");
    command.add_flag("--heic-to-jpg", m_heicToJpg, "Write HEIC pictures as JPEG too");
    command.add_flag("--tavero", m_tavero, "Write contacts in the form for Tavero");
    command.add_option("--resources", m_resources, "The folder with the images of the pages")
        ->option_text("DIR");
    command.add_flag("--merge", m_merge, "Write to a folder that is not empty");
    m_verbosity.addTo(command);
}

bool ExportCommand::isChosen() const
{
    return m_arguments->parsed();
}

int ExportCommand::run()
{
    showLog(m_console, m_verbosity.verbosity());
    const std::optional<Request> request = readRequest();
    if (!request) {
        return NotStarted;
    }
    formats::Result<Source> source = openSource(request->source);
    if (!source) {
        m_console.error(source.error().text());
        return NotStarted;
    }
    const int status = exportSource(*request, *source);
    const QStringList notices = source->notices();
    for (const QString& notice : notices) {
        m_console.note(notice);
    }
    return status;
}

std::optional<ExportCommand::Request> ExportCommand::readRequest()
{
    Request request{.source = argumentText(m_source), .target = argumentText(m_target)};
    if (m_arguments->count("--only") != 0) {
        const formats::Result<QVector<int>> only = parseCategories(argumentText(m_only));
        if (!only) {
            refuse("--only: "_L1 + only.error().text());
            return std::nullopt;
        }
        request.only = only.value();
    }
    if (m_arguments->count("--resources") != 0) {
        const QFileInfo resources(argumentText(m_resources));
        if (!resources.isDir()) {
            refuse("--resources: "_L1 + resources.filePath() + ": no such folder"_L1);
            return std::nullopt;
        }
        OvResourceMgr::instance()->setProductResourceRoot(
            QDir::cleanPath(resources.absoluteFilePath()));
    }
    if (refuse(targetObjection(request.source, request.target, m_merge))) {
        return std::nullopt;
    }
    return request;
}

// Says what is in the way; false when nothing is.
bool ExportCommand::refuse(const QString& objection)
{
    if (!objection.isEmpty()) {
        m_console.error(objection);
    }
    return !objection.isEmpty();
}

QString ExportCommand::ownerOf(const Source& source) const
{
    if (m_arguments->count("--owner") != 0) {
        return argumentText(m_owner);
    }
    return defaultOwner({source.owner, source.opened.device.name});
}

int ExportCommand::exportSource(const Request& request, Source& source)
{
    const ExportPlan plan = planExport(source.records(), request.only);
    if (refuse(categoryObjection(request.source, request.target, plan.written))) {
        return NotStarted;
    }
    tellLeftOut(plan);
    if (interrupted()) {
        return tellCancelled(request, plan);
    }
    if (!plan.written.isEmpty() && !QDir().mkpath(request.target)) {
        refuse(request.target + ": cannot be made"_L1);
        return NotStarted;
    }

    CBackupExporter exporter; // a new one, so that what it did not convert is of this run
    exporter.setExportContactForTavero(m_tavero);
    const Clock clock = steadyClock();
    const qint64 began = clock();
    bool wasCancelled = false;
    {
        const auto view = progressView(m_console);
        ExportProgress progress(stagesOf(plan, source.records()), view.get(),
            {.isCancelled = interrupted,
                .onCancel = [&exporter] { exporter.cancelDownload(); },
                .clock = clock});
        exporter.exportBackup(&source.records(), QDir(request.target), &progress, plan.written,
            m_heicToJpg, ownerOf(source));
        wasCancelled = progress.wasCancelled();
    }
    if (plan.written.contains(kNotes)) {
        addOtherSpelling(categoryFolder(request.target, kNotes));
    }
    return wasCancelled ? tellCancelled(request, plan)
                        : tellResult(request, plan, source.records(), clock() - began,
                            exporter.unconvertedPictures());
}

void ExportCommand::tellLeftOut(const ExportPlan& plan)
{
    if (!plan.empty.isEmpty()) {
        m_console.note("Without records: "_L1 + categoryNames(plan.empty));
    }
}

int ExportCommand::tellCancelled(const Request& request, const ExportPlan& plan)
{
    const bool wroteAny = std::ranges::any_of(plan.written, [&request](int dataType) {
        return QFileInfo::exists(categoryFolder(request.target, dataType));
    });
    m_console.error(wroteAny ? "cancelled; what was written is kept in "_L1 + request.target
                             : QStringLiteral("cancelled; nothing was written"));
    return Cancelled;
}

int ExportCommand::tellResult(const Request& request, const ExportPlan& plan,
    const PRBackup& records, qint64 elapsedMs, const QStringList& unconverted)
{
    using enum Align;
    Table table({Left, Right, Left});
    QVector<int> failed;
    int total = 0;
    for (const int dataType : plan.written) {
        const QString folder = categoryFolder(request.target, dataType);
        if (!wasWritten(request.target, dataType)) {
            failed.append(dataType);
            continue;
        }
        const int count = records.getPRData(dataType)->recoverCount();
        table.addRow({PRBackup::dataTypeName(dataType), QString::number(count), folder});
        total += count;
    }
    QStringList lines = table.lines();
    lines.append(plan.written.isEmpty()
                     ? QStringLiteral("Nothing to export")
                     : "Exported "_L1 + counted(total, "record"_L1) + " in "_L1
                           + QString::number(static_cast<double>(elapsedMs) / 1000.0, 'f', 1)
                           + " s"_L1);
    const int unfetched = unfetchedAttachments(records, plan.written);
    if (unfetched != 0) {
        lines.append("Could not be fetched: "_L1 + counted(unfetched, "attachment"_L1));
    }
    lines += unconvertedLines(request.target, unconverted);
    if (m_console.verbosity() != Verbosity::Quiet) {
        m_console.print(lines.join(QChar(u'\n')));
    }
    if (!failed.isEmpty()) {
        m_console.error("could not be written: "_L1 + categoryNames(failed));
    }
    return failed.isEmpty() ? AllDone : SomethingFailed;
}

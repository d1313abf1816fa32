// SPDX-License-Identifier: MIT
#include "cli/DumpCommand.h"

#include "cli/ExportProgress.h"
#include "cli/Source.h"
#include "cli/exit_status.h"
#include "cli/interrupt.h"
#include "cli/log_lines.h"
#include "cli/progress_view.h"
#include "cli/target_checks.h"
#include "driver/category_order.h"
#include "platform/literals.h"
#include "recordset/recordset.h"

#include <CLI/CLI.hpp>

namespace {

int countRecords(const PRBackup& records)
{
    int count = 0;
    for (int dataType = 0; dataType < kDataTypeCount; ++dataType) {
        const PRData* data = records.getPRData(dataType);
        count += data != nullptr ? data->count(1) : 0;
    }
    return count;
}

// The owner that the record set shall name: the one of the source, or its device.
QString ownerOf(const Source& source)
{
    return source.owner.isEmpty() ? source.opened.device.name : source.owner;
}

} // namespace

DumpCommand::DumpCommand(CLI::App& program, Console& console)
    : m_arguments(program.add_subcommand("dump", "Write all records as a record set")),
      m_console(console)
{
    m_arguments->add_option("SOURCE", m_source, "A backup folder, a record set or a database file")
        ->required();
    m_arguments->add_option("FILE", m_file, "The new record set (JSON); it must not exist")
        ->required();
    m_verbosity.addTo(*m_arguments);
}

bool DumpCommand::isChosen() const
{
    return m_arguments->parsed();
}

int DumpCommand::run()
{
    showLog(m_console, m_verbosity.verbosity());
    const QString objection = newFileObjection(argumentText(m_source), argumentText(m_file));
    if (!objection.isEmpty()) {
        m_console.error(objection);
        return NotStarted;
    }
    const formats::Result<Source> source = openSource(argumentText(m_source));
    if (!source) {
        m_console.error(source.error().text());
        return NotStarted;
    }
    const int status = dump(source.value());
    const QStringList notices = source.value().notices();
    for (const QString& notice : notices) {
        m_console.note(notice);
    }
    return status;
}

int DumpCommand::dump(const Source& source)
{
    const QString file = argumentText(m_file);
    const int count = countRecords(source.records());
    formats::Done done = std::monostate();
    {
        const auto view = progressView(m_console);
        ExportProgress progress({{.name = QStringLiteral("Records"), .records = count}}, view.get(),
            {.isCancelled = interrupted, .clock = steadyClock()});
        progress.initRange(count * kUnitsPerRecord);
        const auto step = [&](qint64 /*written*/) { return progress.step(kUnitsPerRecord); };
        // An interrupt that came while the source was opened is not to write anything.
        if (progress.step(0.0)) {
            done = recordset::save(source.records(), ownerOf(source), file, step);
        }
    }
    if (interrupted() && !QFile::exists(file)) {
        m_console.error("cancelled; "_L1 + file + " was not written"_L1);
        return Cancelled;
    }
    if (!done) {
        m_console.error(done.error().text());
        return SomethingFailed;
    }
    if (m_console.verbosity() != Verbosity::Quiet) {
        m_console.print("Wrote "_L1 + QString::number(count) + " records to "_L1 + file);
    }
    return AllDone;
}

// SPDX-License-Identifier: MIT
//   Device: Anna's iPhone (iPhone14,5, iOS 17.5.1)
//   Last backup: 2024-05-01T12:30:00Z
//
//   No.  Category  Records  Deleted
//     0  Messages       12        3
//     2  Contacts       40        0
#include "cli/ListCommand.h"

#include "cli/Source.h"
#include "cli/Table.h"
#include "cli/exit_status.h"
#include "cli/interrupt.h"
#include "cli/log_lines.h"
#include "platform/literals.h"

#include <CLI/CLI.hpp>

namespace {

struct Counts {
    int present = 0;
    int deleted = 0;
};

Counts countRecords(const PRData& data)
{
    Counts counts;
    for (int row = 0; row < data.count(1) && !interrupted(); ++row) {
        int& count = data.at(row, true)->flag(Deleted) ? counts.deleted : counts.present;
        ++count;
    }
    return counts;
}

} // namespace

ListCommand::ListCommand(CLI::App& program, Console& console)
    : m_arguments(program.add_subcommand("list", "Show what a source holds")), m_console(console)
{
    m_arguments->add_option("SOURCE", m_source, "A backup folder, a record set or a database file")
        ->required();
}

bool ListCommand::isChosen() const
{
    return m_arguments->parsed();
}

int ListCommand::run()
{
    showLog(m_console, Verbosity::Normal);
    const formats::Result<Source> source = openSource(argumentText(m_source));
    if (!source) {
        m_console.error(source.error().text());
        return NotStarted;
    }
    printHeading(source.value());
    if (!printCategories(source.value())) {
        m_console.note(QStringLiteral("Cancelled."));
        return Cancelled;
    }
    const QStringList notices = source.value().notices();
    for (const QString& notice : notices) {
        m_console.note(notice);
    }
    return AllDone;
}

void ListCommand::printHeading(const Source& source)
{
    const backup::DeviceInfo& device = source.opened.device;
    QStringList details;
    if (!device.productType.isEmpty()) {
        details.append(device.productType);
    }
    if (!device.productVersion.isEmpty()) {
        details.append("iOS "_L1 + device.productVersion);
    }
    QStringList lines;
    if (!device.name.isEmpty() || !details.isEmpty()) {
        const QString name = device.name.isEmpty() ? QStringLiteral("without a name") : device.name;
        lines.append("Device: "_L1 + name
                     + (details.isEmpty() ? QString() : " ("_L1 + details.join(", "_L1) + ")"_L1));
    }
    if (!device.lastBackup.isEmpty()) {
        lines.append("Last backup: "_L1 + device.lastBackup);
    }
    if (!source.owner.isEmpty()) {
        lines.append("Owner: "_L1 + source.owner);
    }
    if (!lines.isEmpty()) {
        m_console.print(lines.join(QChar(u'\n')) + QChar(u'\n'));
    }
}

bool ListCommand::printCategories(const Source& source)
{
    using enum Align;
    Table table({Right, Left, Right, Right});
    table.addRow({QStringLiteral("No."), QStringLiteral("Category"), QStringLiteral("Records"),
        QStringLiteral("Deleted")});
    bool holdsAny = false;
    for (int dataType = 0; dataType < kDataTypeCount && !interrupted(); ++dataType) {
        const PRData* data = source.records().getPRData(dataType);
        if (data == nullptr || data->count(1) == 0) {
            continue;
        }
        const Counts counts = countRecords(*data);
        table.addRow({QString::number(dataType), PRBackup::dataTypeName(dataType),
            QString::number(counts.present), QString::number(counts.deleted)});
        holdsAny = true;
    }
    if (interrupted()) {
        return false;
    }
    m_console.print(holdsAny ? table.lines().join(QChar(u'\n')) : QStringLiteral("No records."));
    return true;
}

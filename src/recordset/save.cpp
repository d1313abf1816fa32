// SPDX-License-Identifier: MIT
#include "platform/literals.h"
#include "recordset/JsonText.h"
#include "recordset/forms.h"
#include "recordset/record.h"
#include "recordset/recordset.h"

#include <QSaveFile>

namespace recordset {

namespace {

using formats::Done;
using formats::Error;

QStringList columnsOf(const PRData& set)
{
    QStringList columns;
    for (int column = 0; column < set.dataColumn(); ++column) {
        columns.append(set.columnName(column));
    }
    return columns;
}

/// Writes one file, record by record. Each operation is false once an error was noted.
class Saver {
public:
    Saver(const QString& path, const std::function<bool(qint64)>& progress)
        : m_path(path), m_file(path), m_progress(progress)
    {
    }

    Done save(const PRBackup& backup, const QString& owner);

private:
    bool writeSets(const PRBackup& backup);
    bool writeSet(const PRData& set);
    bool writeRows(const PRData& set);
    bool writeRow(const PRData& set, int row);
    bool flush();
    bool fail(const QString& where, const QString& what);

    QString m_path;
    QSaveFile m_file;
    const std::function<bool(qint64)>& m_progress;
    JsonText m_text;
    qint64 m_records = 0;
    int m_sets = 0; // before the one that is being written
    std::optional<Error> m_error;
};

Done Saver::save(const PRBackup& backup, const QString& owner)
{
    if (!m_file.open(QIODevice::WriteOnly)) {
        return Error{.where = m_path, .what = m_file.errorString()};
    }
    m_text.openDocument();
    m_text.key("recordSet");
    m_text.number(1);
    if (!owner.isEmpty()) {
        m_text.key("owner");
        m_text.text(owner);
    }
    m_text.key("sets");
    m_text.openItems();
    if (writeSets(backup)) {
        m_text.closeList();
        m_text.closeObject();
        if (flush() && !m_file.commit()) {
            fail(m_path, m_file.errorString());
        }
    }
    // An uncommitted file is thrown away with the object.
    return m_error ? Done(*m_error) : Done(std::monostate());
}

bool Saver::writeSets(const PRBackup& backup)
{
    for (int dataType = 0; dataType < kDataTypeCount; ++dataType) {
        const PRData* set = backup.getPRData(dataType);
        if (set != nullptr && !writeSet(*set)) {
            return false;
        }
        m_sets += set != nullptr ? 1 : 0;
    }
    return true;
}

bool Saver::writeSet(const PRData& set)
{
    m_text.openObject();
    m_text.key("dataType");
    m_text.number(set.dataType());
    const QStringList columns = columnsOf(set);
    if (columns != PRData::nameColumn()) {
        m_text.key("columns");
        forms::TextList::write(columns, m_text);
    }
    if (set.count(1) > 0) {
        m_text.key("records");
        m_text.openItems();
        if (!writeRows(set)) {
            return false;
        }
        m_text.closeList();
    }
    m_text.closeObject();
    return flush();
}

bool Saver::writeRows(const PRData& set)
{
    for (int row = 0; row < set.count(1); ++row) {
        if (!writeRow(set, row)) {
            return false;
        }
    }
    return true;
}

bool Saver::writeRow(const PRData& set, int row)
{
    PRAbstractItem& item = *set.at(row, true);
    PRAbstractItem* parent = item.parentItem();
    if (parent != nullptr && !isParentName(parent->value(0))) {
        return fail(
            QStringLiteral("%1: /sets/%2/records/%3/parent").arg(m_path).arg(m_sets).arg(row),
            QStringLiteral("expected a name other than \".\" and \"..\", found \"%1\"")
                .arg(parent->value(0)));
    }
    writeRecord(item, set.dataType(), m_text);
    if (!flush()) {
        return false;
    }
    return !m_progress || m_progress(++m_records) || fail(m_path, "cancelled"_L1);
}

bool Saver::flush()
{
    const std::string text = m_text.take();
    const auto size = static_cast<qint64>(text.size());
    return m_file.write(text.data(), size) == size || fail(m_path, m_file.errorString());
}

bool Saver::fail(const QString& where, const QString& what)
{
    m_error = Error{.where = where, .what = what};
    return false;
}

} // namespace

Done save(const PRBackup& backup, const QString& owner, const QString& path,
    const std::function<bool(qint64)>& progress)
{
    return Saver(path, progress).save(backup, owner);
}

} // namespace recordset

// SPDX-License-Identifier: MIT
#pragma once

#include "platform/export.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <optional>

/// State bits of a record; each is asked for by its number.
enum RecordFlag : int {
    Deleted = 1,
    InCalendarRange = 2, // the iCalendar writer takes records with this or the next but one
    Locked = 8,
    PartlySelected = 16, // each message's own selection decides
};

/// What every record has. Readers and tests fill it; `PRAbstractItem` answers from it.
struct Record {
    QStringList values;            ///< display texts by column; past the end reads as empty
    int flags = 0;                 ///< `RecordFlag`s, or-ed
    bool selected = true;          ///< the user wants this record
    std::optional<QString> parent; ///< name of the enclosing record; none: no parent item
};

/// One record of a data set. Owned by its `PRData`, which outlives every export.
class DATAEXPORT_EXPORT PRAbstractItem {
public:
    explicit PRAbstractItem(Record record = {});
    PRAbstractItem(const PRAbstractItem&) = delete;
    PRAbstractItem& operator=(const PRAbstractItem&) = delete;
    virtual ~PRAbstractItem();

    /// Display text of a column; column 0 is the record's name.
    virtual QString value(int column) const;
    /// Typed value of a column, for what must not pass through display text.
    virtual QVariant sortValue(int column) const;
    /// `number` is one of `RecordFlag`; any other number is false.
    virtual bool flag(int number) const;
    /// The enclosing record of a file, or null. Its `value(0)` names a sub-directory.
    virtual PRAbstractItem* parentItem();

    bool isSelected() const { return m_record.selected; }
    void setSelected(bool selected) { m_record.selected = selected; }
    const Record& record() const { return m_record; }

private:
    Record m_record;
    std::unique_ptr<PRAbstractItem> m_parent;
};

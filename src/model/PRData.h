// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRAbstractItem.h"

#include <QList>
#include <QStringList>

#include <memory>
#include <vector>

class OvCurlWrapper;

using RecordList = std::vector<std::unique_ptr<PRAbstractItem>>;

/// The records of one data type, in order, addressed by row. Owned by its `PRBackup`.
class DATAEXPORT_EXPORT PRData {
public:
    /// `columns` are the headings of a table category; an empty list makes a table without columns.
    explicit PRData(int dataType, RecordList records = {}, QStringList columns = nameColumn());
    PRData(const PRData&) = delete;
    PRData& operator=(const PRData&) = delete;
    virtual ~PRData();

    int dataType() const { return m_dataType; }

    /// How many records are selected. Zero: the category is not exported.
    int recoverCount() const;
    /// Rows of the selected records, in order.
    QList<int> recoverList() const;
    /// The selected records, in order.
    QList<PRAbstractItem*> recoverFileList() const;

    /// Number of rows. The argument is of no effect.
    int count(int mode) const;
    /// Record at a row, null outside the rows. The flag is of no effect.
    PRAbstractItem* at(int row, bool flag) const;

    bool checked(PRAbstractItem* item) const;
    bool recover(PRAbstractItem* item) const;

    int dataColumn() const;
    QString columnName(int column) const;
    /// Cell text; empty outside the rows.
    QString value(int row, int column) const;

    /// Fetches `url` through `curl` into a private temporary directory that lives until the process
    /// ends, under a name of its own that ends in "." and `suffix` (no point for an empty suffix).
    /// The path is returned in any case; the file exists only if the download worked.
    static QString onDowmloadThumbnail(OvCurlWrapper& curl, const QString& url, QString suffix);

    /// The columns of a set that names none: "Name" alone.
    static QStringList nameColumn();

protected:
    /// The records. A reader whose records are many loads them when they are first asked for.
    virtual const RecordList& records() const { return m_records; }

private:
    int m_dataType;
    RecordList m_records;
    QStringList m_columns;
};

/// The contacts of a backup (data type 2).
class DATAEXPORT_EXPORT PRContactData : public PRData {
public:
    explicit PRContactData(RecordList records = {}, QStringList columns = nameColumn());
    ~PRContactData() override;
};

/// The message conversations of a backup (data type 0).
class DATAEXPORT_EXPORT PRSMSData : public PRData {
public:
    explicit PRSMSData(RecordList records = {}, QStringList columns = nameColumn());
    ~PRSMSData() override;
};

// SPDX-License-Identifier: MIT
#include "model/PRData.h"

#include "platform/OvCurlWrapper.h"
#include "platform/literals.h"

#include <QDir>
#include <QTemporaryDir>
#include <QUuid>

#include <algorithm>

PRData::PRData(int dataType, RecordList records, QStringList columns)
    : m_dataType(dataType), m_records(std::move(records)), m_columns(std::move(columns))
{
}

PRData::~PRData() = default;

int PRData::recoverCount() const
{
    return static_cast<int>(
        std::ranges::count_if(records(), [](const auto& record) { return record->isSelected(); }));
}

QList<int> PRData::recoverList() const
{
    QList<int> rows;
    for (int row = 0; row < count(1); ++row) {
        if (at(row, true)->isSelected()) {
            rows.append(row);
        }
    }
    return rows;
}

QList<PRAbstractItem*> PRData::recoverFileList() const
{
    QList<PRAbstractItem*> selected;
    for (const auto& record : records()) {
        if (record->isSelected()) {
            selected.append(record.get());
        }
    }
    return selected;
}

int PRData::count(int /*mode*/) const
{
    return static_cast<int>(records().size());
}

PRAbstractItem* PRData::at(int row, bool /*flag*/) const
{
    return row >= 0 && row < count(1) ? records()[static_cast<std::size_t>(row)].get() : nullptr;
}

bool PRData::checked(PRAbstractItem* item) const
{
    return item != nullptr && item->isSelected();
}

bool PRData::recover(PRAbstractItem* item) const
{
    return checked(item);
}

int PRData::dataColumn() const
{
    return m_columns.size();
}

QString PRData::columnName(int column) const
{
    return m_columns.value(column);
}

QString PRData::value(int row, int column) const
{
    const PRAbstractItem* record = at(row, true);
    return record != nullptr ? record->value(column) : QString();
}

QString PRData::onDowmloadThumbnail(OvCurlWrapper& curl, const QString& url, QString suffix)
{
    static const QTemporaryDir directory(QDir::tempPath() + "/dataexport-XXXXXX"_L1);
    if (!suffix.isEmpty()) {
        suffix.prepend("."_L1);
    }
    QString path = directory.filePath(QUuid::createUuid().toString(QUuid::WithoutBraces) + suffix);
    curl.download(url, path, true); // the caller asks whether the file exists
    return path;
}

QStringList PRData::nameColumn()
{
    return {QStringLiteral("Name")};
}

PRContactData::PRContactData(RecordList records, QStringList columns)
    : PRData(2, std::move(records), std::move(columns))
{
}

PRContactData::~PRContactData() = default;

PRSMSData::PRSMSData(RecordList records, QStringList columns)
    : PRData(0, std::move(records), std::move(columns))
{
}

PRSMSData::~PRSMSData() = default;

// SPDX-License-Identifier: MIT
#pragma once

#include "backup/container/FileLocator.h"
#include "model/PRData.h"
#include "model/PRFileItem.h"

#include <functional>

namespace backup {

/// Where a file lies on the device.
struct DeviceFile {
    QString domain;
    QString path;
};

/// A file of the device whose place on this computer is looked up when it is asked for.
class DeviceFileItem : public PRFileItem {
public:
    /// `files` outlives the record.
    DeviceFileItem(Record record, FileContent content, DeviceFile place, const FileLocator& files);

    QString filePath() const override;
    void setFilePath(const QString& path) override;

    const DeviceFile& place() const { return m_place; }

protected:
    const FileLocator& files() const { return *m_files; }

private:
    DeviceFile m_place;
    const FileLocator* m_files; // not owned
    bool m_isReplaced = false;  // by a path on this computer
};

/// A set whose records are listed when they are first asked for.
class ListedData final : public PRData {
public:
    using List = std::function<RecordList()>;

    ListedData(int dataType, QStringList columns, List list);

protected:
    const RecordList& records() const override;

private:
    mutable List m_list; // none once it was called
    mutable RecordList m_listed;
};

/// The name of a directory for records that belong to `title`: never empty, "." or "..", and not
/// longer than a directory's name may be.
QString directoryName(const QString& title);

/// The part behind the last slash.
QString lastPart(const QString& path);

/// "0:05:12"
QString durationText(qint64 seconds);

/// The same for a duration as databases have it; empty for none and for what is no duration.
QString recordingLength(double seconds);

/// ISO 8601, in UTC; empty for an invalid date.
QString isoDate(const QDateTime& date);

} // namespace backup

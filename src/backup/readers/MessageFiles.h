// SPDX-License-Identifier: MIT
#pragma once

#include "backup/container/FileLocator.h"
#include "formats/sqlite.h"
#include "model/PRSMSItem.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

namespace backup {

/// One row of `attachment`.
struct AttachmentRow {
    std::int64_t id = 0;
    QString guid;
    QString devicePath; ///< empty: never downloaded to the phone, or purged
    QString name;       ///< for people
    QString mimeType;   ///< derived from the other columns where the store has none
    bool location = false;
};

/// Where a path of the device stands in a backup.
struct DevicePath {
    QString domain;
    QString relativePath;
};

/// "~/Library/SMS/Attachments/ab/11/X/IMG_1.HEIC" and its like. Empty texts for a path that leads
/// nowhere in a backup.
DevicePath backupPath(const QString& devicePath);

/// The files that belong to messages.
class MessageFiles final : public PathResolver {
public:
    MessageFiles(const formats::Database& database, const FileLocator& files);

    /// The attachments that the phone shows with a message, in their order there.
    std::vector<AttachmentRow> of(std::int64_t messageId);

    QString resolve(const QString& devicePath) const override;

    /// The attachment as a part of its message.
    PRSMSPiece piece(const AttachmentRow& attachment) const;

    /// The columns that `read` reads, over `a` for the table.
    QString columns() const;
    static AttachmentRow read(const formats::Statement& query);

private:
    const FileLocator& m_files;
    QStringList m_available;
    formats::Statement m_query;
};

} // namespace backup

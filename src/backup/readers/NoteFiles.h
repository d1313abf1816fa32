// SPDX-License-Identifier: MIT
#pragma once

#include "backup/container/FileLocator.h"
#include "backup/readers/NoteAttachments.h"
#include "platform/literals.h"

#include <QString>
#include <QStringList>

namespace backup {

/// The domain of the store of notes and its files.
inline constexpr QLatin1String kNotesDomain = "AppDomainGroup-group.com.apple.notes"_L1;

/// A file of the device and where it lies on this computer.
struct FoundFile {
    QString path; ///< on this computer; empty: not there
    QString name; ///< as the device names it

    explicit operator bool() const { return !path.isEmpty(); }
};

/// Where the files of attachments lie. `account` names the directory of the note's account; other
/// accounts are looked at as well.
class NoteFiles {
public:
    NoteFiles(const FileLocator& files, QStringList accounts);

    /// The file itself.
    FoundFile media(const NoteAttachment& attachment, const QString& account) const;
    /// The largest picture that the phone has made of it.
    FoundFile preview(const NoteAttachment& attachment, const QString& account) const;
    /// What is shown of a drawing.
    FoundFile drawing(const NoteAttachment& attachment, const QString& account) const;
    /// The pages of a scan.
    FoundFile pages(const NoteAttachment& attachment, const QString& account) const;

private:
    QStringList roots(const QString& account) const;
    FoundFile first(const QString& account, const QStringList& candidates) const;
    FoundFile anyBelow(const QString& account, const QString& directory) const;
    FoundFile located(const QStringList& paths) const;

    const FileLocator& m_files;
    QStringList m_accounts;
};

} // namespace backup

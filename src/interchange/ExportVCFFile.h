// SPDX-License-Identifier: MIT
#pragma once

#include "interchange/write_mode.h"

#include <QDir>
#include <QObject>
#include <QString>

class PRContactItem;
class PRData;

/// The selected contacts as vCard 3.0, as the address books of iCloud and of a Mac read it: one
/// file, and a copy of it. An object serves one export, made on the stack for it; the number of the
/// item groups belongs to the process, so that one export runs at a time.
class ExportVCFFile : public QObject {
    Q_OBJECT

public:
    explicit ExportVCFFile(QObject* parent);

    /// Writes "<dir>/<category>/VCF/<owner>'s <category> for iCloud.vcf" and copies it to the same
    /// name "for Mac", where no such file is yet. 1 for a file that could not be written, else 0,
    /// also where its folder could not be made.
    int exportContacts(
        PRData* data, const QDir& dir, const QString& ownerName, const QString& categoryName);

private:
    /// Also sets the path of the copy. Empty when the folder cannot be made.
    QString makeFilePath(const QDir& dir, const QString& ownerName, const QString& categoryName);
    /// 0, or -1 for a mode that is none and for a file that cannot be opened. In the mode
    /// `FilePerContact` the path is what all file names begin with, such as a directory with its
    /// slash, and all contacts are written, be they selected or not.
    int writeFile(InterchangeWriteMode mode, const QString& path);
    int writeOneFile(const QString& path) const;
    void writeFilePerContact(const QString& pathPrefix) const;
    QString contactToVCard(const PRContactItem& contact) const;

    PRData* m_data = nullptr; // of the present call, not owned
    QString m_macFilePath;
};

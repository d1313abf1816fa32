// SPDX-License-Identifier: MIT
#pragma once

#include "exporters/CIDataExporter.h"

#include <QMap>
#include <QStringList>

#include <memory>

class CIProgressCallback;
class JpegMarkers;
class RawFile;

/// Files as they are, one for each record, in the category's directory or in sub-directories of it.
/// What kind of file a source is its first bytes tell, not its name; a name that lacks the suffix
/// of its kind gets it. An object serves one category.
class CFileExporter final : public CIDataExporter {
public:
    CFileExporter();
    ~CFileExporter() override;

    /// Told the bytes of each chunk that was copied; a false from it ends the copy. Not owned, may
    /// be null.
    void setProgress(CIProgressCallback* progress) { m_progress = progress; }
    /// Whether HEIC pictures come out as JPEG too.
    void setConvertHeic(bool convert) { m_convertHeic = convert; }

    using CIDataExporter::write;
    /// Copies the file at `src` under the name `name`, which becomes the full path of the copy
    /// (also where the copy failed and was taken away; only where none could be begun does it
    /// stay). False when that failed, or for a JPEG that cannot be loaded, whose copy stays. A copy
    /// that the progress ended is taken away and counts as done.
    bool write(const QString& src, QString& name) override;
    bool exportData(const QByteArray& data, const QString& name) override;
    /// The picture that the file at `src` holds, in the format of the suffix of `name`. False
    /// leaves no file.
    bool exportThumbData(const QString& src, const QString& name) override;
    /// Fetches `url` and puts it in the place of the file at `localPath`, if there is one. True,
    /// whatever came of it.
    bool exportHttpData(const QString& url, const QString& localPath) override;
    bool copyDepend(const QString& src, const QString& name) override;
    bool beginFile(const QDir& dir) override;
    bool endFile(bool ok) override;

    /// Goes down into the directory that belongs to `name`, and makes it where it is missing.
    /// False, and nothing has moved, where there is none to go to.
    bool enterDir(const QString& name);
    /// Back up, after an `enterDir` that went down.
    void leaveDir();

    /// Full path of a free name in the present directory, as near to `name` as a file can have it.
    QString uniquePath(const QString& name) const;

    /// The HEIC pictures of which no JPEG could be made: paths of their copies. One that could not
    /// be copied either is not among them, it failed as any other file.
    const QStringList& unconverted() const { return m_unconverted; }

private:
    enum class Copy { Whole, Cancelled, Failed };
    struct Block;

    bool convertHeic(const QString& src, const QString& name) const;
    /// Goes on after the first `size` bytes of the source, which were read.
    Copy copyContents(qint64 size, RawFile& source, RawFile& target, JpegMarkers* markers);
    bool stepThrough(qint64 written, qint64 size) const;

    QDir m_dir;
    QMap<QString, QString> m_dirNames; // by the parent's name: that of its directory
    std::unique_ptr<Block> m_block;    // what was read last
    bool m_convertHeic = false;
    CIProgressCallback* m_progress = nullptr;
    QStringList m_unconverted;
};

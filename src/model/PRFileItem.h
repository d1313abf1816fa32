// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRAbstractItem.h"

#include <QByteArray>

struct FileContent {
    QByteArray data;           ///< the file's bytes where they are held in memory
    QString path;              ///< source file, or an address that begins with "http"
    QString thumbFile;         ///< file that holds a thumbnail; used for addresses
    QString thumbnail;         ///< thumbnail, the last resort
    bool thumbToMedia = false; ///< the source is stored in the form of a thumbnail
    QString detailDate;        ///< ISO 8601, for the copy's modification time
};

/// A file of the backup; `value(0)` is its name.
class DATAEXPORT_EXPORT PRFileItem : public PRAbstractItem {
public:
    explicit PRFileItem(Record record = {}, FileContent content = {});
    ~PRFileItem() override;

    const QByteArray& fileData() const { return m_content.data; }
    /// A reader may look the file up when it is first asked for.
    virtual QString filePath() const { return m_content.path; }
    /// Replaces the path by that of a downloaded file, for good.
    virtual void setFilePath(const QString& path) { m_content.path = path; }
    /// Looked up likewise.
    virtual QString thumbFilePath() const { return m_content.thumbFile; }
    virtual QString thumbnail() const { return m_content.thumbnail; }
    // NOLINTNEXTLINE(readability-make-member-function-const): the signature is agreed
    bool isThumbToMedia() { return m_content.thumbToMedia; }
    QString getDetailInfoDateTime() const { return m_content.detailDate; }
    /// All but the paths, which only `filePath`, `thumbFilePath` and `thumbnail` know.
    const FileContent& contents() const { return m_content; }

private:
    FileContent m_content;
};

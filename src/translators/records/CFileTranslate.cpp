// SPDX-License-Identifier: MIT
// The ways to have the file of a record, in the order in which they are tried:
//   1  its bytes, where they are in memory
//   2  the picture in its source, where that is a thumbnail in the phone's own form
//   3  the file of its thumbnail, where its source is an address
//   4  its source
//   5  its last thumbnail, whatever else went wrong
#include "translators/records/CFileTranslate.h"

#include "exporters/CFileExporter.h"
#include "exporters/FileProgress.h"
#include "model/PRBackup.h"
#include "model/PRFileItem.h"
#include "platform/CCommonUtils.h"
#include "platform/Log.h"
#include "platform/literals.h"

#include <QFile>
#include <QFileInfo>

namespace {

constexpr const char* kTag = "FileExport";
constexpr int kLevel = 2;
constexpr int kUnitsPerRecord = 100;

struct Manner {
    bool protectMedia = false;
    bool stampDate = false; // copies get the dates of their records
};

qint64 sizeOf(const PRFileItem& file)
{
    return file.fileData().isEmpty() ? QFileInfo(file.filePath()).size() : file.fileData().size();
}

// The bytes of all records; those that are no files are counted and told.
qint64 totalSize(const QList<PRAbstractItem*>& records)
{
    qint64 total = 0;
    int others = 0;
    for (PRAbstractItem* record : records) {
        const auto* file = dynamic_cast<PRFileItem*>(record);
        if (file != nullptr) {
            total += sizeOf(*file);
        } else {
            ++others;
        }
    }
    if (others != 0) {
        Log(kTag, kLevel, "%d AbItem not FileItem", others);
    }
    return total;
}

bool writeBytes(CFileExporter& exporter, const PRFileItem& file, const QString& name)
{
    if (file.fileData().isEmpty()) {
        return false;
    }
    const bool written = exporter.exportData(file.fileData(), name);
    if (!written) {
        Log(kTag, kLevel, "exportDepends failed %s", name.toUtf8().constData());
    }
    return written;
}

bool writeThumbnailForm(CFileExporter& exporter, const QString& path, const QString& name)
{
    const bool written = exporter.exportThumbData(path, name);
    if (!written) {
        Log(kTag, kLevel, "isThumbToMedia exportThumbData failed %s", name.toUtf8().constData());
    }
    return written;
}

// Where a copy was begun under it, `name` is the path of the copy afterwards.
bool writeThumbnailOfAddress(
    CFileExporter& exporter, const PRFileItem& file, const QString& path, QString& name)
{
    if (name.endsWith(".jpg"_L1)) {
        if (exporter.write(file.thumbFilePath(), name)) {
            return true;
        }
        Log(kTag, kLevel, "http exportData 1 thumbFilePath failed %s", name.toUtf8().constData());
    } else {
        QString picture = name + ".jpg"_L1;
        if (exporter.write(file.thumbFilePath(), picture)) {
            return true;
        }
        Log(kTag, kLevel, "http exportData 2 thumbFilePath failed %s.jpg",
            name.toUtf8().constData());
    }
    Log(kTag, kLevel, "http export failed %s", path.toUtf8().constData());
    return false;
}

void copyLastThumbnail(const CFileExporter& exporter, const PRFileItem& file)
{
    const QString thumbnail = file.thumbnail();
    const QString target = exporter.uniquePath(file.value(0));
    // Qt would warn of an empty path.
    if (thumbnail.isEmpty() || !QFile::copy(thumbnail, target)) {
        Log(kTag, kLevel, "thumbnail copy failed \n src %s \n des %s ",
            thumbnail.toUtf8().constData(), target.toUtf8().constData());
    }
}

void writeSource(CFileExporter& exporter, PRFileItem& file, const QString& path, bool stampDate)
{
    QString name = file.value(0);
    const bool hasPicture = file.isThumbToMedia() && writeThumbnailForm(exporter, path, name);
    if (path.startsWith("http"_L1)) {
        if (writeThumbnailOfAddress(exporter, file, path, name)) {
            return;
        }
    } else if (hasPicture) {
        return;
    }
    if (exporter.write(path, name)) { // a source that is not there cannot be opened
        if (stampDate) {
            CCommonUtils::onModifyDateTime(name, file.getDetailInfoDateTime());
        }
        return;
    }
    Log(kTag, kLevel, "exportData failed \n src %s \n des %s ", path.toUtf8().constData(),
        name.toUtf8().constData());
    copyLastThumbnail(exporter, file);
}

void writeRecord(CFileExporter& exporter, PRFileItem& file, Manner manner)
{
    const QString path = file.filePath();
    PRAbstractItem* parent = file.parentItem();
    const bool entered = parent != nullptr && exporter.enterDir(parent->value(0));
    // Bytes from memory touch no source.
    if (!writeBytes(exporter, file, file.value(0))) {
        if (manner.protectMedia) {
            CCommonUtils::protectMediaFile(path, false);
        }
        writeSource(exporter, file, path, manner.stampDate);
        if (manner.protectMedia) {
            CCommonUtils::protectMediaFile(path, true);
        }
    }
    if (entered) {
        exporter.leaveDir();
    }
}

} // namespace

bool CFileTranslate::translate(
    CIDataExporter* exporter, CIProgressCallback* progress, bool protectMedia, bool convertHeic)
{
    auto* fileExporter = dynamic_cast<CFileExporter*>(exporter);
    if (fileExporter == nullptr) {
        Log(kTag, kLevel, "CFileExporter not exist");
        return false;
    }
    fileExporter->setConvertHeic(convertHeic);
    const QList<PRAbstractItem*> records = m_data->recoverFileList();
    Log(kTag, kLevel, "%d files to export", records.size());
    const Manner manner{
        .protectMedia = protectMedia, .stampDate = PRBackup::fromPhotoFile(m_data->dataType())};
    if (records.isEmpty()) {
        return true;
    }
    FileProgress fileProgress(progress, kUnitsPerRecord * records.size());
    fileProgress.setTotal(totalSize(records));
    fileExporter->setProgress(&fileProgress);
    for (PRAbstractItem* record : records) {
        if (!fileProgress.step(0.0)) {
            Log(kTag, kLevel, "Export user canceled");
            break;
        }
        if (auto* file = dynamic_cast<PRFileItem*>(record)) {
            writeRecord(*fileExporter, *file, manner);
        }
    }
    fileExporter->setProgress(nullptr); // which ends here
    return true;
}

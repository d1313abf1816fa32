// SPDX-License-Identifier: MIT
// Exports the files of a folder as photos, as a host of the library does.
//
//   copy_files SOURCE TARGET             each under its own name
//   copy_files SOURCE TARGET --one-name  all under the same
//   copy_files --photo FILE              makes a JPEG of 12 megapixels to copy
#include "driver/CBackupExporter.h"
#include "model/PRBackup.h"
#include "model/PRFileItem.h"

#include <QDir>
#include <QImage>

#include <cstdio>
#include <filesystem>
#include <random>
#include <string_view>

namespace {

constexpr int kPhotos = 21;

bool makePhoto(const QString& path)
{
    std::mt19937 noise(1); // NOLINT(cert-msc51-cpp): the same photo each time
    QImage photo(4032, 3024, QImage::Format_RGB32);
    for (int y = 0; y < photo.height(); ++y) {
        for (int x = 0; x < photo.width(); ++x) {
            const auto grain = static_cast<int>(noise() % 16);
            photo.setPixel(x, y, qRgb(x / 16 % 240 + grain, y / 16 % 240 + grain, 100 + grain));
        }
    }
    return photo.save(path, "JPG", 90);
}

PRBackup backupOf(const QDir& source, bool oneName)
{
    RecordList records;
    // Nothing is asked about each of them: a reader, too, has their names from elsewhere.
    for (const auto& entry : std::filesystem::directory_iterator(source.path().toStdString())) {
        const QString name = QString::fromStdString(entry.path().filename().string());
        Record record;
        record.values = QStringList(oneName ? QStringLiteral("photo") : name);
        records.push_back(std::make_unique<PRFileItem>(
            std::move(record), FileContent{.path = source.filePath(name)}));
    }
    PRBackup backup;
    backup.add(std::make_unique<PRData>(kPhotos, std::move(records)));
    return backup;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 3 && std::string_view(argv[1]) == "--photo") {
        return makePhoto(QString::fromLocal8Bit(argv[2])) ? 0 : 1;
    }
    if (argc < 3) {
        std::fputs("usage: copy_files SOURCE TARGET [--one-name]\n", stderr);
        return 2;
    }
    PRBackup backup = backupOf(QDir(QString::fromLocal8Bit(argv[1])), argc > 3);
    CBackupExporter().exportBackup(&backup, QDir(QString::fromLocal8Bit(argv[2])), nullptr,
        QVector<int>{kPhotos}, false, QStringLiteral("Anna"));
    return 0;
}

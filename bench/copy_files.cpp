// SPDX-License-Identifier: MIT
// Exports the files of a folder as photos, as a host of the library does.
//
//   copy_files SOURCE TARGET                each under its own name
//   copy_files --one-name SOURCE TARGET     all under the same
//   copy_files --photo WIDTH HEIGHT TARGET  makes a JPEG of that size to copy
#include "driver/CBackupExporter.h"
#include "model/PRBackup.h"
#include "model/PRFileItem.h"

#include <QDir>
#include <QImage>

#include <cstdio>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr int kPhotos = 21;

bool makePhoto(int width, int height, const QString& path)
{
    std::mt19937 noise(1); // NOLINT(cert-msc51-cpp): the same photo each time
    QImage photo(width, height, QImage::Format_RGB32);
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
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments.size() == 4 && arguments[0] == "--photo") {
        const QString path = QString::fromStdString(arguments[3]);
        return makePhoto(std::stoi(arguments[1]), std::stoi(arguments[2]), path) ? 0 : 1;
    }
    const bool oneName = arguments.size() == 3 && arguments[0] == "--one-name";
    if (arguments.size() != 2 && !oneName) {
        std::fputs("usage: copy_files [--one-name] SOURCE TARGET\n", stderr);
        return 2;
    }
    const QDir source(QString::fromStdString(arguments[arguments.size() - 2]));
    PRBackup backup = backupOf(source, oneName);
    CBackupExporter().exportBackup(&backup, QDir(QString::fromStdString(arguments.back())), nullptr,
        QVector<int>{kPhotos}, false, QStringLiteral("Anna"));
    return 0;
}

// SPDX-License-Identifier: MIT
// Below Media/, where <original> is "DCIM/100APPLE/IMG_0001.HEIC":
//   DCIM/100APPLE/IMG_0001.HEIC, .MOV (the film of a Live Photo), .AAE (recipe of an edit)
//   PhotoData/CPLAssets/group123/<uuid>.HEIC              loaded from iCloud
//   PhotoData/PhotoCloudSharingData/.../IMG_0001.JPG      shared albums
//   PhotoData/Sync/...                                    put on the phone by a computer
//   PhotoData/Mutations/DCIM/100APPLE/IMG_0001/Adjustments/FullSizeRender.jpg
//   PhotoData/Thumbnails/V2/<original>/5005.JPG
#include "backup/readers/PhotoFiles.h"

#include "backup/readers/media_kind.h"
#include "platform/literals.h"

#include <algorithm>
#include <array>

namespace backup {

namespace {

constexpr std::array kDomains{"CameraRollDomain"_L1, "MediaDomain"_L1};
constexpr std::array kOriginals{"Media/DCIM"_L1, "Media/PhotoData/CPLAssets"_L1,
    "Media/PhotoData/PhotoCloudSharingData"_L1, "Media/PhotoData/Sync"_L1};
constexpr QLatin1String kMutations = "Media/PhotoData/Mutations"_L1;
constexpr QLatin1String kAdjustments = "/Adjustments/"_L1;
constexpr QLatin1String kThumbnails = "Media/PhotoData/Thumbnails/V2/"_L1;
constexpr QLatin1String kMedia = "Media/"_L1;

QString withoutEnding(const QString& fileName)
{
    const int point = fileName.lastIndexOf(QChar(u'.'));
    return point < 0 ? fileName : fileName.left(point);
}

// Files of a directory, in the first domain that has some.
std::vector<DeviceFile> filesOf(const FileLocator& files, QLatin1String directory)
{
    std::vector<DeviceFile> found;
    for (const QLatin1String domain : kDomains) {
        const QString name = domain; // one text for all
        const QStringList paths = files.filesBelow(name, directory);
        found.reserve(static_cast<std::size_t>(paths.size()));
        for (const QString& path : paths) {
            found.push_back({.domain = name, .path = path});
        }
        if (!found.empty()) {
            break;
        }
    }
    return found;
}

} // namespace

PhotoFiles::PhotoFiles(const FileLocator& files) : m_files(files)
{
    for (const QLatin1String directory : kOriginals) {
        for (const DeviceFile& file : filesOf(files, directory)) {
            m_originals.insert(file.path, {.domain = file.domain});
        }
    }
    for (const DeviceFile& file : filesOf(files, kMutations)) {
        const int adjustments = file.path.lastIndexOf(kAdjustments);
        if (adjustments > 0 && lastPart(file.path).startsWith("FullSizeRender."_L1)) {
            const int begin = kMutations.size() + 1;
            m_edited[file.path.mid(begin, adjustments - begin)].push_back(file);
        }
    }
}

DeviceFile PhotoFiles::take(const QString& path)
{
    const auto found = m_originals.find(path);
    if (found != m_originals.end()) {
        found->isTaken = true;
        return {.domain = found->domain, .path = found.key()};
    }
    // A place that is not listed.
    const auto* const domain = std::ranges::find_if(
        kDomains, [&](QLatin1String each) { return !m_files.locate(each, path).isEmpty(); });
    return domain != kDomains.end() ? DeviceFile{.domain = *domain, .path = path} : DeviceFile();
}

DeviceFile PhotoFiles::takeUntaken(const QString& path)
{
    const auto found = m_originals.constFind(path);
    return found != m_originals.cend() && !found->isTaken ? take(path) : DeviceFile();
}

QStringList PhotoFiles::leftOver() const
{
    QStringList paths;
    for (auto original = m_originals.cbegin(); original != m_originals.cend(); ++original) {
        if (!original->isTaken) {
            paths.append(original.key());
        }
    }
    paths.sort();
    return paths;
}

std::vector<DeviceFile> PhotoFiles::editedVersions(
    const QString& directory, const QString& fileName) const
{
    return m_edited.value(directory + QChar(u'/') + withoutEnding(fileName));
}

QString PhotoFiles::previewOf(const FileLocator& files, const QString& path)
{
    if (!path.startsWith(kMedia)) {
        return {};
    }
    const QString directory = kThumbnails + path.mid(kMedia.size());
    const QStringList previews = files.filesBelow(kDomains.front(), directory);
    return previews.isEmpty() ? QString() : previews.last();
}

} // namespace backup

// SPDX-License-Identifier: MIT
//   Message/Media/<address>/a/b/<uuid>.jpg   rows name it "Media/<address>/...", or "/Media/..."
//   Message/Media/<address>/a/b/<uuid>.thumb a JPEG, whatever it shows
//   Media/Profile/<number>-<seconds>.jpg     and .thumb
//   Library/Media/...                        oldest releases
//   stickers/..., current_wallpaper.jpg      of no message
#include "backup/readers/WhatsAppFiles.h"

#include "backup/readers/media_kind.h"
#include "platform/literals.h"

#include <algorithm>
#include <array>
#include <utility>

namespace backup {

namespace {

constexpr std::array kDirectories{"Message"_L1, "Media"_L1, "Library/Media"_L1};
constexpr std::array kRoots{"Message/"_L1, ""_L1, "Library/"_L1};

// A name is stored in one Unicode form and may be written in the other.
uint hashOf(const QString& path)
{
    return qHash(path.normalized(QString::NormalizationForm_C));
}

// Sent files of any kind; besides stickers, wallpapers and the like, but no data of the program.
bool isOfPeople(const QString& path)
{
    if (path.contains("Media/"_L1)) {
        return true;
    }
    const MediaKind kind = mediaKindOf(path);
    return !path.startsWith("Library/"_L1) && kind != MediaKind::Other
           && kind != MediaKind::Document;
}

} // namespace

bool isThumbnail(const QString& path)
{
    return path.endsWith(".thumb"_L1) || path.endsWith(".mmsthumb"_L1);
}

WhatsAppFiles::WhatsAppFiles(const FileLocator& files, QString domain)
    : m_files(files), m_domain(std::move(domain))
{
}

QStringList WhatsAppFiles::paths() const
{
    QStringList found = m_files.filesBelow(m_domain, QString());
    if (!found.isEmpty()) {
        return found;
    }
    // Beside a loose store, where any file could lie.
    for (const QLatin1String directory : kDirectories) {
        found += m_files.filesBelow(m_domain, directory);
    }
    return found;
}

bool WhatsAppFiles::has(const QString& path) const
{
    if (!m_isListed) {
        m_isListed = true;
        const QStringList listed = paths();
        m_hashes.reserve(static_cast<std::size_t>(listed.size()));
        for (const QString& each : listed) {
            m_hashes.push_back(hashOf(each));
        }
        std::ranges::sort(m_hashes);
    }
    return !m_hashes.empty() && std::ranges::binary_search(m_hashes, hashOf(path));
}

DeviceFile WhatsAppFiles::find(const QString& named) const
{
    const int begin = named.startsWith(QChar(u'/')) ? 1 : 0;
    if (named.size() == begin) {
        return {};
    }
    const auto* const root = std::ranges::find_if(
        kRoots, [&](QLatin1String each) { return has(each + named.mid(begin)); });
    return root != kRoots.end() ? DeviceFile{.domain = m_domain, .path = *root + named.mid(begin)}
                                : DeviceFile();
}

QString WhatsAppFiles::locate(const QString& named) const
{
    const DeviceFile file = find(named);
    return file.path.isEmpty() ? QString() : m_files.locate(file.domain, file.path);
}

std::vector<DeviceFile> WhatsAppFiles::all() const
{
    std::vector<DeviceFile> found;
    for (const QString& path : paths()) {
        if (isOfPeople(path)) {
            found.push_back({.domain = m_domain, .path = path});
        }
    }
    return found;
}

} // namespace backup

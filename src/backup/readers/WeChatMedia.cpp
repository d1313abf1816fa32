// SPDX-License-Identifier: MIT
//   Documents/<account>/Img/<chat>/17.pic        .pic_hd   .pic_thum
//   Documents/<account>/Audio/<chat>/18.aud
//   Documents/<account>/Video/<chat>/19.mp4      _raw.mp4  .video_thum
//   Documents/<account>/OpenData/<chat>/20.pdf   .pic_thum
// Accounts and chats are hashes of user names, the numbers MesLocalID.
#include "backup/readers/WeChatMedia.h"

#include "backup/readers/DeviceFileItem.h"
#include "platform/literals.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace backup {

namespace {

// clang-format off
struct FolderRow {
    QLatin1String name;
    WeChatFolder folder = WeChatFolder::None;
};
constexpr std::array kFolders{
    FolderRow{"Img"_L1,      WeChatFolder::Pictures},
    FolderRow{"Audio"_L1,    WeChatFolder::Voice},
    FolderRow{"Video"_L1,    WeChatFolder::Videos},
    FolderRow{"OpenData"_L1, WeChatFolder::Attachments},
};

// The best first: as it was taken, as it was sent, whatever else there is, a small picture of it.
constexpr std::array kBetter{"_raw.mp4"_L1, ".pic_hd"_L1, ".mp4"_L1, ".pic"_L1};
constexpr std::array kThumbnails{"_thum"_L1};
// clang-format on

bool isThumbnail(const QString& path)
{
    return std::ranges::any_of(
        kThumbnails, [&](QLatin1String ending) { return path.endsWith(ending); });
}

std::size_t rank(const QString& path)
{
    const auto* const found =
        std::ranges::find_if(kBetter, [&](QLatin1String ending) { return path.endsWith(ending); });
    return isThumbnail(path) ? kBetter.size() + 1
                             : static_cast<std::size_t>(found - kBetter.begin());
}

// "17" of "17.pic" and of "17_raw.mp4"; none of other names.
std::optional<qint64> messageOf(const QString& name)
{
    int digits = 0;
    while (
        digits < name.size() && name.at(digits) >= QChar(u'0') && name.at(digits) <= QChar(u'9')) {
        ++digits;
    }
    bool isNumber = false;
    const qint64 number = name.left(digits).toLongLong(&isNumber);
    const bool isName =
        digits < name.size() && (name.at(digits) == u'.' || name.at(digits) == u'_');
    return isNumber && isName ? std::optional(number) : std::nullopt;
}

} // namespace

void WeChatChatFiles::add(WeChatFolder folder, const QString& path)
{
    if (const auto message = messageOf(lastPart(path))) {
        m_paths[{folder, *message}].append(path);
    }
}

WeChatFile WeChatChatFiles::find(WeChatFolder folder, qint64 message) const
{
    const auto found = m_paths.constFind({folder, message});
    if (found == m_paths.constEnd()) {
        return {};
    }
    const QString best = *std::ranges::min_element(*found, {}, rank);
    return {.path = best, .isThumbnail = isThumbnail(best)};
}

WeChatMedia::WeChatMedia(const FileLocator& files, QString directory)
    : m_files(files), m_directory(std::move(directory))
{
}

WeChatChatFiles WeChatMedia::ofChat(const QString& chatHash) const
{
    WeChatChatFiles found;
    for (const FolderRow& row : kFolders) {
        const QStringList paths = m_files.filesBelow(
            kWeChatDomain, m_directory + QChar(u'/') + row.name + QChar(u'/') + chatHash);
        for (const QString& path : paths) {
            found.add(row.folder, path);
        }
    }
    return found;
}

QMap<QString, WeChatChatFiles> WeChatMedia::ofAll() const
{
    QMap<QString, WeChatChatFiles> chats;
    for (const FolderRow& row : kFolders) {
        const QString directory = m_directory + QChar(u'/') + row.name;
        const QStringList paths = m_files.filesBelow(kWeChatDomain, directory);
        for (const QString& path : paths) {
            const QString chat = path.mid(directory.size() + 1).section(QChar(u'/'), 0, 0);
            chats[chat].add(row.folder, path);
        }
    }
    return chats;
}

QString WeChatMedia::locate(const QString& path) const
{
    return m_files.locate(kWeChatDomain, path);
}

} // namespace backup

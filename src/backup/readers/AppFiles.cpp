// SPDX-License-Identifier: MIT
//   Name      | App               | Place
//   tide.pdf  | org.example.tides | Documents/2024
//
//   AppDomain-<app>/Documents, Library; AppDomainGroup-<group>; AppDomainPlugin-<extension>
#include "backup/readers/AppFiles.h"

#include "backup/readers/DeviceFileItem.h"
#include "backup/readers/media_kind.h"
#include "platform/literals.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace backup {

namespace {

constexpr QLatin1String kAppDomains = "AppDomain"_L1;

// clang-format off
/// Apps whose files are all in a category of their own, once a reader has filled that.
struct OwnedRow {
    QLatin1String app; ///< part of the domain
    int dataType = 0;
};
constexpr std::array kOwned{
    OwnedRow{"group.com.apple.notes"_L1,             28},
    OwnedRow{"group.com.apple.VoiceMemos.shared"_L1, 31},
};

// The files that came with messages of chats: other ones of the same apps belong to nobody.
constexpr std::array kChatFiles{6, 8, 10, 12, 15, 18, 20};

// What an app keeps for itself.
constexpr std::array kPrivate{
    "Library/Caches/"_L1, "Library/Cookies/"_L1, "Library/HTTPStorages/"_L1, "Library/Preferences/"_L1,
    "Library/Saved Application State/"_L1, "Library/SplashBoard/"_L1, "Library/SyncedPreferences/"_L1,
    "Library/WebKit/"_L1, "StoreKit/"_L1, "SystemData/"_L1, "tmp/"_L1,
};
constexpr std::array kKinds{MediaKind::Picture, MediaKind::Film, MediaKind::Sound, MediaKind::Document};
// clang-format on

static_assert(kKinds.size() == AppFiles::kDataTypes.size());

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

bool isOwned(const QString& domain, const PRBackup& records)
{
    return std::ranges::any_of(kOwned, [&](const OwnedRow& row) {
        return domain.contains(row.app) && records.getPRData(row.dataType) != nullptr;
    });
}

// What the app works with, and no work of its user.
bool isPrivate(const QString& path, MediaKind kind)
{
    if (path.startsWith(QChar(u'.')) || path.contains("/."_L1)) {
        return true;
    }
    if (kind == MediaKind::Document && path.startsWith("Library/"_L1)) {
        return true;
    }
    return std::ranges::any_of(
        kPrivate, [&](QLatin1String directory) { return path.startsWith(directory); });
}

// "org.example.tides" for "AppDomain-org.example.tides", "group.org.example" likewise
QString appOf(const QString& domain)
{
    return domain.mid(domain.indexOf(QChar(u'-')) + 1);
}

QString shownPlace(const QString& domain, const QString& path)
{
    return domain + QChar(u':') + path;
}

void insertPlaces(const PRData& set, QSet<QString>& places)
{
    for (int row = 0; row < set.count(1); ++row) {
        if (const auto* file = dynamic_cast<DeviceFileItem*>(set.at(row, true))) {
            places.insert(shownPlace(file->place().domain, file->place().path));
        }
    }
}

QString directoryOf(const QString& path)
{
    return path.left(std::max(0, path.lastIndexOf(QChar(u'/'))));
}

// The domains of apps whose files are looked through.
QStringList domainsOf(const BackupFolder& folder, const PRBackup& records)
{
    QStringList domains = folder.domains(kAppDomains);
    const auto owned = std::remove_if(domains.begin(), domains.end(),
        [&](const QString& domain) { return isOwned(domain, records); });
    domains.erase(owned, domains.end());
    return domains;
}

} // namespace

AppFiles::AppFiles(const BackupFolder& folder, const PRBackup& records)
    : m_folder(folder), m_domains(domainsOf(folder, records))
{
    for (const int dataType : kChatFiles) {
        if (const PRData* set = records.getPRData(dataType)) {
            m_chatFiles.push_back(set);
        }
    }
}

std::unique_ptr<PRData> AppFiles::data(int dataType)
{
    const auto* const found = std::ranges::find(kDataTypes, dataType);
    const auto index = static_cast<std::size_t>(found - kDataTypes.begin());
    return std::make_unique<ListedData>(dataType, QStringList{tr("Name"), tr("App"), tr("Place")},
        [this, index] { return take(index); });
}

QSet<QString> AppFiles::filesOfChats() const
{
    QSet<QString> places;
    for (const PRData* set : m_chatFiles) {
        insertPlaces(*set, places);
    }
    return places;
}

void AppFiles::list()
{
    const QSet<QString> listed = filesOfChats();
    for (const QString& domain : std::as_const(m_domains)) {
        QStringList paths = m_folder.filesBelow(domain, QString());
        const auto end = std::remove_if(paths.begin(), paths.end(),
            [&](const QString& path) { return listed.contains(shownPlace(domain, path)); });
        paths.erase(end, paths.end());
        for (const QString& path : std::as_const(paths)) {
            add(domain, path);
        }
    }
}

void AppFiles::add(const QString& domain, const QString& path)
{
    const QString name = lastPart(path);
    const MediaKind kind = mediaKindOf(name);
    const auto* const found = std::ranges::find(kKinds, kind);
    if (found == kKinds.end() || isPrivate(path, kind)) {
        return;
    }
    Record record{
        .values = {name, appOf(domain), directoryOf(path)}, .parent = directoryName(appOf(domain))};
    m_lists.at(static_cast<std::size_t>(found - kKinds.begin()))
        .push_back(std::make_unique<DeviceFileItem>(
            std::move(record), FileContent(), DeviceFile{domain, path}, m_folder));
}

RecordList AppFiles::take(std::size_t index)
{
    if (!m_isListed) {
        m_isListed = true;
        list();
    }
    return std::move(m_lists.at(index));
}

} // namespace backup

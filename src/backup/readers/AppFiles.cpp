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
/// Apps whose files are in a category of their own, once a reader has filled that.
struct OwnedRow {
    QLatin1String app; ///< part of the domain
    int dataType = 0;
};
constexpr std::array kOwned{
    OwnedRow{"group.com.apple.notes"_L1,             28},
    OwnedRow{"group.com.apple.VoiceMemos.shared"_L1, 31},
    OwnedRow{"net.whatsapp.WhatsAppSMB"_L1,          8},
    OwnedRow{"net.whatsapp.WhatsApp.shared"_L1,      6},
    OwnedRow{"jp.naver.line"_L1,                     10},
    OwnedRow{"com.linecorp.line"_L1,                 10},
    OwnedRow{"viber"_L1,                             12},
    OwnedRow{"com.tencent.xin"_L1,                   15},
    OwnedRow{"kik.chat"_L1,                          18},
    OwnedRow{"com.facebook.Messenger"_L1,            20},
};

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

QString directoryOf(const QString& path)
{
    return path.left(std::max(0, path.lastIndexOf(QChar(u'/'))));
}

} // namespace

AppFiles::AppFiles(const BackupFolder& folder, QStringList domains)
    : m_folder(folder), m_domains(std::move(domains))
{
}

QStringList AppFiles::domains(const BackupFolder& folder, const PRBackup& records)
{
    QStringList domains = folder.domains(kAppDomains);
    const auto owned = std::remove_if(domains.begin(), domains.end(),
        [&](const QString& domain) { return isOwned(domain, records); });
    domains.erase(owned, domains.end());
    return domains;
}

std::unique_ptr<PRData> AppFiles::data(int dataType)
{
    const auto* const found = std::ranges::find(kDataTypes, dataType);
    const auto index = static_cast<std::size_t>(found - kDataTypes.begin());
    return std::make_unique<ListedData>(dataType, QStringList{tr("Name"), tr("App"), tr("Place")},
        [this, index] { return take(index); });
}

void AppFiles::list()
{
    for (const QString& domain : std::as_const(m_domains)) {
        const QStringList paths = m_folder.filesBelow(domain, QString());
        for (const QString& path : paths) {
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

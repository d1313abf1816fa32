// SPDX-License-Identifier: MIT
// Keys of the property lists of a backup folder that are read here.
//   Info.plist      Device Name, Display Name, Product Type, Product Version, Last Backup Date
//   Manifest.plist  IsEncrypted, Lockdown { DeviceName, ProductType, ProductVersion }
//   Status.plist    SnapshotState
#include "backup/container/backup_properties.h"

#include "backup/container/Notices.h"
#include "formats/plist.h"

#include <QDateTime>
#include <QFileInfo>
#include <QVariantMap>

#include <initializer_list>
#include <optional>

namespace backup {

namespace {

// None where the file is absent, or damaged, which is told.
std::optional<QVariantMap> readDictionary(const QString& path, Notices& notices)
{
    if (!QFileInfo(path).isFile()) {
        return std::nullopt;
    }
    const auto list = formats::readPlistFile(path);
    if (!list) {
        notices.add(list.error().text());
        return std::nullopt;
    }
    if (list->type() != QVariant::Map) {
        notices.add(path + QStringLiteral(": this property list is no dictionary"));
        return std::nullopt;
    }
    return list->toMap();
}

struct Place {
    const QVariantMap& dictionary;
    QString key;
};

QString firstText(std::initializer_list<Place> places)
{
    for (const Place& place : places) {
        const QVariant value = place.dictionary.value(place.key);
        if (value.type() == QVariant::String && !value.toString().isEmpty()) {
            return value.toString();
        }
    }
    return {};
}

DeviceInfo deviceOf(const QVariantMap& info, const QVariantMap& lockdown)
{
    return {.name = firstText({{info, QStringLiteral("Device Name")},
                {info, QStringLiteral("Display Name")}, {lockdown, QStringLiteral("DeviceName")}}),
        .productType = firstText(
            {{lockdown, QStringLiteral("ProductType")}, {info, QStringLiteral("Product Type")}}),
        .productVersion = firstText({{lockdown, QStringLiteral("ProductVersion")},
            {info, QStringLiteral("Product Version")}}),
        .lastBackup = info.value(QStringLiteral("Last Backup Date"))
                          .toDateTime()
                          .toUTC()
                          .toString(Qt::ISODate)};
}

void tellUnfinished(const QString& path, const QVariantMap& status, Notices& notices)
{
    const QString state = status.value(QStringLiteral("SnapshotState")).toString();
    if (!state.isEmpty() && state != QStringLiteral("finished")) {
        notices.add(QStringLiteral("%1: the backup was broken off (its state is \"%2\"); files may "
                                   "be missing or of different age")
                        .arg(path, state));
    }
}

} // namespace

BackupProperties readBackupProperties(const QString& folder, Notices& notices)
{
    const QString manifestPath = folder + QStringLiteral("/Manifest.plist");
    const QString statusPath = folder + QStringLiteral("/Status.plist");
    const auto manifest = readDictionary(manifestPath, notices);
    const auto info = readDictionary(folder + QStringLiteral("/Info.plist"), notices);
    const auto status = readDictionary(statusPath, notices);
    if (!QFileInfo::exists(manifestPath)) {
        notices.add(
            manifestPath
            + QStringLiteral(": there is no such file; whether the backup is encrypted is told by "
                             "its contents alone"));
    }
    tellUnfinished(statusPath, status.value_or(QVariantMap()), notices);

    const QVariantMap properties = manifest.value_or(QVariantMap());
    return {.device = deviceOf(
                info.value_or(QVariantMap()), properties.value(QStringLiteral("Lockdown")).toMap()),
        .knowsEncryption = manifest.has_value(),
        .encrypted = properties.value(QStringLiteral("IsEncrypted")).toBool()};
}

} // namespace backup

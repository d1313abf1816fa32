// SPDX-License-Identifier: MIT
//   Name         | Duration
//   Harbour.m4r  | 0:00:28
//
//   Media/iTunes_Control/Ringtones/ABCD.m4r, Media/Purchases/12345.m4r   the tones
//   Media/iTunes_Control/iTunes/Ringtones.plist
//     {"Ringtones": {"ABCD.m4r": {"Name": "Harbour", "Total Time": 28000, ...}}}
#include "backup/readers/Ringtones.h"

#include "backup/readers/DeviceFileItem.h"
#include "formats/plist.h"
#include "platform/literals.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <utility>

namespace backup {

namespace {

constexpr int kDataType = 32;
constexpr QLatin1String kEnding = ".m4r"_L1;
constexpr std::array kDomains{"TonesDomain"_L1, "MediaDomain"_L1};
constexpr std::array kDirectories{"Media/iTunes_Control/Ringtones"_L1, "Media/Purchases"_L1};
constexpr QLatin1String kList = "Media/iTunes_Control/iTunes/Ringtones.plist"_L1;
constexpr double kMillisecondsOfASecond = 1000;

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

void addTones(const FileLocator& files, QLatin1String domain, QLatin1String directory,
    std::vector<DeviceFile>& tones)
{
    const QStringList paths = files.filesBelow(domain, directory);
    for (const QString& path : paths) {
        if (path.endsWith(kEnding, Qt::CaseInsensitive)) {
            tones.push_back({.domain = domain, .path = path});
        }
    }
}

std::vector<DeviceFile> tonesOf(const FileLocator& files)
{
    std::vector<DeviceFile> tones;
    for (const QLatin1String domain : kDomains) {
        for (const QLatin1String directory : kDirectories) {
            addTones(files, domain, directory, tones);
        }
    }
    return tones;
}

// What a domain's list says of the tones, by their file names. Nothing where it is missing or
// damaged.
QVariantMap listedTones(const FileLocator& files, QLatin1String domain)
{
    const QString path = files.locate(domain, kList);
    if (path.isEmpty()) {
        return {};
    }
    const auto list = formats::readPlistFile(path);
    return list ? list->toMap().value("Ringtones"_L1).toMap() : QVariantMap();
}

QVariantMap knownTones(const FileLocator& files)
{
    QVariantMap known;
    for (const QLatin1String domain : kDomains) {
        const QVariantMap tones = listedTones(files, domain);
        for (auto tone = tones.cbegin(); tone != tones.cend(); ++tone) {
            known.insert(tone.key(), tone.value());
        }
    }
    return known;
}

RecordList list(const std::vector<DeviceFile>& tones, const FileLocator& files)
{
    const QVariantMap known = knownTones(files);
    RecordList records;
    for (const DeviceFile& tone : tones) {
        const QString fileName = lastPart(tone.path);
        const QVariantMap facts = known.value(fileName).toMap();
        const QString name = facts.value("Name"_L1).toString().trimmed();
        const double seconds = facts.value("Total Time"_L1).toDouble() / kMillisecondsOfASecond;
        Record record{
            .values = {name.isEmpty() ? fileName : name + kEnding, recordingLength(seconds)}};
        records.push_back(
            std::make_unique<DeviceFileItem>(std::move(record), FileContent(), tone, files));
    }
    std::ranges::stable_sort(
        records, std::less(), [](const auto& record) { return record->value(0).toCaseFolded(); });
    return records;
}

} // namespace

std::unique_ptr<PRData> ringtones(const FileLocator& files)
{
    std::vector<DeviceFile> tones = tonesOf(files);
    if (tones.empty()) {
        return nullptr;
    }
    return std::make_unique<ListedData>(kDataType, QStringList{tr("Name"), tr("Duration")},
        [tones = std::move(tones), &files] { return list(tones, files); });
}

} // namespace backup

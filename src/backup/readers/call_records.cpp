// SPDX-License-Identifier: MIT
//   Name | Number        | Date             | Duration | Type     | Service
//   Mia  | +491715550101 | 2024-05-01 12:30 | 0:05:12  | Incoming | FaceTime Audio
#include "backup/readers/call_records.h"

#include "backup/readers/DeviceFileItem.h"
#include "backup/readers/table_reader.h"
#include "platform/CCommonUtils.h"
#include "platform/literals.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace backup {

namespace {

struct AppRow {
    QLatin1String identifier;
    QLatin1String name;
};

// clang-format off
constexpr std::array kApps{
    AppRow{"net.whatsapp.WhatsApp"_L1,    "WhatsApp"_L1},
    AppRow{"net.whatsapp.WhatsAppSMB"_L1, "WhatsApp Business"_L1},
    AppRow{"jp.naver.line"_L1,            "LINE"_L1},
    AppRow{"com.viber"_L1,                "Viber"_L1},
    AppRow{"com.tencent.xin"_L1,          "WeChat"_L1},
    AppRow{"com.facebook.Messenger"_L1,   "Messenger"_L1},
};
// clang-format on

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

QString nameOfAddress(const QString& address, const SenderNames& names)
{
    QString name = names.nameOf(address);
    return name.isEmpty() ? address : name;
}

QString nameOfCaller(const Call& call, const SenderNames& names)
{
    const bool unknownToBook =
        call.addresses.size() < 2 && names.nameOf(call.addresses.value(0)).isEmpty();
    if (unknownToBook && !call.storedName.isEmpty()) {
        return call.storedName;
    }
    QStringList all;
    for (const QString& address : call.addresses) {
        all.append(nameOfAddress(address, names));
    }
    return all.isEmpty() ? tr("Unknown") : all.join(", "_L1);
}

QString typeText(CallType type)
{
    switch (type) {
    case CallType::Incoming:
        return tr("Incoming");
    case CallType::Outgoing:
        return tr("Outgoing");
    case CallType::Missed:
        break;
    }
    return tr("Missed");
}

QString appText(const QString& identifier)
{
    const auto* const app = std::ranges::find(kApps, identifier, &AppRow::identifier);
    if (app != kApps.end()) {
        return app->name;
    }
    return identifier.isEmpty() ? tr("Other app") : identifier;
}

QString serviceText(const Call& call)
{
    switch (call.service) {
    case CallService::Phone:
        return tr("Phone");
    case CallService::FaceTime:
        return QStringLiteral("FaceTime");
    case CallService::FaceTimeAudio:
        return tr("FaceTime Audio");
    case CallService::FaceTimeVideo:
        return tr("FaceTime Video");
    case CallService::AppVideo:
        return tr("%1 Video").arg(appText(call.app));
    case CallService::App:
        break;
    }
    return appText(call.app);
}

std::unique_ptr<PRAbstractItem> record(const Call& call, const SenderNames& names)
{
    return std::make_unique<PRAbstractItem>(
        Record{.values = {nameOfCaller(call, names), call.addresses.join(", "_L1),
                   CCommonUtils::datetimeToMinute(call.date, true), durationText(call.seconds),
                   typeText(call.type), serviceText(call)}});
}

} // namespace

QStringList callColumns()
{
    return {tr("Name"), tr("Number"), tr("Date"), tr("Duration"), tr("Type"), tr("Service")};
}

RecordList callRecords(std::vector<Call> calls, const SenderNames& names)
{
    std::ranges::reverse(calls);
    std::ranges::stable_sort(
        calls, std::greater(), [](const Call& call) { return dateOrder(call.date); });
    RecordList records;
    records.reserve(calls.size());
    for (const Call& call : calls) {
        records.push_back(record(call, names));
    }
    return records;
}

} // namespace backup

// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/FoundDatabase.h"
#include "backup/readers/OpenedBackup.h"
#include "platform/literals.h"

namespace backup {

// Where the stores of chats lie on a device.
inline constexpr QLatin1String kWhatsAppDomain =
    "AppDomainGroup-group.net.whatsapp.WhatsApp.shared"_L1;
inline constexpr QLatin1String kWhatsAppBusinessDomain =
    "AppDomainGroup-group.net.whatsapp.WhatsAppSMB.shared"_L1;
inline constexpr QLatin1String kWhatsAppChats = "ChatStorage.sqlite"_L1;
inline constexpr QLatin1String kOldWhatsAppDomain = "AppDomain-net.whatsapp.WhatsApp"_L1;
inline constexpr QLatin1String kOldWhatsAppChats = "Documents/ChatStorage.sqlite"_L1;

/// Knows a store of either application by its tables.
bool isWhatsApp(const formats::Database& database);
/// The number of its messages.
qint64 countWhatsApp(const formats::Database& database);

/// Adds the account of a store to the records.
void addWhatsApp(FoundDatabase found, OpenedBackup& opened);
void addWhatsAppBusiness(FoundDatabase found, OpenedBackup& opened);

} // namespace backup

// SPDX-License-Identifier: MIT
#include "backup/readers/whatsapp_source.h"

#include "backup/readers/ChatStore.h"
#include "backup/readers/WhatsApp.h"
#include "backup/readers/open_beside.h"

#include <memory>
#include <optional>
#include <utility>

namespace backup {

namespace {

constexpr QLatin1String kSessions = "ZWACHATSESSION"_L1;
constexpr QLatin1String kMessages = "ZWAMESSAGE"_L1;

constexpr ChatTypes kTypes{.chats = 5, .files = 6};
constexpr ChatTypes kBusinessTypes{.chats = 7, .files = 8};

qint64 countRows(const formats::Database& database, const QString& table)
{
    auto query = database.prepare("SELECT count(*) FROM "_L1 + table);
    return query && query->next() ? query->integer(0) : 0;
}

// Once the application moved its store, and a device may have both: the one with more is read, and
// of equal ones that in the newer place.
bool isSuperseded(const FoundDatabase& found, const OpenedBackup& opened)
{
    const bool isOld = found.domain == kOldWhatsAppDomain;
    const QString domain = isOld ? kWhatsAppDomain : kOldWhatsAppDomain;
    const QString path = isOld ? kWhatsAppChats : kOldWhatsAppChats;
    const auto* device = dynamic_cast<const BackupFolder*>(opened.files.get());
    if (device == nullptr || found.domain == kWhatsAppBusinessDomain
        || !device->find(domain, path)) {
        return false;
    }
    const auto other = device->openDatabase(domain, path);
    if (!other || !*other || !isWhatsApp((*other)->database)) {
        return false;
    }
    const qint64 own = countRows(found.database.database, kMessages);
    const qint64 others = countRows((*other)->database, kMessages);
    return isOld ? others >= own : others > own;
}

// Of this account: the application's twin has files of the same names.
WhatsAppPeople::OpenBeside openerOf(const QString& domain, OpenedBackup& opened)
{
    return [domain, &files = *opened.files, &notices = *opened.notices](
               const QString& name) -> std::optional<formats::Result<OpenedDatabase>> {
        const auto* device = dynamic_cast<const BackupFolder*>(&files);
        if (device != nullptr && !device->find(domain, name)) {
            return std::nullopt;
        }
        return openBeside(files, domain, name, notices);
    };
}

void addAccount(FoundDatabase found, ChatTypes types, OpenedBackup& opened)
{
    if (isSuperseded(found, opened)) {
        return;
    }
    WhatsAppPlace place{
        .domain = found.domain, .name = found.name, .openBeside = openerOf(found.domain, opened)};
    addChatApp(std::make_unique<WhatsApp>(std::move(found.database), std::move(place), found.names,
                   *opened.files, *opened.notices),
        types, opened);
}

} // namespace

bool isWhatsApp(const formats::Database& database)
{
    const QStringList tables = database.tables();
    return tables.contains(kSessions) && tables.contains(kMessages);
}

void addWhatsApp(FoundDatabase found, OpenedBackup& opened)
{
    addAccount(std::move(found), kTypes, opened);
}

void addWhatsAppBusiness(FoundDatabase found, OpenedBackup& opened)
{
    addAccount(std::move(found), kBusinessTypes, opened);
}

} // namespace backup

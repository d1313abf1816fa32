// SPDX-License-Identifier: MIT
#include "backup/readers/whatsapp_source.h"

#include "backup/readers/ChatStore.h"
#include "backup/readers/WhatsApp.h"
#include "backup/readers/open_beside.h"
#include "backup/readers/table_reader.h"

#include <memory>
#include <optional>
#include <utility>

namespace backup {

namespace {

constexpr QLatin1String kSessions = "ZWACHATSESSION"_L1;
constexpr QLatin1String kMessages = "ZWAMESSAGE"_L1;

constexpr ChatTypes kTypes{.chats = 5, .files = 6};
constexpr ChatTypes kBusinessTypes{.chats = 7, .files = 8};

// Of this account: the application's twin has files of the same names.
WhatsAppPeople::OpenBeside openerOf(const QString& domain, OpenedBackup& opened)
{
    return [domain, &files = *opened.files, &notices = *opened.notices](
               const QString& name) { return openInDomain(files, domain, name, notices); };
}

void addAccount(FoundDatabase found, ChatTypes types, OpenedBackup& opened)
{
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

qint64 countWhatsApp(const formats::Database& database)
{
    return countRows(database, kMessages);
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

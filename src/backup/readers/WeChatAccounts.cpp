// SPDX-License-Identifier: MIT
#include "backup/readers/WeChatAccounts.h"

#include "backup/readers/ChatStore.h"
#include "backup/readers/DeviceFileItem.h"
#include "backup/readers/WeChatAccount.h"
#include "platform/literals.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>
#include <memory>
#include <utility>
#include <vector>

namespace backup {

namespace {

constexpr ChatTypes kTypes{.chats = 14, .files = 15};
constexpr int kContactsType = 16;

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

/// All accounts of the phone.
class WeChatAccounts final : public RecordSource {
public:
    /// The account of a directory, made and listed when it is first asked for.
    WeChatAccount& of(const QString& directory, OpenedBackup& opened)
    {
        const auto found = std::ranges::find(m_accounts, directory, &WeChatAccount::directory);
        if (found != m_accounts.end()) {
            return **found;
        }
        auto made = std::make_unique<WeChatAccount>(directory, *opened.files, *opened.notices);
        m_accounts.push_back(made.get());
        addChatApp(std::move(made), kTypes, opened);
        return *m_accounts.back();
    }

    RecordList contacts()
    {
        RecordList all;
        for (WeChatAccount* account : m_accounts) {
            RecordList contacts = account->contacts();
            std::ranges::move(contacts, std::back_inserter(all));
        }
        return all;
    }

private:
    std::vector<WeChatAccount*> m_accounts; // their chats own them
};

WeChatAccounts& accountsOf(OpenedBackup& opened)
{
    for (const auto& source : opened.sources) {
        if (auto* accounts = dynamic_cast<WeChatAccounts*>(source.get())) {
            return *accounts;
        }
    }
    auto made = std::make_unique<WeChatAccounts>();
    WeChatAccounts& accounts = *made;
    opened.sources.push_back(std::move(made));
    opened.records.add(std::make_unique<ListedData>(kContactsType,
        QStringList{tr("Name"), tr("Alias"), tr("Wechat ID"), tr("WXID"), tr("Region"), tr("Phone"),
            tr("What's Up")},
        [&accounts] { return accounts.contacts(); }));
    return accounts;
}

} // namespace

void addWeChat(FoundDatabase found, OpenedBackup& opened)
{
    // ".../<account>/DB/MM.sqlite"
    const QString account = found.name.section(QChar(u'/'), -3, -3);
    const QString directory = "Documents/"_L1 + (account.isEmpty() ? QStringLiteral("_") : account);
    accountsOf(opened)
        .of(directory, opened)
        .add({.opened = std::move(found.database), .name = found.name});
}

} // namespace backup

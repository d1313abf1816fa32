// SPDX-License-Identifier: MIT
#include "backup/readers/chat_sources.h"

#include "backup/readers/ChatStore.h"
#include "backup/readers/KikChats.h"
#include "backup/readers/LineChats.h"
#include "backup/readers/ViberChats.h"
#include "backup/readers/open_beside.h"

#include <QFileInfo>

#include <memory>
#include <utility>

namespace backup {

namespace {

constexpr ChatTypes kLine{.chats = 9, .files = 10};
constexpr ChatTypes kViber{.chats = 11, .files = 12};
constexpr ChatTypes kKik{.chats = 17, .files = 18};

// A database that was opened without its device has no place there but its name.
ChatDatabase withBackup(FoundDatabase found, const OpenedBackup& opened)
{
    const bool isLoose = QFileInfo(found.name).isAbsolute();
    return {.database = {.opened = std::move(found.database), .name = found.name},
        .place = {.domain = found.domain, .path = isLoose ? lastPart(found.name) : found.name},
        .files = *opened.files,
        .notices = *opened.notices};
}

} // namespace

void addLine(FoundDatabase found, OpenedBackup& opened)
{
    if (!LineChats::hasMessages(found.database.database)) {
        return;
    }
    const auto openGroups = [&files = *opened.files, &notices = *opened.notices](
                                const QString& domain, const QString& path) {
        return openBeside(files, domain, path, notices);
    };
    const SenderNames& names = found.names;
    addChatApp(std::make_unique<LineChats>(withBackup(std::move(found), opened), names, openGroups),
        kLine, opened);
}

void addViber(FoundDatabase found, OpenedBackup& opened)
{
    const bool hasCalls = ViberChats::hasCalls(found.database.database);
    if (!hasCalls && !ViberChats::hasMessages(found.database.database)) {
        return;
    }
    const SenderNames& names = found.names;
    auto chats = std::make_unique<ViberChats>(withBackup(std::move(found), opened), names);
    if (hasCalls) {
        opened.records.add(chats->callList());
    }
    addChatApp(std::move(chats), kViber, opened);
}

void addKik(FoundDatabase found, OpenedBackup& opened)
{
    if (KikChats::hasMessages(found.database.database)) {
        addChatApp(std::make_unique<KikChats>(withBackup(std::move(found), opened)), kKik, opened);
    }
}

} // namespace backup

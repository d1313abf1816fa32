// SPDX-License-Identifier: MIT
#include "backup/container/LooseFiles.h"
#include "backup/readers/MessageStore.h"
#include "backup/readers/OpenedBackup.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace backup {

namespace {

constexpr QLatin1String kMessages = "Library/SMS/sms.db"_L1;

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

void addMessages(OpenedBackup& opened, OpenedDatabase database, const SenderNames& names)
{
    auto store =
        std::make_unique<MessageStore>(std::move(database), names, *opened.files, *opened.notices);
    opened.records.add(store->messages());
    opened.records.add(store->attachments());
    opened.sources.push_back(std::move(store));
}

// The database of the device, or none; why there is none is told to the notices.
std::optional<OpenedDatabase> openOrNote(
    const BackupFolder& folder, const QString& relativePath, Notices& notices)
{
    auto found = folder.openDatabase("HomeDomain"_L1, relativePath);
    if (!found) {
        notices.add(tr("The backup has no %1.").arg(relativePath));
        return std::nullopt;
    }
    if (!*found) {
        notices.add(found->error().text());
        return std::nullopt;
    }
    return std::move(**found);
}

} // namespace

formats::Result<OpenedBackup> openBackupFolder(const QString& path)
{
    OpenedBackup opened{.notices = std::make_unique<Notices>()};
    auto folder = BackupFolder::open(path, *opened.notices);
    if (!folder) {
        return folder.error();
    }
    const BackupFolder& device = **folder;
    opened.device = device.device();
    opened.files = std::move(*folder);

    SenderNames names;
    if (const auto addressBook =
            openOrNote(device, "Library/AddressBook/AddressBook.sqlitedb"_L1, *opened.notices)) {
        names = SenderNames(addressBook->database);
    }
    if (auto messages = openOrNote(device, kMessages, *opened.notices)) {
        if (MessageStore::isMessageStore(messages->database)) {
            addMessages(opened, std::move(*messages), names);
        } else {
            opened.notices->add(
                tr("%1 of the backup is no store of messages that can be read.").arg(kMessages));
        }
    }
    return opened;
}

formats::Result<OpenedBackup> openDatabaseFile(const QString& path)
{
    OpenedBackup opened{.notices = std::make_unique<Notices>()};
    const QString log = path + "-wal"_L1;
    auto database = openWithLog(path, QFileInfo::exists(log) ? log : QString(), *opened.notices);
    if (!database) {
        return database.error();
    }
    if (!MessageStore::isMessageStore(database->database)) {
        return formats::Error{.where = path,
            .what = tr("this is no database of a kind that can be read; it has the tables %1")
                        .arg(database->database.tables().join(", "_L1))};
    }
    opened.files = std::make_unique<LooseFiles>(QFileInfo(path).absoluteDir());
    addMessages(opened, std::move(*database), SenderNames());
    return opened;
}

} // namespace backup

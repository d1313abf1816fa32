// SPDX-License-Identifier: MIT
#include "backup/container/LooseFiles.h"
#include "backup/readers/MessageStore.h"
#include "backup/readers/NoteStore.h"
#include "backup/readers/OldNoteStore.h"
#include "backup/readers/OpenedBackup.h"
#include "backup/readers/note_data.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <optional>

namespace backup {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

/// A database that was found, with what its reader may need besides.
struct FoundDatabase {
    OpenedDatabase database;
    const SenderNames& names;
};

void addMessages(FoundDatabase found, OpenedBackup& opened)
{
    auto store = std::make_unique<MessageStore>(
        std::move(found.database), found.names, *opened.files, *opened.notices);
    opened.records.add(store->messages());
    opened.records.add(store->attachments());
    opened.sources.push_back(std::move(store));
}

// A device may have notes in several stores; they make one list.
void addNoteStore(std::unique_ptr<NoteSource> store, OpenedBackup& opened)
{
    opened.sources.push_back(std::move(store));
    std::vector<NoteSource*> stores;
    for (const auto& source : opened.sources) {
        if (auto* notes = dynamic_cast<NoteSource*>(source.get())) {
            stores.push_back(notes);
        }
    }
    opened.records.add(noteData(stores));
    opened.records.add(noteFileData(std::move(stores)));
}

void addNotes(FoundDatabase found, OpenedBackup& opened)
{
    addNoteStore(
        std::make_unique<NoteStore>(std::move(found.database), *opened.files, *opened.notices),
        opened);
}

void addOldNotes(FoundDatabase found, OpenedBackup& opened)
{
    addNoteStore(std::make_unique<OldNoteStore>(std::move(found.database)), opened);
}

/// One place where a device keeps records. A kind that lies elsewhere on other releases has a row
/// for each place; all of them are read.
struct SourceRow {
    QLatin1String domain;
    QLatin1String path;
    bool everywhere = false; ///< each device has it: that it is missing is told
    bool (*isOfKind)(const formats::Database&) = nullptr; ///< by its tables
    void (*add)(FoundDatabase, OpenedBackup&) = nullptr;  ///< fills in what it holds
};

// clang-format off
constexpr std::array kSources{
    SourceRow{"HomeDomain"_L1, "Library/SMS/sms.db"_L1, true, MessageStore::isMessageStore, addMessages},
    SourceRow{kNotesDomain, "NoteStore.sqlite"_L1, false, NoteStore::isNoteStore, addNotes},
    SourceRow{"HomeDomain"_L1, "Library/Notes/notes.sqlite"_L1, false, OldNoteStore::isOldNoteStore, addOldNotes},
};
// clang-format on

// The database of the device, or none; why there is none is told to the notices, its absence only
// where `isExpected`.
std::optional<OpenedDatabase> openOrNote(const BackupFolder& folder, const QString& domain,
    const QString& path, bool isExpected, Notices& notices)
{
    auto found = folder.openDatabase(domain, path);
    if (!found) {
        if (isExpected) {
            notices.add(tr("The backup has no %1.").arg(path));
        }
        return std::nullopt;
    }
    if (!*found) {
        notices.add(found->error().text());
        return std::nullopt;
    }
    return std::move(**found);
}

void addFrom(const BackupFolder& device, const SourceRow& source, const SenderNames& names,
    OpenedBackup& opened)
{
    auto database =
        openOrNote(device, source.domain, source.path, source.everywhere, *opened.notices);
    if (!database) {
        return;
    }
    if (source.isOfKind(database->database)) {
        source.add({.database = std::move(*database), .names = names}, opened);
    } else {
        opened.notices->add(
            tr("%1 of the backup is not of a kind that can be read.").arg(source.path));
    }
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
    if (const auto addressBook = openOrNote(device, "HomeDomain"_L1,
            "Library/AddressBook/AddressBook.sqlitedb"_L1, true, *opened.notices)) {
        names = SenderNames(addressBook->database);
    }
    for (const SourceRow& source : kSources) {
        addFrom(device, source, names, opened);
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
    const auto* const source = std::ranges::find_if(
        kSources, [&](const SourceRow& row) { return row.isOfKind(database->database); });
    if (source == kSources.end()) {
        return formats::Error{.where = path,
            .what = tr("this is no database of a kind that can be read; it has the tables %1")
                        .arg(database->database.tables().join(", "_L1))};
    }
    opened.files = std::make_unique<LooseFiles>(QFileInfo(path).absoluteDir());
    source->add({.database = std::move(*database), .names = SenderNames()}, opened);
    return opened;
}

} // namespace backup

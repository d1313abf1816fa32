// SPDX-License-Identifier: MIT
#include "backup/container/LooseFiles.h"
#include "backup/readers/AddressBook.h"
#include "backup/readers/AppFiles.h"
#include "backup/readers/BookmarkData.h"
#include "backup/readers/CalendarData.h"
#include "backup/readers/CallData.h"
#include "backup/readers/FoundDatabase.h"
#include "backup/readers/HistoryData.h"
#include "backup/readers/KikChats.h"
#include "backup/readers/LineChats.h"
#include "backup/readers/MessageStore.h"
#include "backup/readers/NoteStore.h"
#include "backup/readers/OldNoteStore.h"
#include "backup/readers/OpenedBackup.h"
#include "backup/readers/PhotoLibrary.h"
#include "backup/readers/ReminderData.h"
#include "backup/readers/Ringtones.h"
#include "backup/readers/ViberChats.h"
#include "backup/readers/VoiceMemos.h"
#include "backup/readers/Voicemail.h"
#include "backup/readers/WeChatAccount.h"
#include "backup/readers/WeChatAccounts.h"
#include "backup/readers/calendar_rows.h"
#include "backup/readers/call_rows.h"
#include "backup/readers/chat_sources.h"
#include "backup/readers/note_data.h"
#include "backup/readers/open_beside.h"
#include "backup/readers/photo_rows.h"
#include "backup/readers/reminder_rows.h"
#include "backup/readers/safari_lists.h"
#include "backup/readers/whatsapp_source.h"
#include "formats/plist.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <numeric>
#include <optional>
#include <span>
#include <vector>

namespace backup {

namespace {

constexpr QLatin1String kHome = "HomeDomain"_L1;
constexpr QLatin1String kAddressBook = "Library/AddressBook/AddressBook.sqlitedb"_L1;
constexpr QLatin1String kContactPictures = "Library/AddressBook/AddressBookImages.sqlitedb"_L1;

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

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
    addNoteStore(
        std::make_unique<OldNoteStore>(std::move(found.database), *opened.notices), opened);
}

// The set of this kind, which several databases may fill.
template <typename Set, typename... Arguments>
void addToSet(FoundDatabase found, OpenedBackup& opened, Arguments&&... arguments)
{
    auto* set = dynamic_cast<Set*>(opened.records.getPRData(Set::kDataType));
    if (set == nullptr) {
        auto made = std::make_unique<Set>(std::forward<Arguments>(arguments)..., *opened.notices);
        set = made.get();
        opened.records.add(std::move(made));
    }
    set->addDatabase({.opened = std::move(found.database), .name = found.name});
}

void addCalls(FoundDatabase found, OpenedBackup& opened)
{
    const SenderNames& names = found.names;
    addToSet<CallData>(std::move(found), opened, names);
}

void addReminders(FoundDatabase found, OpenedBackup& opened)
{
    addToSet<ReminderData>(std::move(found), opened);
}

void addEvents(FoundDatabase found, OpenedBackup& opened)
{
    addToSet<CalendarData>(std::move(found), opened);
}

void addBookmarks(FoundDatabase found, OpenedBackup& opened)
{
    addToSet<BookmarkData>(std::move(found), opened);
}

void addHistory(FoundDatabase found, OpenedBackup& opened)
{
    addToSet<HistoryData>(std::move(found), opened);
}

void addVoiceMemos(FoundDatabase found, OpenedBackup& opened)
{
    addToSet<VoiceMemos>(std::move(found), opened, *opened.files);
}

void addVoicemail(FoundDatabase found, OpenedBackup& opened)
{
    const SenderNames& names = found.names;
    addToSet<Voicemail>(std::move(found), opened, names, *opened.files);
}

void addPhotoLibrary(std::optional<NamedDatabase> database, OpenedBackup& opened)
{
    auto library =
        std::make_unique<PhotoLibrary>(std::move(database), *opened.files, *opened.notices);
    for (const int dataType :
        {PhotoLibrary::kPhotos, PhotoLibrary::kShared, PhotoLibrary::kVideos}) {
        opened.records.add(library->data(dataType));
    }
    opened.sources.push_back(std::move(library));
}

void addPhotos(FoundDatabase found, OpenedBackup& opened)
{
    addPhotoLibrary(NamedDatabase{.opened = std::move(found.database), .name = found.name}, opened);
}

void addContacts(FoundDatabase found, OpenedBackup& opened)
{
    auto book = std::make_unique<AddressBook>(
        std::move(found.database), found.name,
        [&files = *opened.files, &notices = *opened.notices] {
            return openBeside(files, kHome, kContactPictures, notices);
        },
        *opened.notices);
    opened.records.add(book->contacts());
    opened.sources.push_back(std::move(book));
}

/// One place where a device keeps records. A kind that lies elsewhere on other releases has a row
/// for each place; all of them are read. A star in the path is any name, and there can be many.
struct SourceRow {
    QLatin1String domain;
    QLatin1String path;
    enum class Lies {
        Everywhere, ///< each device has it: that it is missing is told
        Somewhere,  ///< if not here, then in another domain
        Here,       ///< other applications have files of the same path
        Perhaps,    ///< as Here, and may hold nothing that is read
    } lies = Lies::Somewhere;
    bool (*isOfKind)(const formats::Database&) = nullptr; ///< by its tables
    void (*add)(FoundDatabase, OpenedBackup&) = nullptr;  ///< fills in what it holds
    /// How much a database holds: once the application moved, and a device may have both places. Of
    /// the rows of one `add` that stand together the one with the most counts, the first of equals.
    qint64 (*size)(const formats::Database&) = nullptr;
};

using Lies = SourceRow::Lies;

// clang-format off
constexpr std::array kSources{
    SourceRow{"HomeDomain"_L1, "Library/SMS/sms.db"_L1, Lies::Everywhere, MessageStore::isMessageStore, addMessages},
    SourceRow{kHome, kAddressBook, Lies::Somewhere, AddressBook::isAddressBook, addContacts},
    SourceRow{kNotesDomain, "NoteStore.sqlite"_L1, Lies::Somewhere, NoteStore::isNoteStore, addNotes},
    SourceRow{"HomeDomain"_L1, "Library/Notes/notes.sqlite"_L1, Lies::Somewhere, OldNoteStore::isOldNoteStore, addOldNotes},
    SourceRow{"HomeDomain"_L1, "Library/CallHistoryDB/CallHistory.storedata"_L1, Lies::Somewhere, isCallHistory, addCalls},
    SourceRow{"WirelessDomain"_L1, "Library/CallHistory/call_history.db"_L1, Lies::Somewhere, isOldCallHistory, addCalls},
    SourceRow{"AppDomainGroup-group.com.apple.reminders"_L1, "Container_v1/Stores/*.sqlite"_L1, Lies::Somewhere, isReminderStore, addReminders},
    SourceRow{"HomeDomain"_L1, "Library/Reminders/Container_v1/Stores/*.sqlite"_L1, Lies::Somewhere, isReminderStore, addReminders},
    SourceRow{"HomeDomain"_L1, "Library/Calendar/Calendar.sqlitedb"_L1, Lies::Somewhere, isCalendarWithTasks, addReminders},
    SourceRow{"HomeDomain"_L1, "Library/Calendar/Calendar.sqlitedb"_L1, Lies::Somewhere, isCalendar, addEvents},
    SourceRow{"HomeDomain"_L1, "Library/Safari/Bookmarks.db"_L1, Lies::Somewhere, BookmarkData::isBookmarkStore, addBookmarks},
    SourceRow{"HomeDomain"_L1, "Library/Safari/History.db"_L1, Lies::Somewhere, HistoryData::isHistory, addHistory},
    SourceRow{"HomeDomain"_L1, "Library/Safari/Profiles/*/History.db"_L1, Lies::Somewhere, HistoryData::isHistory, addHistory},
    SourceRow{"AppDomain-com.apple.mobilesafari"_L1, "Library/Safari/Profiles/*/History.db"_L1, Lies::Somewhere, HistoryData::isHistory, addHistory},
    SourceRow{"CameraRollDomain"_L1, "Media/PhotoData/Photos.sqlite"_L1, Lies::Somewhere, isPhotoLibrary, addPhotos},
    SourceRow{"AppDomainGroup-group.com.apple.VoiceMemos.shared"_L1, "Recordings/CloudRecordings.db"_L1, Lies::Somewhere, VoiceMemos::isRecordings, addVoiceMemos},
    SourceRow{"MediaDomain"_L1, "Media/Recordings/CloudRecordings.db"_L1, Lies::Somewhere, VoiceMemos::isRecordings, addVoiceMemos},
    SourceRow{"MediaDomain"_L1, "Media/Recordings/Recordings.db"_L1, Lies::Somewhere, VoiceMemos::isRecordings, addVoiceMemos},
    SourceRow{"HomeDomain"_L1, "Library/Voicemail/voicemail.db"_L1, Lies::Somewhere, Voicemail::isVoicemail, addVoicemail},
    SourceRow{kWhatsAppDomain, kWhatsAppChats, Lies::Here, isWhatsApp, addWhatsApp, countWhatsApp},
    SourceRow{kOldWhatsAppDomain, kOldWhatsAppChats, Lies::Here, isWhatsApp, addWhatsApp, countWhatsApp},
    SourceRow{kWhatsAppBusinessDomain, kWhatsAppChats, Lies::Here, isWhatsApp, addWhatsAppBusiness},
    SourceRow{kWeChatDomain, "Documents/*/DB/WCDB_Contact.sqlite"_L1, Lies::Here, WeChatContacts::isContacts, addWeChat},
    SourceRow{kWeChatDomain, "Documents/*/DB/MM.sqlite"_L1, Lies::Perhaps, WeChatAccount::isMessages, addWeChat},
    SourceRow{kWeChatDomain, "Documents/*/DB/message_*.sqlite"_L1, Lies::Perhaps, WeChatAccount::isMessages, addWeChat},
    SourceRow{"AppDomainGroup-group.com.linecorp.line"_L1, "Library/Application Support/PrivateStore/P_*/Messages/Line.sqlite"_L1, Lies::Here, LineChats::isOfKind, addLine, LineChats::countRecords},
    SourceRow{"AppDomain-jp.naver.line"_L1, "Library/Application Support/PrivateStore/P_*/Messages/Line.sqlite"_L1, Lies::Here, LineChats::isOfKind, addLine, LineChats::countRecords},
    SourceRow{"AppDomain-jp.naver.line"_L1, "Documents/talk.sqlite"_L1, Lies::Here, LineChats::isOfKind, addLine, LineChats::countRecords},
    SourceRow{"AppDomainGroup-group.viber.share.container"_L1, "com.viber/database/Contacts.data"_L1, Lies::Here, ViberChats::isOfKind, addViber, ViberChats::countRecords},
    SourceRow{"AppDomainGroup-group.viber.share.container"_L1, "database/Contacts.data"_L1, Lies::Here, ViberChats::isOfKind, addViber, ViberChats::countRecords},
    SourceRow{"AppDomain-com.viber"_L1, "Documents/Contacts.data"_L1, Lies::Here, ViberChats::isOfKind, addViber, ViberChats::countRecords},
    SourceRow{"AppDomainGroup-group.com.kik.chat"_L1, "cores/private/*/kik.sqlite"_L1, Lies::Here, KikChats::isOfKind, addKik, KikChats::countRecords},
    SourceRow{"AppDomain-com.kik.chat"_L1, "Documents/kik.sqlite"_L1, Lies::Here, KikChats::isOfKind, addKik, KikChats::countRecords},
};

/// A property list of an old release that fills a set which no database has filled.
struct ListRow {
    QLatin1String path; ///< in HomeDomain
    int dataType = 0;
    std::unique_ptr<PRData> (*read)(const QVariant& list) = nullptr;
};

constexpr std::array kLists{
    ListRow{"Library/Safari/Bookmarks.plist"_L1, BookmarkData::kDataType, bookmarksOfList},
    ListRow{"Library/Safari/History.plist"_L1,   HistoryData::kDataType,  historyOfList},
};
// clang-format on

/// Where the databases of a device lie. Rows of the table that stand together and look through the
/// same directory have it listed once: a chat application has a hundred thousand files there.
class Places {
public:
    explicit Places(const BackupFolder& device) : m_device(device) {}

    QStringList of(const SourceRow& source)
    {
        const QString path = source.path;
        const int star = path.indexOf(QChar(u'*'));
        if (star < 0) {
            return {path};
        }
        list(source.domain, path.left(path.lastIndexOf(QChar(u'/'), star)));
        const QString end = path.mid(path.lastIndexOf(QChar(u'*')) + 1);
        const QRegularExpression pattern(QRegularExpression::wildcardToRegularExpression(path));
        QStringList places;
        for (const QString& file : std::as_const(m_files)) {
            if (file.endsWith(end) && pattern.match(file).hasMatch()) {
                places.append(file);
            }
        }
        return places;
    }

private:
    void list(const QString& domain, const QString& directory)
    {
        if (domain != m_domain || directory != m_directory) {
            m_domain = domain;
            m_directory = directory;
            m_files = m_device.filesBelow(domain, directory);
        }
    }

    const BackupFolder& m_device;
    QString m_domain;
    QString m_directory;
    QStringList m_files;
};

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

// Those of the kind that the row of the table knows.
std::vector<FoundDatabase> databasesAt(const SourceRow& source, const BackupFolder& device,
    Places& allPlaces, const SenderNames& names, Notices& notices)
{
    std::vector<FoundDatabase> found;
    const QStringList places = allPlaces.of(source);
    for (const QString& path : places) {
        if (source.lies >= Lies::Here && !device.find(source.domain, path)) {
            continue;
        }
        auto database =
            openOrNote(device, source.domain, path, source.lies == Lies::Everywhere, notices);
        if (!database) {
            continue;
        }
        if (source.isOfKind(database->database)) {
            found.push_back({.database = std::move(*database),
                .domain = source.domain,
                .name = path,
                .names = names});
        } else if (source.lies != Lies::Perhaps) {
            notices.add(tr("%1 of the backup is not of a kind that can be read.").arg(path));
        }
    }
    return found;
}

// `rows` are a row of the table, or those of an application that has moved.
void addFrom(const BackupFolder& device, Places& allPlaces, std::span<const SourceRow> rows,
    const SenderNames& names, OpenedBackup& opened)
{
    std::vector<std::vector<FoundDatabase>> found;
    for (const SourceRow& source : rows) {
        auto databases = databasesAt(source, device, allPlaces, names, *opened.notices);
        if (!databases.empty()) {
            found.push_back(std::move(databases));
        }
    }
    const auto sizeOf = [&](const std::vector<FoundDatabase>& databases) {
        return std::accumulate(databases.begin(), databases.end(), qint64{0},
            [&](qint64 size, const FoundDatabase& each) {
                return size + rows.front().size(each.database.database);
            });
    };
    const auto largest = std::ranges::max_element(found, {}, sizeOf); // asks for none of one alone
    if (largest != found.end()) {
        for (FoundDatabase& database : *largest) {
            rows.front().add(std::move(database), opened);
        }
    }
}

// The first of the rows, and those behind it that are other places of the same.
std::span<const SourceRow> placesOfFirst(std::span<const SourceRow> rows)
{
    const SourceRow& first = rows.front();
    std::size_t count = 1;
    while (first.size != nullptr && count < rows.size() && rows[count].add == first.add) {
        ++count;
    }
    return rows.first(count);
}

void addFrom(const BackupFolder& device, const ListRow& source, OpenedBackup& opened)
{
    if (opened.records.getPRData(source.dataType) != nullptr) {
        return;
    }
    const QString path = device.locate("HomeDomain"_L1, source.path);
    if (path.isEmpty()) {
        return;
    }
    const auto list = formats::readPlistFile(path);
    if (list) {
        opened.records.add(source.read(*list));
    } else {
        opened.notices->add(formats::Error{.where = source.path, .what = list.error().what}.text());
    }
}

// Files without a database that tells of them, and those that never have one.
void addFiles(const BackupFolder& device, OpenedBackup& opened)
{
    const auto isMissing = [&](int dataType) {
        return opened.records.getPRData(dataType) == nullptr;
    };
    if (isMissing(PhotoLibrary::kPhotos) && PhotoLibrary::hasFiles(device)) {
        addPhotoLibrary(std::nullopt, opened);
    }
    if (isMissing(VoiceMemos::kDataType) && VoiceMemos::hasFiles(device)) {
        opened.records.add(std::make_unique<VoiceMemos>(device, *opened.notices));
    }
    if (isMissing(Voicemail::kDataType) && Voicemail::hasFiles(device)) {
        opened.records.add(std::make_unique<Voicemail>(SenderNames(), device, *opened.notices));
    }
    opened.records.add(ringtones(device));
    auto files = std::make_unique<AppFiles>(device, opened.records);
    if (files->hasApps()) {
        for (const int dataType : AppFiles::kDataTypes) {
            opened.records.add(files->data(dataType));
        }
        opened.sources.push_back(std::move(files));
    }
}

// The rows that know a database, one for each kind of records in it. An application's twin has
// databases of the same kind; a loose one passes for that of the first.
std::vector<const SourceRow*> rowsOf(const formats::Database& database)
{
    std::vector<const SourceRow*> rows;
    for (const SourceRow& row : kSources) {
        const bool isNew = std::ranges::none_of(rows, [&](const SourceRow* other) {
            return other->add == row.add || other->isOfKind == row.isOfKind;
        });
        if (isNew && row.isOfKind(database)) {
            rows.push_back(&row);
        }
    }
    return rows;
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
    if (const auto addressBook = openOrNote(device, kHome, kAddressBook, true, *opened.notices)) {
        names = SenderNames(addressBook->database);
    }
    Places places(device);
    for (std::span<const SourceRow> rows(kSources); !rows.empty();) {
        const std::span<const SourceRow> together = placesOfFirst(rows);
        addFrom(device, places, together, names, opened);
        rows = rows.subspan(together.size());
    }
    for (const ListRow& source : kLists) {
        addFrom(device, source, opened);
    }
    addFiles(device, opened);
    return opened;
}

formats::Result<OpenedBackup> openDatabaseFile(const QString& path)
{
    OpenedBackup opened{.notices = std::make_unique<Notices>()};
    const QString log = path + "-wal"_L1;
    const QString foundLog = QFileInfo::exists(log) ? log : QString();
    auto database = openWithLog(path, foundLog, *opened.notices);
    if (!database) {
        return database.error();
    }
    const std::vector<const SourceRow*> rows = rowsOf(database->database);
    if (rows.empty()) {
        return formats::Error{.where = path,
            .what = tr("this is no database of a kind that can be read; it has the tables %1")
                        .arg(database->database.tables().join(", "_L1))};
    }
    opened.files = std::make_unique<LooseFiles>(QFileInfo(path).absoluteDir());
    // Each kind of records has the database for itself.
    for (const SourceRow* row : std::span(rows).subspan(1)) {
        auto own = openWithLog(path, foundLog, *opened.notices);
        if (!own) {
            return own.error();
        }
        row->add({.database = std::move(*own),
                     .domain = row->domain,
                     .name = path,
                     .names = SenderNames()},
            opened);
    }
    rows.front()->add({.database = std::move(*database),
                          .domain = rows.front()->domain,
                          .name = path,
                          .names = SenderNames()},
        opened);
    return opened;
}

} // namespace backup

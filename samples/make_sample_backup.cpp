// SPDX-License-Identifier: MIT
// Makes the sample backup: make_sample_backup <folder of the sources> <folder of the backup>
//
//   phone.json          what the phone is, and what every phone has
//   people.json         the address book
//   conversations.json  the messages
//   notes.json          the notes
//   calls.json          the call history
//   reminders.json      the reminders of two accounts
//   calendar.json       the calendars of all accounts
//   safari.json         bookmarks, reading list and history
//   media.json          photos, voice memos, voicemail, files of apps
//   wechat.json         chats and contacts of WeChat
//   line.json           the chats of LINE, and of the two other applications
//   viber.json
//   kik.json
//   whatsapp.json       the chats of WhatsApp and of WhatsApp Business
//   media/              files that messages carry, beside those that this program draws
//   schema/             the definitions of the databases
//
// The same sources give the same bytes.
#include "maker/AddressBook.h"
#include "maker/BackupWriter.h"
#include "maker/Calendar.h"
#include "maker/CallHistory.h"
#include "maker/Conversations.h"
#include "maker/Database.h"
#include "maker/KikStore.h"
#include "maker/LineStore.h"
#include "maker/MessageStore.h"
#include "maker/NoteStore.h"
#include "maker/PhotoLibrary.h"
#include "maker/Reminders.h"
#include "maker/Safari.h"
#include "maker/ViberStore.h"
#include "maker/VoiceRecordings.h"
#include "maker/WeChat.h"
#include "maker/WhatsAppStore.h"
#include "maker/common.h"
#include "maker/media.h"
#include "maker/plist_writer.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHashFunctions>
#include <QJsonArray>
#include <QTemporaryDir>

namespace {

using sample::BackupWriter;
using sample::Database;

struct Paths {
    QString sources;
    QString scratch; // where the databases are made
    QString backup;

    QString schema(const QString& name) const { return sources + "/schema/" + name + ".sql"; }
    QString media() const { return sources + "/media"; }
};

void writeMessages(const Paths& paths, BackupWriter& backup)
{
    const QString path = "Library/SMS/sms.db";
    Database database(
        paths.scratch + "/sms.db", paths.schema("sms"), Database::Journal::WriteAheadLog);
    const sample::Conversations conversations(
        sample::readJson(paths.sources + "/conversations.json"));
    sample::MessageStore(conversations, database, backup, paths.media()).write();
    backup.addFile("HomeDomain", path, database.mainFile());
    backup.addFile("HomeDomain", path + "-wal", database.logFile());
}

// Their headers promise a log, but all of it was taken in before the backup.
void writePeople(const Paths& paths, BackupWriter& backup)
{
    const QString folder = "Library/AddressBook/";
    Database book(paths.scratch + "/AddressBook.sqlitedb", paths.schema("AddressBook"),
        Database::Journal::WriteAheadLog);
    Database pictures(paths.scratch + "/AddressBookImages.sqlitedb",
        paths.schema("AddressBookImages"), Database::Journal::WriteAheadLog);
    sample::AddressBook(book, pictures, paths.media())
        .write(sample::readJson(paths.sources + "/people.json"));
    book.checkpoint();
    pictures.checkpoint();
    backup.addFile("HomeDomain", folder + "AddressBook.sqlitedb", book.mainFile());
    backup.addFile("HomeDomain", folder + "AddressBookImages.sqlitedb", pictures.mainFile());
}

void writeNotes(const Paths& paths, BackupWriter& backup)
{
    Database database(paths.scratch + "/NoteStore.sqlite", paths.schema("NoteStore"),
        Database::Journal::WriteAheadLog);
    sample::NoteStore(database, backup, paths.media())
        .write(sample::readJson(paths.sources + "/notes.json"));
    database.checkpoint();
    backup.addFile("AppDomainGroup-group.com.apple.notes", "NoteStore.sqlite", database.mainFile());
}

// A database that `maker` fills from a source and whose log was taken in before the backup.
template <typename Maker, typename... Arguments>
void writeStore(const Paths& paths, const QString& schema, const QString& domain,
    const QString& path, const QJsonObject& source, BackupWriter& backup, Arguments&&... arguments)
{
    const QString scratch = paths.scratch + "/" + QFileInfo(path).fileName();
    Database database(scratch, paths.schema(schema), Database::Journal::WriteAheadLog);
    Maker(database, std::forward<Arguments>(arguments)...).write(source);
    database.checkpoint();
    backup.addFile(domain, path, database.mainFile());
}

void writeCalls(const Paths& paths, BackupWriter& backup)
{
    writeStore<sample::CallHistory>(paths, "CallHistory", "HomeDomain",
        "Library/CallHistoryDB/CallHistory.storedata",
        sample::readJson(paths.sources + "/calls.json"), backup);
}

// One store for each account; that of the phone itself has a name instead of an identifier.
void writeReminders(const Paths& paths, BackupWriter& backup)
{
    const QJsonObject source = sample::readJson(paths.sources + "/reminders.json");
    for (const QJsonValue& account : sample::entriesOf(source["accounts"])) {
        const QString name = account["name"].toString();
        const QString id = name == "Local" ? QString("local") : sample::uuidFor("store " + name);
        writeStore<sample::Reminders>(paths, "Reminders",
            "AppDomainGroup-group.com.apple.reminders",
            "Container_v1/Stores/Data-" + id + ".sqlite", account.toObject(), backup);
    }
}

void writeCalendar(const Paths& paths, BackupWriter& backup)
{
    writeStore<sample::Calendar>(paths, "Calendar", "HomeDomain",
        "Library/Calendar/Calendar.sqlitedb", sample::readJson(paths.sources + "/calendar.json"),
        backup);
}

void writeSafari(const Paths& paths, BackupWriter& backup)
{
    const QJsonObject source = sample::readJson(paths.sources + "/safari.json");
    writeStore<sample::SafariBookmarks>(
        paths, "SafariBookmarks", "HomeDomain", "Library/Safari/Bookmarks.db", source, backup);
    writeStore<sample::SafariHistory>(
        paths, "SafariHistory", "HomeDomain", "Library/Safari/History.db", source, backup);
}

void writeMedia(const Paths& paths, BackupWriter& backup)
{
    const QJsonObject source = sample::readJson(paths.sources + "/media.json");
    writeStore<sample::PhotoLibrary>(paths, "Photos", "CameraRollDomain",
        "Media/PhotoData/Photos.sqlite", source, backup, backup, paths.media());
    writeStore<sample::VoiceMemos>(paths, "CloudRecordings", sample::VoiceMemos::kDomain,
        "Recordings/CloudRecordings.db", source, backup, backup, paths.media());
    writeStore<sample::Voicemail>(
        paths, "Voicemail", "HomeDomain", "Library/Voicemail/voicemail.db", source, backup, backup);
    for (const QJsonValue& file : sample::entriesOf(source["files"])) {
        backup.addFile(file["domain"].toString(), file["path"].toString(),
            sample::media(file["from"].toString(), paths.media()));
    }
}

void writeWeChat(const Paths& paths, BackupWriter& backup)
{
    sample::WeChat(backup,
        {.scratch = paths.scratch, .schemas = paths.sources + "/schema", .media = paths.media()})
        .write(sample::readJson(paths.sources + "/wechat.json"));
}

void writeLine(const Paths& paths, BackupWriter& backup)
{
    const QString messages = sample::LineStore::directory() + "Messages/";
    Database groups(paths.scratch + "/UnifiedGroup.sqlite", paths.schema("LineGroups"),
        Database::Journal::WriteAheadLog);
    Database chats(
        paths.scratch + "/Line.sqlite", paths.schema("Line"), Database::Journal::WriteAheadLog);
    sample::LineStore(chats, groups, backup, paths.media())
        .write(sample::readJson(paths.sources + "/line.json"));
    groups.checkpoint();
    chats.checkpoint();
    backup.addFile(sample::LineStore::kDomain, messages + "UnifiedGroup.sqlite", groups.mainFile());
    backup.addFile(sample::LineStore::kDomain, messages + "Line.sqlite", chats.mainFile());
}

void writeChats(const Paths& paths, BackupWriter& backup)
{
    writeLine(paths, backup);
    writeStore<sample::ViberStore>(paths, "Viber", sample::ViberStore::kDomain,
        "com.viber/database/Contacts.data", sample::readJson(paths.sources + "/viber.json"), backup,
        backup, paths.media());
    writeStore<sample::KikStore>(paths, "Kik", sample::KikStore::kDomain,
        sample::KikStore::directory() + "kik.sqlite", sample::readJson(paths.sources + "/kik.json"),
        backup, backup, paths.media());
}

// The accounts of WhatsApp and of WhatsApp Business, each with the same people.
void writeWhatsApp(const Paths& paths, BackupWriter& backup)
{
    const QJsonObject source = sample::readJson(paths.sources + "/whatsapp.json");
    for (const QJsonValue& account : sample::entriesOf(source["accounts"])) {
        const QString domain = account["domain"].toString();
        Database chats(paths.scratch + "/" + domain + ".chats", paths.schema("ChatStorage"),
            Database::Journal::WriteAheadLog);
        Database contacts(paths.scratch + "/" + domain + ".contacts", paths.schema("ContactsV2"),
            Database::Journal::WriteAheadLog);
        sample::WhatsAppStore(chats, contacts, backup, paths.media())
            .write(account.toObject(), source["people"]);
        chats.checkpoint();
        contacts.checkpoint();
        backup.addFile(domain, "ChatStorage.sqlite", chats.mainFile());
        backup.addFile(domain, "ContactsV2.sqlite", contacts.mainFile());
    }
}

void writeOtherEntries(const QJsonObject& phone, BackupWriter& backup)
{
    for (const QJsonValue& entry : sample::entriesOf(phone["directories"])) {
        backup.addDirectory(entry["domain"].toString(), entry["path"].toString());
    }
    for (const QJsonValue& entry : sample::entriesOf(phone["links"])) {
        backup.addLink(
            entry["domain"].toString(), entry["path"].toString(), entry["target"].toString());
    }
    for (const QJsonValue& entry : sample::entriesOf(phone["propertyLists"])) {
        backup.addFile(entry["domain"].toString(), entry["path"].toString(),
            sample::binaryPlist(entry["content"].toObject().toVariantMap()));
    }
}

// What phone.json says of one of the property lists, with the date of the backup.
QVariantMap propertyList(
    const QJsonObject& phone, const QString& name, const QString& dateKey, qint64 seconds)
{
    QVariantMap values = phone[name].toObject().toVariantMap();
    values[dateKey] = QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC);
    return values;
}

// Only a folder that is a backup, or none yet, is replaced.
void emptyFolder(const QString& path)
{
    QDir folder(path);
    if (folder.exists() && !folder.isEmpty() && !folder.exists("Info.plist")) {
        sample::fail(path + " holds something else than a backup");
    }
    folder.removeRecursively();
    QDir().mkpath(path);
}

void makeBackup(const Paths& paths)
{
    emptyFolder(paths.backup);
    const QJsonObject phone = sample::readJson(paths.sources + "/phone.json");
    const qint64 seconds =
        sample::secondsSince2001(phone["backedUp"].toString()) + sample::kUnixAt2001;
    const QVariantMap info = propertyList(phone, "Info", "Last Backup Date", seconds);
    sample::writeFile(paths.backup + "/Info.plist", sample::xmlPlist(info));
    const QVariantMap manifest = propertyList(phone, "Manifest", "Date", seconds);
    sample::writeFile(paths.backup + "/Manifest.plist", sample::binaryPlist(manifest));

    BackupWriter backup(paths.backup, seconds);
    writeMessages(paths, backup);
    writePeople(paths, backup);
    writeNotes(paths, backup);
    writeCalls(paths, backup);
    writeReminders(paths, backup);
    writeCalendar(paths, backup);
    writeSafari(paths, backup);
    writeMedia(paths, backup);
    writeWeChat(paths, backup);
    writeChats(paths, backup);
    writeWhatsApp(paths, backup);
    writeOtherEntries(phone, backup);
    backup.writeIndex(paths.schema("Manifest"));

    // Last: without it a backup counts as broken off.
    const QVariantMap status = propertyList(phone, "Status", "Date", seconds);
    sample::writeFile(paths.backup + "/Status.plist", sample::binaryPlist(status));
}

} // namespace

int main(int argc, char** argv)
{
    qSetGlobalQHashSeed(0); // the same order in every run
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        sample::fail("usage: make_sample_backup <folder of the sources> <folder of the backup>");
    }
    const QTemporaryDir scratch;
    makeBackup({.sources = arguments[1], .scratch = scratch.path(), .backup = arguments[2]});
    return 0;
}

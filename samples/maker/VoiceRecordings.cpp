// SPDX-License-Identifier: MIT
#include "VoiceRecordings.h"

#include "common.h"
#include "core_data.h"
#include "media.h"
#include "plist_writer.h"
#include "recordings.h"

#include <QHash>
#include <QJsonValue>

namespace sample {

namespace {

enum Entity { RecordingEntity = 1, FolderEntity = 2 };
enum Flags { Heard = 67, Deleted = 75 };
constexpr int kSeconds = 2; // each sound is as long

QVariant moment(const QJsonValue& text)
{
    return text.isString() ? QVariant(secondsSince2001(text.toString())) : QVariant();
}

// An archive of what was understood, and how surely.
QByteArray transcript(const QString& words)
{
    return keyedArchive(
        {QVariantMap{{"$class", uid(3)}, {"transcriptionString", uid(2)}, {"confidence", 0.83}},
            words, keyedClass({"VMVoicemailTranscript", "NSObject"})});
}

} // namespace

VoiceMemos::VoiceMemos(Database& database, BackupWriter& backup, QString media)
    : m_database(database), m_backup(backup), m_media(std::move(media))
{
}

void VoiceMemos::write(const QJsonObject& source)
{
    m_database.run("BEGIN");
    describeStore(
        m_database, "memos", {{RecordingEntity, "CloudRecording"}, {FolderEntity, "Folder"}});
    QHash<QString, qint64> folders;
    for (const QJsonValue& folder : entriesOf(source["memoFolders"])) {
        const QString name = folder.toString();
        folders[name] = m_database.insert(
            "ZFOLDER", {{"Z_ENT", FolderEntity}, {"Z_OPT", 1}, {"ZRANK", folders.size()},
                           {"ZENCRYPTEDNAME", name}, {"ZUUID", uuidFor("folder " + name)}});
    }
    for (const QJsonValue& memo : entriesOf(source["memos"])) {
        writeMemo(memo.toObject(), folders.value(memo["folder"].toString()));
    }
    m_database.run("COMMIT");
}

void VoiceMemos::writeMemo(const QJsonObject& source, qint64 folder)
{
    const QString at = source["at"].toString();
    const QString id = uuidFor("memo " + at);
    const QString from = source["from"].toString();
    // "20240314 194510-5A3F1E0C.caf"
    const QString file =
        QString(at).remove('-').remove(':') + "-" + id.left(8) + "." + from.section('.', -1);
    m_database.insert("ZCLOUDRECORDING",
        {{"Z_ENT", RecordingEntity}, {"Z_OPT", 1},
            {"ZFOLDER", folder != 0 ? QVariant(folder) : QVariant()},
            {"ZDATE", secondsSince2001(at)}, {"ZDURATION", kSeconds},
            {"ZEVICTIONDATE", moment(source["deleted"])}, {"ZCUSTOMLABEL", at},
            {"ZCUSTOMLABELFORSORTING", source["title"].toString()},
            {"ZENCRYPTEDTITLE", source["title"].toString()}, {"ZPATH", file}, {"ZUNIQUEID", id}});
    m_backup.addFile(kDomain, "Recordings/" + file, media(from, m_media));
}

Voicemail::Voicemail(Database& database, BackupWriter& backup)
    : m_database(database), m_backup(backup)
{
}

void Voicemail::write(const QJsonObject& source)
{
    m_database.run("BEGIN");
    for (const QJsonValue& message : entriesOf(source["voicemail"])) {
        const QVariant deleted = moment(message["deleted"]);
        const QString from = message["from"].toString();
        const qint64 row = m_database.insert("voicemail",
            {{"remote_uid", 0}, {"date", secondsSince2001(message["at"].toString()) + kUnixAt2001},
                {"sender", from}, {"callback_num", from}, {"duration", kSeconds}, {"expiration", 0},
                {"trashed_date", deleted.isValid() ? deleted : QVariant(0)},
                {"flags", static_cast<int>(deleted.isValid() ? Deleted : Heard)}});
        const QString base = "Library/Voicemail/" + QString::number(row);
        m_backup.addFile("HomeDomain", base + ".amr", silence());
        const QString words = message["words"].toString();
        if (!words.isEmpty()) {
            m_backup.addFile("HomeDomain", base + ".transcript", transcript(words));
        }
    }
    m_database.run("COMMIT");
}

} // namespace sample

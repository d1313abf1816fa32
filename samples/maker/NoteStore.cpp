// SPDX-License-Identifier: MIT
#include "NoteStore.h"

#include "common.h"
#include "media.h"
#include "pictures.h"

#include <QCryptographicHash>
#include <QImage>
#include <QJsonArray>

#include <algorithm>
#include <array>

namespace sample {

namespace {

constexpr const char* kObjects = "ZICCLOUDSYNCINGOBJECT";
constexpr const char* kDomain = "AppDomainGroup-group.com.apple.notes";
constexpr const char* kInline = "com.apple.notes.inlinetextattachment.hashtag";
constexpr int kPreviewWidth = 384;
constexpr QChar kMark(u'\uFFFC');

// Numbers as a release may have given them.
struct Kind {
    const char* name;
    int number;
    int super;
};
// clang-format off
constexpr std::array kKinds{
    Kind{"ICCloudSyncingObject",     3, 0},
    Kind{"ICAttachment",             5, 3},
    Kind{"ICAttachmentPreviewImage", 6, 3},
    Kind{"ICInlineAttachment",       9, 3},
    Kind{"ICMedia",                 11, 3},
    Kind{"ICNote",                  12, 3},
    Kind{"ICNoteContainer",         13, 3},
    Kind{"ICAccount",               14, 13},
    Kind{"ICFolder",                15, 13},
    Kind{"ICNoteData",              19, 0},
};

struct StyleRow {
    const char* name;
    int style;
};
constexpr std::array kStyles{
    StyleRow{"heading",    1},
    StyleRow{"subheading", 2},
    StyleRow{"monospaced", 4},
    StyleRow{"dots",       100},
    StyleRow{"dashes",     101},
    StyleRow{"numbers",    102},
    StyleRow{"checks",     103},
};

struct TypeRow {
    const char* ending;
    const char* type;
};
constexpr std::array kTypes{
    TypeRow{".jpg",  "public.jpeg"},
    TypeRow{".png",  "public.png"},
    TypeRow{".heic", "public.heic"},
    TypeRow{".pdf",  "com.adobe.pdf"},
    TypeRow{".mov",  "com.apple.quicktime-movie"},
};
// clang-format on

int kindNumber(const QString& name)
{
    return std::ranges::find_if(kKinds, [&](const Kind& kind) {
        return name == kind.name;
    })->number;
}

int styleOf(const QJsonObject& line)
{
    const QString name = line["style"].toString();
    const auto* const row =
        std::ranges::find_if(kStyles, [&](const StyleRow& style) { return name == style.name; });
    return row != kStyles.end() ? row->style : -1;
}

QString typeOf(const QString& fileName)
{
    const auto* const row = std::ranges::find_if(kTypes,
        [&](const TypeRow& type) { return fileName.endsWith(type.ending, Qt::CaseInsensitive); });
    return row != kTypes.end() ? row->type : "public.data";
}

// Bytes that look like encrypted ones.
QByteArray cipher(const QString& name, int size)
{
    QByteArray bytes;
    while (bytes.size() < size) {
        bytes += QCryptographicHash::hash(
            (name + QString::number(bytes.size())).toUtf8(), QCryptographicHash::Sha256);
    }
    return bytes.left(size);
}

std::vector<QStringList> tableRows(const QJsonValue& source)
{
    std::vector<QStringList> rows;
    for (const QJsonValue& row : entriesOf(source)) {
        QStringList cells;
        for (const QJsonValue& cell : entriesOf(row)) {
            cells.append(cell.toString());
        }
        rows.push_back(cells);
    }
    return rows;
}

// What files that change get a directory for.
QString generation(const QString& name)
{
    return "1_" + uuidFor("generation of " + name);
}

} // namespace

NoteStore::NoteStore(Database& database, BackupWriter& backup, QString mediaFolder)
    : m_database(database), m_backup(backup), m_mediaFolder(std::move(mediaFolder))
{
}

void NoteStore::write(const QJsonObject& source)
{
    m_database.run("BEGIN");
    for (const QJsonValue& value : entriesOf(source["accounts"])) {
        const QJsonObject account = value.toObject();
        const QString name = account["name"].toString();
        const bool onPhone = account["onPhone"].toBool();
        const QString identifier = onPhone ? "LocalAccount" : uuidFor("notes account " + name);
        const qint64 row =
            insert("ICAccount", identifier, {{"ZNAME", name}, {"ZACCOUNTTYPE", onPhone ? 3 : 1}});
        m_accountIds[row] = identifier;
        for (const QJsonValue& folder : entriesOf(account["folders"])) {
            writeFolder(folder.toObject(), row, 0);
        }
    }
    for (const QJsonValue& note : entriesOf(source["notes"])) {
        writeNote(note.toObject());
    }
    writeKinds();
    m_database.run("COMMIT");
}

qint64 NoteStore::insert(const char* kind, const QString& identifier, Database::Row row)
{
    row.emplace_back("Z_ENT", kindNumber(kind));
    row.emplace_back("Z_OPT", 1);
    row.emplace_back("ZIDENTIFIER", identifier);
    const qint64 id = m_database.insert(kObjects, row);
    m_highest[kind] = id;
    return id;
}

void NoteStore::writeKinds()
{
    for (const Kind& kind : kKinds) {
        m_database.insert(
            "Z_PRIMARYKEY", {{"Z_ENT", kind.number}, {"Z_NAME", QString(kind.name)},
                                {"Z_SUPER", kind.super}, {"Z_MAX", m_highest.value(kind.name)}});
    }
}

void NoteStore::writeFolder(const QJsonObject& source, qint64 account, qint64 parent)
{
    const QString name = source["name"].toString();
    const bool isTrash = source["trash"].toBool();
    const QString identifier = isTrash ? "TrashFolder-CloudKit" : uuidFor("notes folder " + name);
    Database::Row row{{"ZTITLE2", name}, {"ZFOLDERTYPE", isTrash ? 1 : 0}, {"ZACCOUNT8", account}};
    if (parent != 0) {
        row.emplace_back("ZPARENT", parent);
    }
    const qint64 folder = insert("ICFolder", identifier, row);
    m_folders[name] = {.row = folder, .account = account};
    for (const QJsonValue& inner : entriesOf(source["folders"])) {
        writeFolder(inner.toObject(), account, folder);
    }
}

void NoteStore::writeNote(const QJsonObject& source)
{
    const QString title = source["title"].toString();
    const Place place = m_folders.value(source["folder"].toString());
    const QString created = source["created"].toString();
    m_noteName = "note of " + created;
    m_accountId = m_accountIds.value(place.account);
    m_changed = secondsSince2001(source["changed"].toString(created));
    m_inserted = 0;
    Database::Row row{{"ZTITLE1", title.isEmpty() ? QString() : title},
        {"ZSNIPPET", source["snippet"].toString()}, {"ZFOLDER", place.row},
        {"ZACCOUNT7", place.account}, {"ZCREATIONDATE3", secondsSince2001(created)},
        {"ZMODIFICATIONDATE1", m_changed}, {"ZISPINNED", source["pinned"].toBool() ? 1 : 0},
        {"ZMARKEDFORDELETION", 0}};
    if (source["locked"].toBool()) {
        row.insert(row.end(), {{"ZISPASSWORDPROTECTED", 1}, {"ZCRYPTOITERATIONCOUNT", 20000},
                                  {"ZPASSWORDHINT", source["hint"].toString()},
                                  {"ZCRYPTOSALT", cipher(m_noteName + " salt", 16)},
                                  {"ZCRYPTOTAG", cipher(m_noteName + " tag", 16)},
                                  {"ZCRYPTOWRAPPEDKEY", cipher(m_noteName + " key", 24)}});
    }
    const qint64 note = insert("ICNote", uuidFor(m_noteName), row);
    writeText(note, source);
}

void NoteStore::writeText(qint64 note, const QJsonObject& source)
{
    Database::Row row{{"Z_ENT", kindNumber("ICNoteData")}, {"Z_OPT", 1}, {"ZNOTE", note}};
    if (source["locked"].toBool()) {
        row.emplace_back("ZCRYPTOINITIALIZATIONVECTOR", cipher(m_noteName + " vector", 16));
        row.emplace_back("ZCRYPTOTAG", cipher(m_noteName + " text tag", 16));
        row.emplace_back("ZDATA", cipher(m_noteName, 187));
    } else {
        row.emplace_back("ZDATA", noteBody(stretches(note, source)));
    }
    const qint64 text = m_database.insert("ZICNOTEDATA", row);
    m_highest["ICNoteData"] = text;
    m_database.run(QString("UPDATE ZICCLOUDSYNCINGOBJECT SET ZNOTEDATA = %1 WHERE Z_PK = %2")
                       .arg(text)
                       .arg(note)
                       .toUtf8());
}

std::vector<NoteStretch> NoteStore::stretches(qint64 note, const QJsonObject& source)
{
    std::vector<NoteStretch> all;
    const QString title = source["title"].toString();
    if (!title.isEmpty()) {
        all.push_back({.text = title + "\n", .style = 0});
    }
    for (const QJsonValue& value : entriesOf(source["lines"])) {
        const QJsonObject line = value.toObject();
        NoteStretch stretch{.text = value.isString() ? value.toString() : line["text"].toString(),
            .style = styleOf(line),
            .indent = line["indent"].toInt(),
            .done = line["done"].toBool(),
            .quote = line["quote"].toBool(),
            .weight = line["bold"].toBool() ? 1 : 0,
            .link = line["link"].toString()};
        if (line.contains("tag") || line.contains("file") || line.contains("table")
            || line.contains("drawing") || line.contains("scan") || line.contains("url")) {
            all.push_back(insertion(note, line));
        }
        stretch.text += "\n";
        all.push_back(stretch);
    }
    return all;
}

NoteStretch NoteStore::insertion(qint64 note, const QJsonObject& line)
{
    if (line.contains("tag")) {
        const QString identifier = uuidFor(QString("%1 tag %2").arg(m_noteName).arg(++m_inserted));
        insert("ICInlineAttachment", identifier,
            {{"ZNOTE1", note}, {"ZTYPEUTI1", QString(kInline)},
                {"ZALTTEXT", line["tag"].toString()}});
        return {.text = kMark, .attachment = identifier, .attachmentType = kInline};
    }
    return {.text = kMark, .attachment = attachment(note, line)};
}

// Gives the identifier of what has been made of the line.
QString NoteStore::attachment(qint64 note, const QJsonObject& line)
{
    QString identifier = uuidFor(QString("%1 attachment %2").arg(m_noteName).arg(++m_inserted));
    Database::Row row{{"ZNOTE", note}, {"ZCREATIONDATE", m_changed},
        {"ZMODIFICATIONDATE", m_changed},
        {"ZTITLE", line["title"].toString(line["name"].toString())}};
    if (line.contains("table")) {
        row.emplace_back("ZTYPEUTI", QString("com.apple.notes.table"));
        row.emplace_back("ZMERGEABLEDATA1", noteTable(tableRows(line["table"])));
    } else if (line.contains("url")) {
        row.emplace_back("ZTYPEUTI", QString("public.url"));
        row.emplace_back("ZURLSTRING", line["url"].toString());
    } else if (line.contains("drawing")) {
        row.emplace_back("ZTYPEUTI", QString("com.apple.paper"));
        row.emplace_back("ZFALLBACKIMAGEGENERATION", generation(identifier));
        writeDrawing(identifier, line["drawing"].toString());
    } else if (line.contains("scan")) {
        row.emplace_back("ZTYPEUTI", QString("com.apple.notes.gallery"));
    } else {
        row.emplace_back("ZTYPEUTI", typeOf(line["name"].toString()));
        row.emplace_back("ZMEDIA", writeMedia(line["file"].toString(), line["name"].toString()));
    }
    const qint64 made = insert("ICAttachment", identifier, row);
    writePreview(made, line);
    for (const QJsonValue& page : entriesOf(line["scan"])) {
        const QString name = QString("Scan %1.png").arg(++m_inserted);
        insert("ICAttachment", uuidFor(QString("%1 page %2").arg(m_noteName).arg(m_inserted)),
            {{"ZNOTE", note}, {"ZPARENTATTACHMENT", made}, {"ZTYPEUTI", typeOf(name)},
                {"ZCREATIONDATE", m_changed}, {"ZMEDIA", writeMedia(page.toString(), name)}});
    }
    return identifier;
}

qint64 NoteStore::writeMedia(const QString& made, const QString& name)
{
    const QString identifier = uuidFor(QString("%1 file %2").arg(m_noteName, name));
    const QByteArray bytes = media(made, m_mediaFolder);
    if (!bytes.isEmpty()) { // no encoder for it
        addFile(QString("Media/%1/%2/%3").arg(identifier, generation(identifier), name), bytes);
    }
    return insert("ICMedia", identifier,
        {{"ZFILENAME", name}, {"ZGENERATION1", generation(identifier)},
            {"ZFILESIZE", bytes.size()}});
}

// The phone makes one of all that can be looked at.
void NoteStore::writePreview(qint64 attachment, const QJsonObject& line)
{
    const QString from = line["preview"].toString(line["file"].toString());
    QImage image = from.isEmpty() ? QImage() : QImage::fromData(media(from, m_mediaFolder));
    if (image.isNull()) {
        return;
    }
    if (image.width() > kPreviewWidth) {
        image = image.scaledToWidth(kPreviewWidth, Qt::SmoothTransformation);
    }
    const QString identifier = uuidFor(QString("%1 preview %2").arg(m_noteName).arg(attachment));
    addFile(
        QString("Previews/%1/%2/Preview.png").arg(identifier, generation(identifier)), png(image));
    insert("ICAttachmentPreviewImage", identifier,
        {{"ZATTACHMENT", attachment}, {"ZWIDTH", image.width()}, {"ZHEIGHT", image.height()},
            {"ZSCALE", 1}, {"ZGENERATION", generation(identifier)}});
}

void NoteStore::writeDrawing(const QString& identifier, const QString& made)
{
    addFile(
        QString("FallbackImages/%1/%2/FallbackImage.png").arg(identifier, generation(identifier)),
        media(made, m_mediaFolder));
}

void NoteStore::addFile(const QString& path, const QByteArray& bytes)
{
    m_backup.addFile(
        kDomain, QString("Accounts/%1/%2").arg(m_accountId, path), bytes, m_changed + kUnixAt2001);
}

} // namespace sample

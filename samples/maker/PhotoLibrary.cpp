// SPDX-License-Identifier: MIT
#include "PhotoLibrary.h"

#include "common.h"
#include "core_data.h"
#include "media.h"

#include <QJsonValue>

namespace sample {

namespace {

enum Entity { AttributesEntity = 1, AssetEntity = 3, AlbumEntity = 28 };
enum AlbumKind { OwnersAlbum = 2, SharedAlbum = 1505, RootOfAlbums = 3999 };
enum SavedType { Own = 3, OfSharedAlbum = 4 };
constexpr int kLivePhoto = 2;

} // namespace

PhotoLibrary::PhotoLibrary(Database& database, BackupWriter& backup, QString media)
    : m_database(database), m_backup(backup), m_media(std::move(media))
{
}

void PhotoLibrary::write(const QJsonObject& source)
{
    m_database.run("BEGIN");
    describeStore(m_database, "photos",
        {{AttributesEntity, "AdditionalAssetAttributes"}, {AssetEntity, "Asset"},
            {AlbumEntity, "Album"}});
    m_database.insert("ZGENERICALBUM",
        {{"Z_ENT", AlbumEntity}, {"Z_OPT", 1}, {"ZKIND", static_cast<int>(RootOfAlbums)},
            {"ZTRASHEDSTATE", 0}, {"ZUUID", uuidFor("albums")}});
    for (const QJsonValue& album : entriesOf(source["albums"])) {
        writeAlbum(album.toObject());
    }
    for (const QJsonValue& photo : entriesOf(source["photos"])) {
        writePhoto(photo.toObject());
        writeFiles(photo.toObject());
    }
    m_database.run("COMMIT");
}

void PhotoLibrary::writeAlbum(const QJsonObject& source)
{
    const QString title = source["title"].toString();
    const int kind = source["shared"].toBool() ? SharedAlbum : OwnersAlbum;
    m_albums[title] = m_database.insert("ZGENERICALBUM",
        {{"Z_ENT", AlbumEntity}, {"Z_OPT", 1}, {"ZKIND", kind}, {"ZTRASHEDSTATE", 0},
            {"ZPARENTFOLDER", 1}, {"ZTITLE", title}, {"ZUUID", uuidFor("album " + title)}});
}

void PhotoLibrary::writePhoto(const QJsonObject& source)
{
    const QString file = source["file"].toString();
    const qint64 created = secondsSince2001(source["at"].toString());
    const QString trashed = source["trashed"].toString();
    const int subtype = source.contains("film") ? kLivePhoto : source["subtype"].toInt();
    const bool isShared = file.contains("PhotoCloudSharingData");
    ++m_photos;
    const qint64 asset = m_database.insert("ZASSET",
        {{"Z_ENT", AssetEntity}, {"Z_OPT", 1}, {"ZFAVORITE", source["favourite"].toBool() ? 1 : 0},
            {"ZHASADJUSTMENTS", source.contains("edited") ? 1 : 0},
            {"ZHIDDEN", source["hidden"].toBool() ? 1 : 0},
            {"ZKIND", file.endsWith(".MOV") ? 1 : 0}, {"ZKINDSUBTYPE", subtype},
            {"ZSAVEDASSETTYPE", static_cast<int>(isShared ? OfSharedAlbum : Own)},
            {"ZTRASHEDSTATE", trashed.isEmpty() ? 0 : 1}, {"ZVISIBILITYSTATE", 0},
            {"ZADDITIONALATTRIBUTES", m_photos}, {"ZADDEDDATE", created}, {"ZDATECREATED", created},
            {"ZTRASHEDDATE", trashed.isEmpty() ? QVariant() : QVariant(secondsSince2001(trashed))},
            {"ZDIRECTORY", file.section('/', 0, -2)}, {"ZFILENAME", file.section('/', -1)},
            {"ZUUID", uuidFor("photo " + file)}});
    m_database.insert("ZADDITIONALASSETATTRIBUTES",
        {{"Z_ENT", AttributesEntity}, {"Z_OPT", 1}, {"ZASSET", asset},
            {"ZORIGINALFILENAME", source["original"].toString(file.section('/', -1))}});
    for (const QJsonValue& album : entriesOf(source["albums"])) {
        m_database.insert(
            "Z_28ASSETS", {{"Z_28ALBUMS", m_albums.value(album.toString())}, {"Z_3ASSETS", asset},
                              {"Z_FOK_3ASSETS", m_photos * 1024}});
    }
}

void PhotoLibrary::writeFiles(const QJsonObject& source)
{
    const QString file = source["file"].toString();
    const QString base = file.section('.', 0, -2);
    writeFile(file, source["from"].toString());
    writeFile(base + ".MOV", source["film"].toString());
    writeFile("PhotoData/Mutations/" + base + "/Adjustments/FullSizeRender.jpg",
        source["edited"].toString());
    writeFile("PhotoData/Thumbnails/V2/" + file + "/5005.JPG", source["preview"].toString());
}

// Nothing where the source says nothing, and where the machine cannot make it.
void PhotoLibrary::writeFile(const QString& path, const QString& from)
{
    const QByteArray bytes = from.isEmpty() ? QByteArray() : media(from, m_media);
    if (!bytes.isEmpty()) {
        m_backup.addFile("CameraRollDomain", "Media/" + path, bytes);
    }
}

} // namespace sample

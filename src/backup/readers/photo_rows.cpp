// SPDX-License-Identifier: MIT
//   ZASSET, ZGENERICASSET (iOS 13 and older)   a picture or film: place, kind, dates, states
//   ZADDITIONALASSETATTRIBUTES                 ZASSET, ZORIGINALFILENAME
//   ZGENERICALBUM                              ZTITLE, ZKIND: 2 the owner's, 1505 shared
//   Z_<n>ASSETS                                Z_<n>ALBUMS, Z_<m>ASSETS; n and m as the release has
//   it
#include "backup/readers/photo_rows.h"

#include "backup/readers/core_data.h"
#include "platform/literals.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <array>
#include <utility>

namespace backup {

namespace {

constexpr QLatin1String kAssets = "ZASSET"_L1;
constexpr QLatin1String kOldAssets = "ZGENERICASSET"_L1;
constexpr QLatin1String kAttributes = "ZADDITIONALASSETATTRIBUTES"_L1;
constexpr QLatin1String kAlbums = "ZGENERICALBUM"_L1;

constexpr qint64 kFilm = 1;
constexpr qint64 kOfSharedAlbum = 4; // ZSAVEDASSETTYPE
enum AlbumKind : int { OwnersAlbum = 2, SharedAlbum = 1505 };

enum AssetColumn : int {
    Id,
    Directory,
    FileName,
    Kind,
    Subtype,
    Created,
    Trashed,
    Hidden,
    Favourite,
    Visibility,
    SavedType,
};

const std::array kAssetColumns{
    WantedColumn{.name = QStringLiteral("Z_PK"), .needed = true},
    WantedColumn{.name = QStringLiteral("ZDIRECTORY"), .needed = true},
    WantedColumn{.name = QStringLiteral("ZFILENAME"), .needed = true},
    WantedColumn{.name = QStringLiteral("ZKIND"), .needed = true},
    WantedColumn{.name = QStringLiteral("ZKINDSUBTYPE")},
    WantedColumn{.name = QStringLiteral("ZDATECREATED"), .needed = true},
    WantedColumn{.name = QStringLiteral("ZTRASHEDSTATE")},
    WantedColumn{.name = QStringLiteral("ZHIDDEN")},
    WantedColumn{.name = QStringLiteral("ZFAVORITE")},
    WantedColumn{.name = QStringLiteral("ZVISIBILITYSTATE")},
    WantedColumn{.name = QStringLiteral("ZSAVEDASSETTYPE")},
};

using TextById = QHash<qint64, QString>;

// "DCIM/100APPLE" for "/var/mobile/Media/DCIM/100APPLE/" as well.
QString belowMedia(QString directory)
{
    constexpr auto media = "/Media/"_L1;
    const int at = directory.startsWith(QChar(u'/')) ? directory.indexOf(media) : -1;
    if (at >= 0) {
        directory.remove(0, at + media.size());
    }
    while (directory.endsWith(QChar(u'/'))) {
        directory.chop(1);
    }
    return directory;
}

Photo photoOf(const formats::Statement& row)
{
    Photo photo{.id = row.integer(Id),
        .directory = belowMedia(row.text(Directory)),
        .fileName = row.text(FileName),
        .originalName = {},
        .created = cocoaDate(row, Created),
        .albums = {},
        .subtype = static_cast<int>(row.integer(Subtype)),
        .isFilm = row.integer(Kind) == kFilm,
        .isTrashed = row.integer(Trashed) != 0,
        .isHidden = row.integer(Hidden) != 0,
        .isFavourite = row.integer(Favourite) != 0};
    photo.isShared = row.integer(SavedType) == kOfSharedAlbum || isSharedDirectory(photo.directory);
    // Those of shared albums are invisible among the owner's.
    photo.isShown = row.integer(Visibility) == 0 || photo.isShared;
    return photo;
}

TextById readOriginalNames(const TableReader& tables)
{
    TextById names;
    if (!tables.database().hasTable(kAttributes)) {
        return names;
    }
    const std::array columns{WantedColumn{.name = QStringLiteral("ZASSET"), .needed = true},
        WantedColumn{.name = QStringLiteral("ZORIGINALFILENAME")}};
    tables.read(kAttributes, columns, [&](const formats::Statement& row) {
        if (!row.isNull(1)) {
            names.insert(row.integer(0), row.text(1));
        }
    });
    return names;
}

/// Titles of the albums of one kind, without those in the trash.
TextById readAlbumTitles(const TableReader& tables, AlbumKind kind)
{
    TextById titles;
    const std::array columns{WantedColumn{.name = QStringLiteral("Z_PK"), .needed = true},
        WantedColumn{.name = QStringLiteral("ZTITLE"), .needed = true},
        WantedColumn{.name = QStringLiteral("ZKIND"), .needed = true},
        WantedColumn{.name = QStringLiteral("ZTRASHEDSTATE")}};
    tables.read(kAlbums, columns, [&](const formats::Statement& row) {
        const QString title = row.text(1);
        if (row.integer(2) == kind && row.integer(3) == 0 && !title.isEmpty()) {
            titles.insert(row.integer(0), title);
        }
    });
    return titles;
}

/// The table that puts pictures into albums.
struct AlbumJoin {
    QString table;
    QString album; ///< columns
    QString asset;
};

AlbumJoin albumJoin(const formats::Database& database)
{
    static const QRegularExpression joins(QStringLiteral("\\AZ_\\d+ASSETS\\z"));
    const QStringList tables = database.tables().filter(joins);
    for (const QString& table : tables) {
        const TableColumns columns(database, table);
        const QStringList albums = columns.matching(QStringLiteral("Z_\\d+ALBUMS"));
        const QStringList assets = columns.matching(QStringLiteral("Z_\\d+ASSETS"));
        if (albums.size() == 1 && assets.size() == 1) {
            return {.table = table, .album = albums.first(), .asset = assets.first()};
        }
    }
    return {};
}

/// Rows of the joining table, in their order.
using AlbumsOfAssets = QHash<qint64, std::vector<qint64>>;

AlbumsOfAssets readAlbumsOfAssets(const TableReader& tables)
{
    AlbumsOfAssets albums;
    const AlbumJoin join = albumJoin(tables.database());
    if (join.table.isEmpty()) {
        return albums;
    }
    const std::array columns{WantedColumn{.name = join.asset}, WantedColumn{.name = join.album}};
    tables.read(join.table, columns,
        [&](const formats::Statement& row) { albums[row.integer(0)].push_back(row.integer(1)); });
    return albums;
}

/// Which albums a picture is in.
class Albums {
public:
    explicit Albums(const TableReader& tables)
    {
        if (tables.database().hasTable(kAlbums)) {
            m_owners = readAlbumTitles(tables, OwnersAlbum);
            m_shared = readAlbumTitles(tables, SharedAlbum);
            m_ofAssets = readAlbumsOfAssets(tables);
        }
    }

    /// Their titles, the oldest album first.
    QStringList of(const Photo& photo) const
    {
        std::vector<qint64> ids = m_ofAssets.value(photo.id);
        std::ranges::sort(ids);
        const TextById& known = photo.isShared ? m_shared : m_owners;
        QStringList titles;
        for (const qint64 id : ids) {
            const QString title = known.value(id);
            if (!title.isEmpty() && !titles.contains(title)) {
                titles.append(title);
            }
        }
        return titles;
    }

private:
    TextById m_owners;
    TextById m_shared;
    AlbumsOfAssets m_ofAssets;
};

QLatin1String assetTable(const formats::Database& database)
{
    return database.hasTable(kAssets) ? kAssets : kOldAssets;
}

} // namespace

bool isPhotoLibrary(const formats::Database& database)
{
    const QStringList columns = database.columns(assetTable(database));
    return columns.contains("ZDIRECTORY"_L1) && columns.contains("ZFILENAME"_L1);
}

bool isSharedDirectory(const QString& directory)
{
    return directory.startsWith("PhotoData/PhotoCloudSharingData"_L1);
}

std::vector<Photo> readPhotos(const TableReader& tables)
{
    const TextById names = readOriginalNames(tables);
    const Albums albums(tables);
    std::vector<Photo> photos;
    QSet<QString> directories; // one copy of each, shared by a hundred thousand photos
    tables.read(assetTable(tables.database()), kAssetColumns, [&](const formats::Statement& row) {
        Photo photo = photoOf(row);
        photo.directory = *directories.insert(photo.directory);
        photo.originalName = names.value(photo.id);
        photo.albums = albums.of(photo);
        photos.push_back(std::move(photo));
    });
    return photos;
}

} // namespace backup

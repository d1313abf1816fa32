// SPDX-License-Identifier: MIT
//   Name                 | Albums        | Date             | Type       | Marks
//   IMG_0001.HEIC        | Norway, Boats | 2024-05-01 12:30 | Live Photo | Favourite
//   IMG_0001.MOV         | Norway, Boats | 2024-05-01 12:30 | Live Photo | Favourite
//   IMG_0002 (edited).jpg|               | 2024-05-01 12:31 | Photo      | Edited
#include "backup/readers/PhotoLibrary.h"

#include "backup/container/Notices.h"
#include "backup/readers/PhotoFiles.h"
#include "backup/readers/media_kind.h"
#include "backup/readers/photo_rows.h"
#include "platform/CCommonUtils.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <utility>

namespace backup {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

// clang-format off
struct SubtypeRow {
    int subtype = 0;
    const char* name = nullptr;
};
constexpr std::array kSubtypes{
    SubtypeRow{Photo::Panorama,   QT_TRANSLATE_NOOP("DataExport", "Panorama")},
    SubtypeRow{Photo::Live,       QT_TRANSLATE_NOOP("DataExport", "Live Photo")},
    SubtypeRow{Photo::Screenshot, QT_TRANSLATE_NOOP("DataExport", "Screenshot")},
    SubtypeRow{Photo::SlowMotion, QT_TRANSLATE_NOOP("DataExport", "Slow motion")},
    SubtypeRow{Photo::TimeLapse,  QT_TRANSLATE_NOOP("DataExport", "Time-lapse")},
};
// Endings that say the same.
constexpr std::array kSameEndings{
    std::pair{"jpg"_L1, "jpeg"_L1},
    std::pair{"tif"_L1, "tiff"_L1},
};
constexpr std::array kLiveFilms{".MOV"_L1, ".mov"_L1};
// clang-format on

QString typeText(const Photo& photo)
{
    const auto* const row = std::ranges::find(kSubtypes, photo.subtype, &SubtypeRow::subtype);
    if (row != kSubtypes.end()) {
        return tr(row->name);
    }
    return photo.isFilm ? tr("Video") : tr("Photo");
}

QString marksText(const Photo& photo, bool isEdited)
{
    QStringList marks;
    if (photo.isFavourite) {
        marks.append(tr("Favourite"));
    }
    if (photo.isHidden) {
        marks.append(tr("Hidden"));
    }
    if (isEdited) {
        marks.append(tr("Edited"));
    }
    return marks.join(", "_L1);
}

QString mediaPath(const Photo& photo)
{
    return "Media/"_L1 + photo.directory + QChar(u'/') + photo.fileName;
}

bool isSameEnding(const QString& one, const QString& other)
{
    return one == other || std::ranges::any_of(kSameEndings, [&](const auto& pair) {
        return (one == pair.first && other == pair.second)
               || (one == pair.second && other == pair.first);
    });
}

// A name that could be a file's: neither empty nor a directory's.
bool isName(const QString& text)
{
    return !text.isEmpty() && text != "."_L1 && text != ".."_L1;
}

// As it was called where it came from, with an ending that fits what lies on the phone.
QString shownName(const Photo& photo)
{
    const QString original = lastPart(photo.originalName);
    if (!isName(original)) {
        return photo.fileName;
    }
    const QFileInfo name(original);
    const QString ending = QFileInfo(photo.fileName).suffix();
    return ending.isEmpty() || isSameEnding(name.suffix().toLower(), ending.toLower())
               ? original
               : name.completeBaseName() + QChar(u'.') + ending;
}

QString withEnding(const QString& name, const QString& ending)
{
    return QFileInfo(name).completeBaseName() + QChar(u'.') + ending;
}

QString parentOf(const Photo& photo)
{
    return directoryName(photo.albums.isEmpty() ? lastPart(photo.directory) : photo.albums.first());
}

class PhotoItem final : public DeviceFileItem {
public:
    using DeviceFileItem::DeviceFileItem;

    QString thumbnail() const override
    {
        const QString preview = PhotoFiles::previewOf(files(), place().path);
        return preview.isEmpty() ? QString() : files().locate(place().domain, preview);
    }
};

/// Makes the records of all photos, and counts what the backup lacks.
class Listing {
public:
    using Lists = std::array<RecordList, 3>;

    Listing(const FileLocator& locator, PhotoFiles& files, Lists& lists)
        : m_locator(locator), m_files(files), m_lists(lists)
    {
    }

    // The originals of all of them are taken first: a film with a row of its own is no Live
    // Photo's.
    void add(const std::vector<Photo>& photos)
    {
        std::vector<DeviceFile> originals;
        originals.reserve(photos.size());
        for (const Photo& photo : photos) {
            originals.push_back(m_files.take(mediaPath(photo)));
        }
        for (std::size_t i = 0; i < photos.size(); ++i) {
            add(photos[i], originals[i]);
        }
    }

    void tell(Notices& notices) const
    {
        if (m_previews > 0) {
            notices.add(tr("Photos and videos of which the backup has small previews only: %1")
                            .arg(m_previews));
        }
        if (m_missing > 0) {
            notices.add(tr("Photos and videos of the library that are not in the backup: %1")
                            .arg(m_missing));
        }
    }

private:
    void add(const Photo& photo, const DeviceFile& original)
    {
        const std::vector<DeviceFile> edited =
            m_files.editedVersions(photo.directory, photo.fileName);
        const QString name = shownName(photo);
        for (const DeviceFile& version : edited) {
            const QString base = QFileInfo(name).completeBaseName();
            addFile(photo,
                tr("%1 (edited)").arg(base) + QChar(u'.') + QFileInfo(version.path).suffix(),
                version, true);
        }
        if (!original.path.isEmpty()) {
            addFile(photo, name, original, false);
            addLiveFilm(photo, name);
        } else if (edited.empty()) {
            addWithoutOriginal(photo, name);
        }
    }

    // Beside its picture, not among the videos: the phone shows the two as one.
    void addLiveFilm(const Photo& photo, const QString& name)
    {
        if (photo.isFilm || photo.subtype != Photo::Live) {
            return;
        }
        const QString directory = "Media/"_L1 + photo.directory + QChar(u'/');
        const QString base = QFileInfo(photo.fileName).completeBaseName();
        for (const QLatin1String ending : kLiveFilms) {
            const DeviceFile film = m_files.takeUntaken(directory + base + ending);
            if (!film.path.isEmpty()) {
                addFile(photo, QFileInfo(name).completeBaseName() + ending, film, false);
            }
        }
    }

    // Where only its preview is on the phone, that is what can be had.
    void addWithoutOriginal(const Photo& photo, const QString& name)
    {
        const QString preview = PhotoFiles::previewOf(m_locator, mediaPath(photo));
        if (!preview.isEmpty()) {
            ++m_previews;
            addFile(photo, withEnding(name, QFileInfo(preview).suffix().toLower()),
                {.domain = QStringLiteral("CameraRollDomain"), .path = preview}, false);
        } else if (photo.isShown) {
            ++m_missing;
            addFile(photo, name, {}, false);
        }
    }

    void addFile(const Photo& photo, const QString& name, DeviceFile file, bool isEdited)
    {
        Record record{.values = {name, photo.albums.join(", "_L1),
                          CCommonUtils::datetimeToMinute(photo.created, true), typeText(photo),
                          marksText(photo, isEdited)},
            .flags = photo.isTrashed ? Deleted : 0,
            .parent = parentOf(photo)};
        FileContent content;
        content.detailDate = isoDate(photo.created);
        listOf(photo).push_back(std::make_unique<PhotoItem>(
            std::move(record), std::move(content), std::move(file), m_locator));
    }

    RecordList& listOf(const Photo& photo)
    {
        const int dataType = photo.isShared ? PhotoLibrary::kShared
                             : photo.isFilm ? PhotoLibrary::kVideos
                                            : PhotoLibrary::kPhotos;
        return m_lists.at(static_cast<std::size_t>(dataType - PhotoLibrary::kPhotos));
    }

    const FileLocator& m_locator;
    PhotoFiles& m_files;
    Lists& m_lists;
    int m_previews = 0;
    int m_missing = 0;
};

// What a file without a row is. None for what is neither a picture nor a film.
std::optional<Photo> photoOfFile(const QString& path)
{
    const QString fileName = lastPart(path);
    const MediaKind kind = mediaKindOf(fileName);
    const bool isFilm = kind == MediaKind::Film;
    if ((!isFilm && kind != MediaKind::Picture) || fileName.startsWith(QChar(u'.'))) {
        return std::nullopt;
    }
    constexpr int media = 6; // "Media/"
    Photo photo;
    photo.fileName = fileName;
    photo.directory = path.mid(media, path.size() - media - fileName.size() - 1);
    photo.isFilm = isFilm;
    photo.isShared = isSharedDirectory(photo.directory);
    return photo;
}

std::vector<Photo> photosOfFiles(const QStringList& paths)
{
    std::vector<Photo> photos;
    for (const QString& path : paths) {
        if (auto photo = photoOfFile(path)) {
            photos.push_back(std::move(*photo));
        }
    }
    return photos;
}

QString withoutEnding(const Photo& photo)
{
    return photo.directory + QChar(u'/') + QFileInfo(photo.fileName).completeBaseName();
}

bool canBeOfLivePhoto(const Photo& photo)
{
    return std::ranges::any_of(
        kLiveFilms, [&](QLatin1String ending) { return photo.fileName.endsWith(ending); });
}

// Among files without rows a picture with a film of its name is a Live Photo.
void joinLivePhotos(std::vector<Photo>& photos)
{
    QSet<QString> films;
    for (const Photo& photo : photos) {
        if (canBeOfLivePhoto(photo)) {
            films.insert(withoutEnding(photo));
        }
    }
    QSet<QString> joined;
    for (Photo& photo : photos) {
        if (!photo.isFilm && films.contains(withoutEnding(photo))) {
            photo.subtype = Photo::Live;
            joined.insert(withoutEnding(photo));
        }
    }
    std::erase_if(photos, [&](const Photo& photo) {
        return canBeOfLivePhoto(photo) && joined.contains(withoutEnding(photo));
    });
}

std::vector<Photo> photosOf(const NamedDatabase& library, Notices& notices)
{
    std::vector<Photo> photos =
        readPhotos(TableReader(library.opened.database, library.name, notices));
    std::ranges::stable_sort(
        photos, std::less(), [](const Photo& photo) { return dateOrder(photo.created); });
    return photos;
}

} // namespace

PhotoLibrary::PhotoLibrary(
    std::optional<NamedDatabase> database, const FileLocator& files, Notices& notices)
    : m_database(std::move(database)), m_files(files), m_notices(notices)
{
}

bool PhotoLibrary::hasFiles(const FileLocator& files)
{
    return !photosOfFiles(PhotoFiles(files).leftOver()).empty();
}

std::unique_ptr<PRData> PhotoLibrary::data(int dataType)
{
    return std::make_unique<ListedData>(dataType,
        QStringList{tr("Name"), tr("Albums"), tr("Date"), tr("Type"), tr("Marks")},
        [this, dataType] { return take(dataType); });
}

void PhotoLibrary::list()
{
    PhotoFiles files(m_files);
    Listing listing(m_files, files, m_lists);
    if (m_database) {
        listing.add(photosOf(*m_database, m_notices));
        m_database.reset();
    }
    // Files that the library does not know, or all where there is none.
    std::vector<Photo> others = photosOfFiles(files.leftOver());
    joinLivePhotos(others);
    listing.add(others);
    listing.tell(m_notices);
}

RecordList PhotoLibrary::take(int dataType)
{
    if (!m_isListed) {
        m_isListed = true;
        list();
    }
    return std::move(m_lists.at(static_cast<std::size_t>(dataType - kPhotos)));
}

} // namespace backup

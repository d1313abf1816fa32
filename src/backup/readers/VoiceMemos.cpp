// SPDX-License-Identifier: MIT
//   Name        | Folder | Date             | Duration
//   Choir.m4a   | Music  | 2024-05-01 12:30 | 0:05:12
//
//   ZCLOUDRECORDING (iOS 12 and later)  ZENCRYPTEDTITLE, ZCUSTOMLABELFORSORTING, ZCUSTOMLABEL,
//   ZDATE,
//                                       ZDURATION, ZPATH, ZEVICTIONDATE, ZFOLDER -> ZFOLDER.Z_PK
//   ZRECORDING (older)                  ZCUSTOMLABEL, ZDATE, ZDURATION, ZPATH
#include "backup/readers/VoiceMemos.h"

#include "backup/container/Notices.h"
#include "backup/readers/DeviceFileItem.h"
#include "backup/readers/table_reader.h"
#include "platform/CCommonUtils.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>
#include <QSet>

#include <algorithm>
#include <array>
#include <utility>

namespace backup {

namespace {

constexpr QLatin1String kRecordings = "ZCLOUDRECORDING"_L1;
constexpr QLatin1String kOldRecordings = "ZRECORDING"_L1;
constexpr QLatin1String kFolders = "ZFOLDER"_L1;
constexpr std::array kEndings{".m4a"_L1, ".qta"_L1, ".caf"_L1};

struct Place {
    QLatin1String domain;
    QLatin1String directory;
};
constexpr std::array kPlaces{
    Place{"AppDomainGroup-group.com.apple.VoiceMemos.shared"_L1, "Recordings"_L1},
    Place{"MediaDomain"_L1, "Media/Recordings"_L1},
};

enum Column : int { Title, Date, Duration, Path, Eviction, FolderId };
const std::array kColumns{
    WantedColumn{.name = QStringLiteral("ZENCRYPTEDTITLE|ZCUSTOMLABELFORSORTING|ZCUSTOMLABEL")},
    WantedColumn{.name = QStringLiteral("ZDATE"), .needed = true},
    WantedColumn{.name = QStringLiteral("ZDURATION")},
    WantedColumn{.name = QStringLiteral("ZPATH"), .needed = true},
    WantedColumn{.name = QStringLiteral("ZEVICTIONDATE")},
    WantedColumn{.name = QStringLiteral("ZFOLDER")},
};

struct Memo {
    QString title;
    QString fileName;
    QString folder;
    QDateTime date;
    double seconds = 0;
    bool isDeleted = false;
};

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

bool isRecording(const QString& path)
{
    // What lies in a directory of an edited recording are its pieces.
    return !path.contains(".composition/"_L1)
           && std::ranges::any_of(kEndings,
               [&](QLatin1String ending) { return path.endsWith(ending, Qt::CaseInsensitive); });
}

/// The recordings of the backup by their names.
using FilesByName = QHash<QString, DeviceFile>;

QStringList recordingsIn(const FileLocator& files, const Place& place)
{
    QStringList paths = files.filesBelow(place.domain, place.directory);
    paths.erase(std::remove_if(paths.begin(), paths.end(),
                    [](const QString& path) { return !isRecording(path); }),
        paths.end());
    return paths;
}

// Of two with one name that of the first place.
FilesByName filesByName(const FileLocator& files)
{
    FilesByName found;
    for (const Place& place : kPlaces) {
        const QStringList paths = recordingsIn(files, place);
        for (const QString& path : paths) {
            const QString name = lastPart(path);
            found.insert(name, found.value(name, {.domain = place.domain, .path = path}));
        }
    }
    return found;
}

QHash<qint64, QString> readFolders(const TableReader& tables)
{
    QHash<qint64, QString> folders;
    if (tables.database().hasTable(kFolders)) {
        const std::array columns{WantedColumn{.name = QStringLiteral("Z_PK"), .needed = true},
            WantedColumn{.name = QStringLiteral("ZENCRYPTEDNAME")}};
        tables.read(kFolders, columns,
            [&](const formats::Statement& row) { folders.insert(row.integer(0), row.text(1)); });
    }
    return folders;
}

void readMemos(const TableReader& tables, std::vector<Memo>& memos)
{
    const QHash<qint64, QString> folders = readFolders(tables);
    const QLatin1String table =
        tables.database().hasTable(kRecordings) ? kRecordings : kOldRecordings;
    tables.read(table, kColumns, [&](const formats::Statement& row) {
        QString name = lastPart(row.text(Path));
        if (name.isEmpty()) {
            return; // nothing was recorded, or it is in iCloud
        }
        memos.push_back({.title = row.text(Title),
            .fileName = std::move(name),
            .folder = folders.value(row.integer(FolderId)),
            .date = cocoaDate(row, Date),
            .seconds = row.real(Duration),
            .isDeleted = !row.isNull(Eviction)});
    });
}

// Two databases may know one recording; the first one has more to say.
std::vector<Memo> memosOf(const std::vector<NamedDatabase>& databases, Notices& notices)
{
    std::vector<Memo> memos;
    for (const NamedDatabase& store : databases) {
        readMemos(TableReader(store.opened.database, store.name, notices), memos);
    }
    QSet<QString> known;
    std::erase_if(memos, [&](const Memo& memo) {
        const bool isKnown = known.contains(memo.fileName);
        known.insert(memo.fileName);
        return isKnown;
    });
    return memos;
}

void addWithoutRows(const FilesByName& files, std::vector<Memo>& memos)
{
    QSet<QString> known;
    for (const Memo& memo : memos) {
        known.insert(memo.fileName);
    }
    QStringList names = files.keys();
    names.sort();
    for (const QString& name : std::as_const(names)) {
        if (!known.contains(name)) {
            memos.push_back({.title = {}, .fileName = name, .folder = {}, .date = {}});
        }
    }
}

// "Choir.m4a"
QString shownName(const Memo& memo)
{
    const QString title = memo.title.trimmed();
    const QString ending = QFileInfo(memo.fileName).suffix();
    if (title.isEmpty() || ending.isEmpty()) {
        return title.isEmpty() ? memo.fileName : title;
    }
    return title + QChar(u'.') + ending;
}

std::unique_ptr<PRAbstractItem> record(
    const Memo& memo, const DeviceFile& file, const FileLocator& files)
{
    Record record{
        .values = {shownName(memo), memo.folder, CCommonUtils::datetimeToMinute(memo.date, true),
            recordingLength(memo.seconds)},
        .flags = memo.isDeleted ? Deleted : 0};
    if (!memo.folder.isEmpty()) {
        record.parent = directoryName(memo.folder);
    }
    FileContent content;
    content.detailDate = isoDate(memo.date);
    return std::make_unique<DeviceFileItem>(std::move(record), std::move(content), file, files);
}

} // namespace

VoiceMemos::VoiceMemos(const FileLocator& files, Notices& notices)
    : LazyData(kDataType, {tr("Name"), tr("Folder"), tr("Date"), tr("Duration")}, notices),
      m_files(files)
{
}

bool VoiceMemos::isRecordings(const formats::Database& database)
{
    return database.hasTable(kRecordings) || database.hasTable(kOldRecordings);
}

bool VoiceMemos::hasFiles(const FileLocator& files)
{
    return !filesByName(files).isEmpty();
}

RecordList VoiceMemos::read(const std::vector<NamedDatabase>& databases, Notices& notices) const
{
    const FilesByName files = filesByName(m_files);
    std::vector<Memo> memos = memosOf(databases, notices);
    addWithoutRows(files, memos);
    std::ranges::stable_sort(
        memos, std::less(), [](const Memo& memo) { return dateOrder(memo.date); });
    RecordList records;
    int missing = 0;
    for (const Memo& memo : memos) {
        DeviceFile file = files.value(memo.fileName);
        if (file.path.isEmpty()) {
            // Beside a loose database, or in a directory of an edited recording.
            const Place& place = kPlaces.back();
            file = {place.domain, QString(place.directory) + QChar(u'/') + memo.fileName};
            missing += m_files.locate(file.domain, file.path).isEmpty() ? 1 : 0;
        }
        records.push_back(record(memo, file, m_files));
    }
    if (missing > 0) {
        notices.add(tr("Recordings that are not in the backup: %1").arg(missing));
    }
    return records;
}

} // namespace backup

// SPDX-License-Identifier: MIT
//   Title          Folder          Created           Modified          Content
//   Packing list   Travel / Norway 2024-04-30 18:02  2024-05-01 12:30  Rope, lamp, tea
#include "backup/readers/note_data.h"

#include "backup/readers/DeviceFileItem.h"
#include "formats/cocoa_values.h"
#include "model/PRFileItem.h"
#include "platform/CCommonUtils.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>

namespace backup {

namespace {

constexpr int kNotes = 27;
constexpr int kNoteFiles = 28;
constexpr int kContentColumn = 4;

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

/// Where a note stands.
struct NotePlace {
    NoteSource* store = nullptr;
    std::size_t index = 0;

    const NoteEntry& entry() const { return store->notes()[index]; }
};

class StoredNote final : public PRNoteItem {
public:
    StoredNote(Record record, NotePlace place) : PRNoteItem(std::move(record)), m_place(place) {}

    QString value(int column) const override
    {
        return column == kContentColumn ? m_place.store->content(m_place.index).text
                                        : PRNoteItem::value(column);
    }

    const QList<NotePiece*>& notePieces() const override
    {
        return m_place.store->shown(m_place.index).notePieces();
    }

    std::vector<NotePiece> contents() const override
    {
        return m_place.store->content(m_place.index).pieces;
    }

private:
    NotePlace m_place;
};

class StoredNoteFile final : public PRFileItem {
public:
    StoredNoteFile(Record record, FileContent content, NoteFile file)
        : PRFileItem(std::move(record), std::move(content)), m_file(std::move(file))
    {
    }

    QString filePath() const override
    {
        return m_isReplaced ? PRFileItem::filePath() : m_file.path();
    }
    QString thumbFilePath() const override { return m_file.preview(); }

    void setFilePath(const QString& path) override
    {
        m_isReplaced = true;
        PRFileItem::setFilePath(path);
    }

private:
    NoteFile m_file;
    bool m_isReplaced = false;
};

std::vector<NotePlace> newestFirst(const std::vector<NoteSource*>& stores)
{
    std::vector<NotePlace> places;
    for (NoteSource* store : stores) {
        for (std::size_t index = 0; index < store->notes().size(); ++index) {
            places.push_back({store, index});
        }
    }
    std::ranges::stable_sort(places, std::ranges::greater(),
        [](const NotePlace& place) { return place.entry().changed(); });
    return places;
}

QString minute(double secondsSince2001)
{
    return secondsSince2001 == 0 ? QString()
                                 : CCommonUtils::datetimeToMinute(
                                     formats::dateFromCocoaSeconds(secondsSince2001), true);
}

// The account tells folders apart where there are several.
QString folderName(const NoteEntry& note, bool withAccount)
{
    return withAccount && !note.account.isEmpty() && !note.folder.isEmpty()
               ? note.account + " / "_L1 + note.folder
               : note.folder;
}

int flagsOf(const NoteEntry& note)
{
    return (note.deleted ? Deleted : 0) | (note.locked ? Locked : 0);
}

/// The list of files, made when it is first asked for.
class NoteFileData final : public PRData {
public:
    explicit NoteFileData(std::vector<NoteSource*> stores)
        : PRData(kNoteFiles), m_stores(std::move(stores))
    {
    }

protected:
    const RecordList& records() const override
    {
        if (!m_isLoaded) {
            m_isLoaded = true;
            for (NoteSource* store : m_stores) {
                add(*store);
            }
        }
        return m_loaded;
    }

private:
    void add(NoteSource& store) const
    {
        std::vector<NoteFile> files = store.files();
        const auto changed = [&](const NoteFile& file) {
            return file.note ? store.notes()[*file.note].changed() : 0;
        };
        std::ranges::stable_sort(files, std::ranges::greater(), changed);
        for (NoteFile& file : files) {
            const NoteEntry note = file.note ? store.notes()[*file.note] : NoteEntry();
            Record record{.values = {file.name},
                .flags = note.deleted ? Deleted : 0,
                .parent = directoryName(note.title.isEmpty() ? note.folder : note.title)};
            FileContent content;
            if (file.created != 0) {
                content.detailDate =
                    formats::dateFromCocoaSeconds(file.created).toString(Qt::ISODate);
            }
            m_loaded.push_back(std::make_unique<StoredNoteFile>(
                std::move(record), std::move(content), std::move(file)));
        }
    }

    std::vector<NoteSource*> m_stores;
    mutable RecordList m_loaded;
    mutable bool m_isLoaded = false;
};

} // namespace

std::unique_ptr<PRData> noteData(const std::vector<NoteSource*>& stores)
{
    const std::vector<NotePlace> places = newestFirst(stores);
    QSet<QString> accounts;
    for (const NotePlace& place : places) {
        accounts.insert(place.entry().account);
    }
    RecordList records;
    records.reserve(places.size());
    for (const NotePlace& place : places) {
        const NoteEntry& note = place.entry();
        // The last one stands for the content, which is loaded when it is asked for.
        Record record{.values = {note.title, folderName(note, accounts.size() > 1),
                          minute(note.created), minute(note.modified), QString()},
            .flags = flagsOf(note)};
        records.push_back(std::make_unique<StoredNote>(std::move(record), place));
    }
    return std::make_unique<PRData>(kNotes, std::move(records),
        QStringList{tr("Title"), tr("Folder"), tr("Created"), tr("Modified"), tr("Content")});
}

std::unique_ptr<PRData> noteFileData(std::vector<NoteSource*> stores)
{
    return std::make_unique<NoteFileData>(std::move(stores));
}

} // namespace backup

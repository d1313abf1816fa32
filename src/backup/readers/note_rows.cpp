// SPDX-License-Identifier: MIT
// Rows of ZICCLOUDSYNCINGOBJECT by their kind:
//   ICNote     ZTITLE1, ZSNIPPET, dates, ZFOLDER -> ICFolder, ZACCOUNT<n> -> ICAccount with an n of
//              its own in each release, ZMARKEDFORDELETION, ZISPASSWORDPROTECTED
//   ICFolder   ZTITLE2, ZPARENT -> ICFolder, ZFOLDERTYPE 1: recently deleted
//   ICAccount  ZNAME, ZIDENTIFIER
// ZICNOTEDATA has the text, ZNOTE -> ICNote. Until iOS 11 a join table Z_11NOTES (Z_11FOLDERS,
// Z_8NOTES), whose numbers differ too, has the folders of the notes.
#include "backup/readers/note_rows.h"

#include "backup/readers/core_data.h"
#include "backup/readers/keyed_rows.h"

#include <QCoreApplication>
#include <QHash>
#include <QRegularExpression>

#include <functional>

namespace backup {

namespace {

using formats::Database;

constexpr QLatin1String kObjects = "ZICCLOUDSYNCINGOBJECT"_L1;
constexpr int kTrash = 1;
constexpr int kDeepestFolder = 32; // folders of a damaged store may lie in each other

enum Column : int {
    Id,
    Title,
    Snippet,
    Created,
    Modified,
    IsDeleted,
    IsLocked,
    Folder,
    Account,
    BodyId,
};

struct FolderRow {
    QString title;
    QString identifier;
    qint64 parent = 0;
    qint64 account = 0;
    bool isTrash = false;
};

struct AccountRow {
    QString name;
    QString identifier;
};

QString entityCondition(const Database& database, const QString& alias, QLatin1String kind)
{
    return alias + ".Z_ENT = "_L1 + QString::number(entityNumber(database, kind).value_or(-1));
}

/// The column whose values lead from rows of one kind to accounts the most often.
QString accountColumn(const Database& database, QLatin1String kind)
{
    const TableColumns columns(database, kObjects);
    QStringList candidates = columns.matching("ZACCOUNT[0-9]*"_L1);
    candidates += columns.matching("ZOWNER"_L1);
    QString best = QStringLiteral("NULL");
    qint64 most = 0;
    for (const QString& column : qAsConst(candidates)) {
        auto query = database.prepare(
            "SELECT count(*) FROM ZICCLOUDSYNCINGOBJECT o JOIN ZICCLOUDSYNCINGOBJECT a"
            " ON a.Z_PK = o."_L1
            + column + " WHERE "_L1 + entityCondition(database, "o"_L1, kind) + " AND "_L1
            + entityCondition(database, "a"_L1, "ICAccount"_L1));
        if (query && query->next() && query->integer(0) > most) {
            most = query->integer(0);
            best = "o."_L1 + column;
        }
    }
    return best;
}

class Reader {
public:
    explicit Reader(const Database& database) : m_database(database), m_columns(database, kObjects)
    {
    }

    NoteRows read()
    {
        readAccounts();
        readFolders();
        readJoinedFolders();
        readBodies();
        readNotes();
        return std::move(m_result);
    }

private:
    QString first(std::initializer_list<QLatin1String> names) const
    {
        return m_columns.firstOf("o"_L1, names);
    }

    // All rows of a kind; the first of the columns is the row's number.
    void readObjects(const QStringList& columns, const QString& condition,
        const std::function<void(const formats::Statement&)>& take)
    {
        const KeyedQuery query{.select = "SELECT o.Z_PK,"_L1 + columns.join(QChar(u','))
                                         + " FROM ZICCLOUDSYNCINGOBJECT o"_L1,
            .condition = condition,
            .key = "o.Z_PK"_L1};
        if (!readByKey(m_database, query, take)) {
            m_result.damaged = true;
        }
    }

    void readAccounts()
    {
        readObjects({first({"ZNAME"_L1}), first({"ZIDENTIFIER"_L1})},
            entityCondition(m_database, "o"_L1, "ICAccount"_L1),
            [this](const formats::Statement& row) {
                m_accounts.insert(row.integer(0), {.name = row.text(1), .identifier = row.text(2)});
                m_result.accountIds.append(row.text(2));
            });
    }

    void readFolders()
    {
        readObjects({first({"ZTITLE2"_L1, "ZTITLE1"_L1, "ZTITLE"_L1}), first({"ZIDENTIFIER"_L1}),
                        first({"ZPARENT"_L1}), accountColumn(m_database, "ICFolder"_L1),
                        first({"ZFOLDERTYPE"_L1})},
            entityCondition(m_database, "o"_L1, "ICFolder"_L1),
            [this](const formats::Statement& row) { addFolder(row); });
    }

    void addFolder(const formats::Statement& row)
    {
        FolderRow folder{.title = row.text(1),
            .identifier = row.text(2),
            .parent = row.integer(3),
            .account = row.integer(4)};
        folder.isTrash = row.integer(5) == kTrash || folder.identifier.startsWith("TrashFolder"_L1);
        m_folders.insert(row.integer(0), folder);
    }

    void readJoinedFolders()
    {
        const QStringList joins =
            m_database.tables().filter(QRegularExpression("^Z_[0-9]+NOTES$"_L1));
        for (const QString& table : joins) {
            const TableColumns columns(m_database, table);
            const QString folder = columns.matching("Z_[0-9]+FOLDERS[0-9]*"_L1).value(0);
            const QString note = columns.matching("Z_[0-9]+NOTES[0-9]*"_L1).value(0);
            auto rows = m_database.prepare(
                QStringLiteral("SELECT %1, %2 FROM %3").arg(note, folder, table));
            while (rows && rows->next()) {
                m_joinedFolders.insert(rows->integer(0), rows->integer(1));
            }
        }
    }

    void readBodies()
    {
        auto rows = m_database.prepare("SELECT ZNOTE, Z_PK FROM ZICNOTEDATA"_L1);
        while (rows && rows->next()) {
            m_bodies.insert(rows->integer(0), rows->integer(1));
        }
    }

    // Where the store does not tell the kinds apart, what has a text is a note.
    QString isNote() const
    {
        return entityNumber(m_database, "ICNote"_L1)
                   ? entityCondition(m_database, "o"_L1, "ICNote"_L1)
                   : QStringLiteral("o.Z_PK IN (SELECT ZNOTE FROM ZICNOTEDATA)");
    }

    void readNotes()
    {
        readObjects({first({"ZTITLE1"_L1, "ZTITLE2"_L1, "ZTITLE"_L1}), first({"ZSNIPPET"_L1}),
                        first({"ZCREATIONDATE3"_L1, "ZCREATIONDATE1"_L1, "ZCREATIONDATE"_L1}),
                        first({"ZMODIFICATIONDATE1"_L1, "ZMODIFICATIONDATE"_L1}),
                        first({"ZMARKEDFORDELETION"_L1}), first({"ZISPASSWORDPROTECTED"_L1}),
                        first({"ZFOLDER"_L1}), accountColumn(m_database, "ICNote"_L1),
                        first({"ZNOTEDATA"_L1})},
            isNote(), [this](const formats::Statement& row) { addNote(row); });
    }

    void addNote(const formats::Statement& columns)
    {
        NoteRow row{.id = columns.integer(Id),
            .bodyId = columns.integer(BodyId),
            .snippet = columns.text(Snippet)};
        row.bodyId = m_bodies.value(row.id, row.bodyId);
        NoteEntry entry{.title = columns.text(Title),
            .created = columns.real(Created),
            .modified = columns.real(Modified),
            .deleted = columns.integer(IsDeleted) != 0,
            .locked = columns.integer(IsLocked) != 0};
        if (row.bodyId == 0 && entry.title.isEmpty() && row.snippet.isEmpty()) {
            ++m_result.leftOut;
            return;
        }
        qint64 folder = columns.integer(Folder);
        if (folder == 0) {
            folder = m_joinedFolders.value(row.id);
        }
        entry.folder = folderPath(folder);
        entry.deleted = entry.deleted || m_folders.value(folder).isTrash;
        qint64 account = columns.integer(Account);
        if (!m_accounts.contains(account)) {
            account = m_folders.value(folder).account;
        }
        entry.account = m_accounts.value(account).name;
        row.accountId = m_accounts.value(account).identifier;
        m_result.entries.push_back(std::move(entry));
        m_result.rows.push_back(std::move(row));
    }

    QString folderPath(qint64 id) const
    {
        QStringList path;
        for (int depth = 0; depth < kDeepestFolder && m_folders.contains(id); ++depth) {
            const FolderRow& folder = *m_folders.constFind(id);
            path.prepend(folder.title.isEmpty() && folder.isTrash
                             ? QCoreApplication::translate("DataExport", "Recently Deleted")
                             : folder.title);
            id = folder.parent;
        }
        path.removeAll(QString());
        return path.join(" / "_L1);
    }

    const Database& m_database;
    TableColumns m_columns;
    QHash<qint64, AccountRow> m_accounts;
    QHash<qint64, FolderRow> m_folders;
    QHash<qint64, qint64> m_joinedFolders; // by note
    QHash<qint64, qint64> m_bodies;        // by note
    NoteRows m_result;
};

} // namespace

NoteRows readNoteRows(const Database& database)
{
    return Reader(database).read();
}

} // namespace backup

// SPDX-License-Identifier: MIT
//   ZNOTE (Z_PK, ZTITLE, ZSUMMARY, ZCREATIONDATE, ZMODIFICATIONDATE, ZBODY, ZSTORE, ZDELETEDFLAG,
//          ZISBOOKKEEPINGENTRY)
//   ZNOTEBODY (Z_PK, ZOWNER, ZCONTENT)  "Packing<div>Rope</div><img src="cid:A1@notes">"
//   ZSTORE (Z_PK, ZNAME, ZACCOUNT)      a folder
//   ZACCOUNT (Z_PK, ZNAME)
//   ZNOTEATTACHMENT (ZNOTE, ZCONTENTID, ZFILENAME)
#include "backup/readers/OldNoteStore.h"

#include "backup/container/Notices.h"
#include "backup/readers/core_data.h"
#include "backup/readers/html_text.h"
#include "backup/readers/keyed_rows.h"
#include "backup/readers/note_content.h"
#include "platform/literals.h"

#include <QCoreApplication>

namespace backup {

namespace {

enum Column : int { Id, Title, Summary, Created, Modified, IsDeleted, Folder, Account };

// A column of a joined table, NULL where the store has no such table or column.
QString columnOf(const formats::Database& database, QLatin1String table, QLatin1String column)
{
    return TableColumns(database, table).firstOf(table, {column});
}

} // namespace

OldNoteStore::OldNoteStore(OpenedDatabase database, Notices& notices)
    : m_database(std::move(database)), m_notices(notices)
{
    readNotes();
    const bool namesBody = TableColumns(m_database.database, "ZNOTE"_L1).has("ZBODY"_L1);
    auto bodies = m_database.database.prepare(
        namesBody ? "SELECT b.ZCONTENT FROM ZNOTEBODY b JOIN ZNOTE n ON b.Z_PK = n.ZBODY"
                    " WHERE n.Z_PK = ?"_L1
                  : "SELECT ZCONTENT FROM ZNOTEBODY WHERE ZOWNER = ?"_L1);
    if (bodies) {
        m_bodies = std::move(*bodies);
    }
    auto attachments = m_database.database.prepare(
        "SELECT ZFILENAME FROM ZNOTEATTACHMENT WHERE ZNOTE = ? AND ZCONTENTID = ?"_L1);
    if (attachments) {
        m_attachments = std::move(*attachments);
    }
}

bool OldNoteStore::isOldNoteStore(const formats::Database& database)
{
    const QStringList tables = database.tables();
    return tables.contains("ZNOTE"_L1) && tables.contains("ZNOTEBODY"_L1);
}

void OldNoteStore::readNotes()
{
    const formats::Database& database = m_database.database;
    const TableColumns columns(database, "ZNOTE"_L1);
    const auto first = [&](QLatin1String name) { return columns.firstOf("n"_L1, {name}); };
    QString sql = "SELECT "_L1
                  + QStringList{"n.Z_PK"_L1, first("ZTITLE"_L1), first("ZSUMMARY"_L1),
                      first("ZCREATIONDATE"_L1), first("ZMODIFICATIONDATE"_L1),
                      first("ZDELETEDFLAG"_L1), columnOf(database, "ZSTORE"_L1, "ZNAME"_L1),
                      columnOf(database, "ZACCOUNT"_L1, "ZNAME"_L1)}
                        .join(QChar(u','))
                  + " FROM ZNOTE n"_L1;
    const bool hasStores = database.hasTable("ZSTORE"_L1) && columns.has("ZSTORE"_L1);
    const bool hasAccounts = hasStores && database.hasTable("ZACCOUNT"_L1)
                             && TableColumns(database, "ZSTORE"_L1).has("ZACCOUNT"_L1);
    sql += hasStores ? " LEFT JOIN ZSTORE ON ZSTORE.Z_PK = n.ZSTORE"_L1
                     : " LEFT JOIN (SELECT NULL AS ZNAME) AS ZSTORE"_L1;
    sql += hasAccounts ? " LEFT JOIN ZACCOUNT ON ZACCOUNT.Z_PK = ZSTORE.ZACCOUNT"_L1
                       : " LEFT JOIN (SELECT NULL AS ZNAME) AS ZACCOUNT"_L1;
    const KeyedQuery query{.select = sql,
        .condition = "coalesce("_L1 + first("ZISBOOKKEEPINGENTRY"_L1) + ",0) = 0"_L1,
        .key = "n.Z_PK"_L1};
    const bool isWhole =
        readByKey(database, query, [this](const formats::Statement& row) { add(row); });
    if (!isWhole) {
        m_notices.add(QCoreApplication::translate(
            "DataExport", "%1 is damaged; what can be read of it is there.")
                          .arg("notes.sqlite"_L1));
    }
}

void OldNoteStore::add(const formats::Statement& row)
{
    const QString title = row.text(Title);
    m_notes.push_back({.title = title.isEmpty() ? row.text(Summary) : title,
        .folder = row.text(Folder),
        .account = row.text(Account),
        .created = row.real(Created),
        .modified = row.real(Modified),
        .deleted = row.integer(IsDeleted) != 0});
    m_ids.push_back(row.integer(Id));
}

NoteContent OldNoteStore::load(std::size_t index)
{
    const qint64 note = m_ids[index];
    m_bodies.reset();
    m_bodies.bind(1, note);
    QString html;
    if (m_bodies.next()) {
        html = m_bodies.text(0);
    }
    m_bodies.reset();
    return plainContent(
        htmlText(html, [&](const QString& contentId) { return attachmentName(note, contentId); }));
}

QString OldNoteStore::attachmentName(qint64 note, const QString& contentId)
{
    m_attachments.reset();
    m_attachments.bind(1, note);
    m_attachments.bind(2, contentId);
    QString name;
    if (m_attachments.next()) {
        name = m_attachments.text(0);
    }
    m_attachments.reset();
    return "["_L1
           + (name.isEmpty() ? QCoreApplication::translate("DataExport", "Attachment") : name)
           + "]"_L1;
}

} // namespace backup

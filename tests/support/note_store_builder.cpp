// SPDX-License-Identifier: MIT
#include "support/note_store_builder.h"

#include "support/backup_builder.h"

#include <QMap>
#include <QSet>
#include <QStringList>

namespace {

const QMap<QString, int> kKinds{{"ICAttachment", 4}, {"ICAttachmentPreviewImage", 5},
    {"ICInlineAttachment", 8}, {"ICMedia", 10}, {"ICNote", 11}, {"ICAccount", 13},
    {"ICFolder", 14}};

QString literal(const QVariant& value)
{
    if (!value.isValid()) {
        return "NULL";
    }
    if (value.type() == QVariant::ByteArray) {
        return "x'" + value.toByteArray().toHex() + "'";
    }
    if (value.type() == QVariant::String) {
        return "'" + value.toString().replace("'", "''") + "'";
    }
    return value.toString();
}

QString insertion(const QString& table, const QVariantMap& columns)
{
    QStringList values;
    for (const QVariant& value : columns) {
        values.append(literal(value));
    }
    return "INSERT INTO " + table + " (" + QStringList(columns.keys()).join(',') + ") VALUES ("
           + values.join(',') + ")";
}

} // namespace

qint64 NoteStoreBuilder::object(const QString& kind, const QVariantMap& columns)
{
    m_objects.push_back({kind, columns});
    return static_cast<qint64>(m_objects.size());
}

qint64 NoteStoreBuilder::note(const QVariantMap& columns, const std::optional<QByteArray>& body)
{
    const qint64 id = object("ICNote", columns);
    if (body) {
        m_bodies.push_back({id, *body});
    }
    return id;
}

qint64 NoteStoreBuilder::plainNote(const QString& title, const QString& text)
{
    return note({{"ZTITLE1", title}}, sample::noteBody({{.text = text}}));
}

NoteStoreBuilder& NoteStoreBuilder::run(const QString& sql)
{
    m_statements.append(sql);
    return *this;
}

QByteArray NoteStoreBuilder::bytes() const
{
    QStringList statements{"CREATE TABLE Z_PRIMARYKEY (Z_ENT INTEGER PRIMARY KEY, Z_NAME VARCHAR)",
        "CREATE TABLE ZICNOTEDATA (Z_PK INTEGER PRIMARY KEY, ZNOTE INTEGER, ZDATA BLOB)"};
    for (const QString& kind : kKinds.keys()) {
        statements.append(insertion("Z_PRIMARYKEY", {{"Z_ENT", kKinds[kind]}, {"Z_NAME", kind}}));
    }
    QSet<QString> columns;
    for (const Object& object : m_objects) {
        for (const QString& column : object.columns.keys()) {
            columns.insert(column);
        }
    }
    const QString more =
        columns.isEmpty() ? QString() : ", " + QStringList(columns.values()).join(',');
    statements.append(
        "CREATE TABLE ZICCLOUDSYNCINGOBJECT (Z_PK INTEGER PRIMARY KEY, Z_ENT INTEGER" + more + ")");
    for (const Object& object : m_objects) {
        QVariantMap row = object.columns;
        row["Z_ENT"] = kKinds[object.kind];
        statements.append(insertion("ZICCLOUDSYNCINGOBJECT", row));
    }
    for (const Body& body : m_bodies) {
        statements.append(insertion("ZICNOTEDATA",
            {{"ZNOTE", body.note}, {"ZDATA", body.data.isNull() ? QVariant() : body.data}}));
    }
    return databaseBytes(statements + m_statements).file;
}

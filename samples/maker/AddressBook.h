// SPDX-License-Identifier: MIT
#pragma once

#include "Database.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>

namespace sample {

/// Makes the phone's address book, and its pictures, from people.json.
class AddressBook {
public:
    AddressBook(Database& book, Database& pictures, QString mediaFolder);

    void write(const QJsonObject& source);

private:
    void writePerson(const QJsonObject& source, qint64 row);
    void writePictures(const QJsonObject& source, qint64 row);
    void writeValues(qint64 person, const char* kind, int property, const QJsonValue& values);
    void writeEntries(qint64 value, const QJsonObject& entries);
    void writeGroup(const QJsonObject& source);
    void writeLinks(const QJsonArray& people);
    qint64 label(const QString& text);
    qint64 entryKey(const QString& text);

    Database& m_book;
    Database& m_pictures;
    QString m_mediaFolder;
    QHash<QString, qint64> m_labels;
    QHash<QString, qint64> m_entryKeys;
    int m_values = 0;
};

} // namespace sample

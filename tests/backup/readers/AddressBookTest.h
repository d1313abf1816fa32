// SPDX-License-Identifier: MIT
#pragma once

#include "LazyTableTest.h"
#include "model/PRContactItem.h"

/// Builds address books and shows their contacts.
class AddressBookTest : public LazyTableTest {
protected:
    static constexpr int kContacts = 2;

    static QStringList bookTables()
    {
        return {R"(CREATE TABLE ABPerson (ROWID INTEGER PRIMARY KEY AUTOINCREMENT, First TEXT,
                Last TEXT, Middle TEXT, FirstPhonetic TEXT, MiddlePhonetic TEXT, LastPhonetic TEXT,
                Organization TEXT, Department TEXT, Note TEXT, Kind INTEGER, Birthday TEXT,
                JobTitle TEXT, Nickname TEXT, Prefix TEXT, Suffix TEXT, FirstSort TEXT,
                LastSort TEXT, CompositeNameFallback TEXT, StoreID INTEGER, DisplayName TEXT,
                FirstSortSection TEXT, LastSortSection TEXT,
                FirstSortLanguageIndex INTEGER DEFAULT 2147483647,
                LastSortLanguageIndex INTEGER DEFAULT 2147483647, PersonLink INTEGER DEFAULT -1,
                ImageURI TEXT, IsPreferredName INTEGER DEFAULT 1, AlternateBirthday TEXT,
                FirstPronunciation TEXT, MiddlePronunciation TEXT, LastPronunciation TEXT,
                OrganizationPhonetic TEXT, OrganizationPronunciation TEXT, PreviousFamilyName TEXT,
                ImageType TEXT, ImageHash BLOB))",
            R"(CREATE TABLE ABPersonLink (ROWID INTEGER PRIMARY KEY,
                PreferredImagePersonID INTEGER DEFAULT -1,
                PreferredNamePersonID INTEGER DEFAULT -1))",
            R"(CREATE TABLE ABMultiValue (UID INTEGER PRIMARY KEY, record_id INTEGER,
                property INTEGER, identifier INTEGER, label INTEGER, value TEXT))",
            "CREATE TABLE ABMultiValueLabel (value TEXT)",
            "CREATE TABLE ABMultiValueEntry (parent_id INTEGER, key INTEGER, value TEXT)",
            "CREATE TABLE ABMultiValueEntryKey (value TEXT)"};
    }

    static QStringList pictureTables()
    {
        return {R"(CREATE TABLE ABFullSizeImage (ROWID INTEGER PRIMARY KEY, record_id INTEGER,
                crop_x INTEGER, crop_y INTEGER, crop_width INTEGER, data BLOB))",
            R"(CREATE TABLE ABThumbnailImage (ROWID INTEGER PRIMARY KEY, record_id INTEGER,
                format INTEGER, derived_from_format INTEGER, data BLOB))"};
    }

    AddressBookTest& addBook(const QStringList& statements)
    {
        builder().addDatabase(
            "HomeDomain", "Library/AddressBook/AddressBook.sqlitedb", bookTables() + statements);
        return *this;
    }

    AddressBookTest& addPictures(const QStringList& statements)
    {
        builder().addDatabase("HomeDomain", "Library/AddressBook/AddressBookImages.sqlitedb",
            pictureTables() + statements);
        return *this;
    }

    void openBook(const QStringList& statements)
    {
        addBook(statements);
        openFolder();
    }

    QStringList names() { return column(kContacts, 0); }

    int count() { return m_opened->records.getPRData(kContacts)->count(1); }

    /// What is in the row; empty where there is no contact.
    const PRContactPrivate& contact(int row)
    {
        static const PRContactPrivate none;
        const auto* item = dynamic_cast<const PRContactItem*>(
            m_opened->records.getPRData(kContacts)->at(row, true));
        if (item == nullptr || item->detailContent() == nullptr) {
            ADD_FAILURE() << "no contact in row " << row;
            return none;
        }
        return *item->detailContent();
    }

    // "3 mobile: +49 1", or "5 home: City=Bonn; Street=Hafen 1"
    QStringList properties(int row)
    {
        QStringList shown;
        const QList<PRContactProperty*>& all = contact(row).properties();
        for (const PRContactProperty* property : all) {
            QStringList parts;
            const QMap<QString, QString>& entry = property->propValueEntry();
            for (auto part = entry.begin(); part != entry.end(); ++part) {
                parts.append(part.key() + "=" + part.value());
            }
            if (!property->propValue().isEmpty()) {
                parts.prepend(property->propValue());
            }
            shown.append(QString::number(property->propType()) + " " + property->propLabel() + ": "
                         + parts.join("; "));
        }
        return shown;
    }

    QStringList notices() { return m_opened->notices->sentences(); }
};

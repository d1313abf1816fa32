// SPDX-License-Identifier: MIT
#include "backup/readers/SenderNames.h"
#include "formats/sqlite.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace {

class SenderNamesTest : public testing::Test {
protected:
    backup::SenderNames read(const QString& rows)
    {
        const QString path = m_directory.filePath(QString("%1.sqlitedb").arg(++m_made));
        sqlite3* database = nullptr;
        EXPECT_EQ(sqlite3_open(path.toUtf8().constData(), &database), SQLITE_OK);
        const QString schema =
            "CREATE TABLE ABPerson (ROWID INTEGER PRIMARY KEY, First TEXT, Last TEXT, Middle TEXT,"
            " Prefix TEXT, Suffix TEXT, FirstPhonetic TEXT, Nickname TEXT, Organization TEXT,"
            " CompositeNameFallback TEXT, Kind INTEGER, PersonLink INTEGER DEFAULT -1,"
            " IsPreferredName INTEGER DEFAULT 1);"
            "CREATE TABLE ABPersonLink (ROWID INTEGER PRIMARY KEY,"
            " PreferredImagePersonID INTEGER DEFAULT -1,"
            " PreferredNamePersonID INTEGER DEFAULT -1);"
            "CREATE TABLE ABMultiValue (UID INTEGER PRIMARY KEY,"
            " record_id INTEGER, property INTEGER, value TEXT);";
        EXPECT_EQ(
            sqlite3_exec(database, (schema + rows).toUtf8().constData(), nullptr, nullptr, nullptr),
            SQLITE_OK)
            << sqlite3_errmsg(database);
        sqlite3_close(database);
        const auto opened = formats::Database::open(path, formats::OpenMode::Immutable);
        EXPECT_TRUE(opened.has_value());
        return backup::SenderNames(*opened);
    }

    // One person "Mia Berg" with one phone number.
    backup::SenderNames withPhone(const QString& number)
    {
        return read("INSERT INTO ABPerson (First, Last) VALUES ('Mia', 'Berg');"
                    "INSERT INTO ABMultiValue (record_id, property, value) VALUES (1, 3, '"
                    + number + "');");
    }

    QTemporaryDir m_directory;
    int m_made = 0;
};

TEST_F(SenderNamesTest, PhonesMatchHoweverTheyAreWritten)
{
    struct Row {
        const char* what;
        const char* stored;
        const char* asked;
        const char* name;
    };
    static constexpr Row kRows[] = {
        {"the same", "+491715550101", "+491715550101", "Mia Berg"},
        {"blanks and dashes", "+49 171-555 01/01", "+491715550101", "Mia Berg"},
        {"national form", "0171 5550101", "+491715550101", "Mia Berg"},
        {"two zeros for the plus", "0049 171 5550101", "+491715550101", "Mia Berg"},
        {"a zero in brackets", "+49 (0)171 5550101", "+491715550101", "Mia Berg"},
        {"brackets", "(202) 555-0114", "+12025550114", "Mia Berg"},
        {"stored with country, asked without", "+12025550114", "2025550114", "Mia Berg"},
        {"another country code", "+44 171 5550101", "+491715550101", ""},
        {"another last digit", "+491715550102", "+491715550101", ""},
        {"a short code, equal", "55501", "55501", "Mia Berg"},
        {"a short code is not the end of a number", "50101", "+491715550101", ""},
        {"nor a number the end of it", "+491715550101", "50101", ""},
        {"letters are no number", "+491715550101", "Paketbox", ""},
        {"digits of other scripts", "+٤٩١٧١٥٥٥٠١٠١", "+491715550101", "Mia Berg"},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(withPhone(row.stored).nameOf(row.asked), QString(row.name));
    }
}

TEST_F(SenderNamesTest, EmailsMatchWithoutRegardToCase)
{
    const backup::SenderNames names = read(
        "INSERT INTO ABPerson (First) VALUES ('Mia');"
        "INSERT INTO ABMultiValue (record_id, property, value) VALUES (1, 4, 'Mia@Example.org');");
    EXPECT_EQ(names.nameOf("mia@example.ORG"), "Mia");
    EXPECT_EQ(names.nameOf("mia@example.com"), "");
}

TEST_F(SenderNamesTest, NameIsThatUnderWhichThePersonStandsAmongTheContacts)
{
    struct Row {
        const char* what;
        const char* columns;
        const char* values;
        const char* name;
    };
    static constexpr Row kRows[] = {
        {"both names", "First, Last, Nickname, Organization", "'Mia','Berg','Mi','Flowers'",
            "Mia Berg"},
        {"first name", "First, Nickname, Organization", "'Mia','Mi','Flowers'", "Mia"},
        {"last name", "Last, Nickname, Organization", "'Berg','Mi','Flowers'", "Berg"},
        {"all parts", "Prefix, First, Middle, Last, Suffix", "'Dr.','Ina','M.','Petersen','MD'",
            "Dr. Ina M. Petersen MD"},
        {"blanks around", "First, Last", "' Ina ','Petersen  '", "Ina Petersen"},
        {"a mark of direction", "First", "char(8234) || 'Ina' || char(8236)", "Ina"},
        {"organization", "Organization, Nickname", "'Flowers','Mi'", "Flowers"},
        {"organization with a person", "First, Organization, Kind", "'Mia','Flowers',1", "Flowers"},
        {"nickname", "Nickname", "'Mi'", "Mi"},
        {"what the phone shows else", "CompositeNameFallback", "'Parcels'", "Parcels"},
        {"nothing", "First", "NULL", ""},
        {"Chinese", "First, Last", "'明','李'", "李明"},
        {"Korean", "First, Last", "'민준','김'", "김민준"},
        {"Japanese, spoken in kana", "First, Last, FirstPhonetic", "'由紀','田中','ゆき'",
            "田中 由紀"},
        {"Japanese, with kana", "First, Last", "'さくら','高橋'", "高橋 さくら"},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.what);
        const backup::SenderNames names =
            read(QString("INSERT INTO ABPerson (%1) VALUES (%2);"
                         "INSERT INTO ABMultiValue (record_id, property, value)"
                         " VALUES (1, 3, '5550101');")
                     .arg(row.columns, row.values));
        EXPECT_EQ(names.nameOf("5550101"), QString(row.name));
    }
}

// Card 1 has the phone, card 2 the e-mail address and the name that is preferred.
TEST_F(SenderNamesTest, LinkedCardsHaveTheNameOfThePerson)
{
    struct Row {
        const char* what;
        const char* rows;
        const char* ofPhone;
        const char* ofEmail;
    };
    static constexpr Row kRows[] = {
        {"linked", "UPDATE ABPerson SET PersonLink = 5;", "Thomas Berg", "Thomas Berg"},
        {"the table of links goes before",
            "UPDATE ABPerson SET PersonLink = 5; INSERT INTO ABPersonLink VALUES (5, -1, 1);",
            "Tom", "Tom"},
        {"a card without a name gives none",
            "UPDATE ABPerson SET PersonLink = 5, First = NULL, Last = NULL WHERE ROWID = 2;"
            "UPDATE ABPerson SET PersonLink = 5 WHERE ROWID = 1;",
            "Tom", "Tom"},
        {"neither has a name", "UPDATE ABPerson SET PersonLink = 5, First = NULL, Last = NULL;", "",
            ""},
        {"0 is no link", "UPDATE ABPerson SET PersonLink = 0;", "Tom", "Thomas Berg"},
        {"but where the table of links knows it",
            "UPDATE ABPerson SET PersonLink = 0; INSERT INTO ABPersonLink VALUES (0, -1, -1);",
            "Thomas Berg", "Thomas Berg"},
        {"other links", "UPDATE ABPerson SET PersonLink = ROWID;", "Tom", "Thomas Berg"},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.what);
        const backup::SenderNames names =
            read(QString("INSERT INTO ABPerson (First, Last, IsPreferredName)"
                         " VALUES ('Tom', NULL, 0), ('Thomas', 'Berg', 1);"
                         "INSERT INTO ABMultiValue (record_id, property, value)"
                         " VALUES (1, 3, '5550101'), (2, 4, 'tom@example.org');")
                 + row.rows);
        EXPECT_EQ(names.nameOf("5550101"), QString(row.ofPhone));
        EXPECT_EQ(names.nameOf("tom@example.org"), QString(row.ofEmail));
    }
}

TEST_F(SenderNamesTest, OtherPropertiesAreNoAddresses)
{
    const backup::SenderNames names =
        read("INSERT INTO ABPerson (First) VALUES ('Mia');"
             "INSERT INTO ABMultiValue (record_id, property, value)"
             " VALUES (1, 22, '5550101'), (1, 22, 'mia@example.org');");
    EXPECT_EQ(names.nameOf("5550101"), "");
    EXPECT_EQ(names.nameOf("mia@example.org"), "");
}

TEST_F(SenderNamesTest, TheFirstOfTwoPeopleWithOneNumberIsNamed)
{
    const backup::SenderNames names =
        read("INSERT INTO ABPerson (First) VALUES ('Mia'), ('Tom');"
             "INSERT INTO ABMultiValue (record_id, property, value)"
             " VALUES (2, 3, '5550101'), (1, 3, '5550101'), (2, 4, 'a@b'), (1, 4, 'a@b');");
    EXPECT_EQ(names.nameOf("5550101"), "Mia");
    EXPECT_EQ(names.nameOf("a@b"), "Mia");
}

TEST(SenderNames, WithoutAnAddressBookNobodyHasAName)
{
    EXPECT_EQ(backup::SenderNames().nameOf("+491715550101"), "");
}

} // namespace

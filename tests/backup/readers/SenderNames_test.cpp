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
        const QString schema = "CREATE TABLE ABPerson (ROWID INTEGER PRIMARY KEY, First TEXT,"
                               " Last TEXT, Nickname TEXT, Organization TEXT);"
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

TEST_F(SenderNamesTest, NameIsThatOfThePersonElseOfTheOrganizationElseTheNickname)
{
    struct Row {
        const char* what;
        const char* columns; // First, Last, Nickname, Organization
        const char* name;
    };
    static constexpr Row kRows[] = {
        {"both names", "'Mia','Berg','Mi','Flowers'", "Mia Berg"},
        {"first name", "'Mia',NULL,'Mi','Flowers'", "Mia"},
        {"last name", "NULL,'Berg','Mi','Flowers'", "Berg"},
        {"organization", "NULL,NULL,'Mi','Flowers'", "Flowers"},
        {"nickname", "NULL,NULL,'Mi',NULL", "Mi"},
        {"nothing", "NULL,NULL,NULL,NULL", ""},
        {"family name first in Japanese", "'由紀','田中',NULL,NULL", "田中 由紀"},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.what);
        const backup::SenderNames names =
            read(QString("INSERT INTO ABPerson (First, Last, Nickname, Organization) VALUES (%1);"
                         "INSERT INTO ABMultiValue (record_id, property, value)"
                         " VALUES (1, 3, '5550101');")
                     .arg(row.columns));
        EXPECT_EQ(names.nameOf("5550101"), QString(row.name));
    }
}

TEST_F(SenderNamesTest, OtherPropertiesAreNoAddresses)
{
    const backup::SenderNames names =
        read("INSERT INTO ABPerson (First) VALUES ('Mia');"
             "INSERT INTO ABMultiValue (record_id, property, value) VALUES (1, 22, '5550101');");
    EXPECT_EQ(names.nameOf("5550101"), "");
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

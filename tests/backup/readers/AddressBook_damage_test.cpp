// SPDX-License-Identifier: MIT
#include "AddressBookTest.h"

namespace {

const QString kBook = "Library/AddressBook/AddressBook.sqlitedb";
const QString kDamaged = " is damaged; what can be read of it is there.";

class AddressBookDamageTest : public AddressBookTest {
protected:
    // All that a page or a table would ask for.
    void readAll()
    {
        for (int row = 0; row < count(); ++row) {
            contact(row);
        }
    }

    static QStringList manyPeople(int number)
    {
        return {QString(R"(WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n
                           WHERE i < %1)
                INSERT INTO ABPerson (First, Note) SELECT 'N' || i, hex(zeroblob(300)) FROM n)")
                    .arg(number),
            "INSERT INTO ABMultiValue (record_id, property, value) SELECT ROWID, 3,"
            " '+' || hex(zeroblob(100)) || ROWID FROM ABPerson"};
    }
};

TEST_F(AddressBookDamageTest, OldStoreWithFewColumnsIsReadWithoutANotice)
{
    builder().addDatabase("HomeDomain", kBook,
        {R"(CREATE TABLE ABPerson (ROWID INTEGER PRIMARY KEY, First TEXT, Last TEXT, Middle TEXT,
            Organization TEXT, Department TEXT, Note TEXT, Kind INTEGER, Birthday TEXT,
            JobTitle TEXT, Nickname TEXT, Prefix TEXT, Suffix TEXT))",
            R"(CREATE TABLE ABMultiValue (UID INTEGER PRIMARY KEY, record_id INTEGER,
            property INTEGER, identifier INTEGER, label INTEGER, value TEXT))",
            "CREATE TABLE ABMultiValueLabel (value TEXT)",
            "CREATE TABLE ABMultiValueEntry (parent_id INTEGER, key INTEGER, value TEXT)",
            "CREATE TABLE ABMultiValueEntryKey (value TEXT)",
            "INSERT INTO ABPerson (First, Last) VALUES ('Mia', 'Maus'), ('Jo', 'Aal')",
            "INSERT INTO ABMultiValue VALUES (1, 1, 3, 0, 1, '+49 1')"});
    openFolder();
    EXPECT_EQ(names(), QStringList({"Jo Aal", "Mia Maus"}));
    EXPECT_EQ(properties(1), QStringList("3 : +49 1"));
    EXPECT_EQ(notices().filter("AddressBook"), QStringList());
}

TEST_F(AddressBookDamageTest, MissingTablesAndColumnsAreToldOnce)
{
    builder().addDatabase("HomeDomain", kBook,
        {"CREATE TABLE ABPerson (First TEXT, Last TEXT)",
            "INSERT INTO ABPerson (First) VALUES ('Mia'), ('Jo')"});
    openFolder();
    EXPECT_EQ(names(), QStringList({"Jo", "Mia"}));
    readAll();
    readAll();
    EXPECT_EQ(contact(0).firstName, "Jo");
    EXPECT_EQ(properties(0), QStringList());
    const QStringList about = notices().filter("AddressBook");
    EXPECT_EQ(about.filter("has no table").size(), 4);
    EXPECT_EQ(about.filter("has no column Organization").size(), 1);
    EXPECT_EQ(about.filter("has no column Note").size(), 1);
    QStringList unique = about;
    EXPECT_EQ(unique.removeDuplicates(), 0);
}

TEST_F(AddressBookDamageTest, MissingPicturesAreToldOnlyWhereACardTellsOfOne)
{
    openBook({"INSERT INTO ABPerson (First) VALUES ('Mia')"});
    readAll();
    EXPECT_EQ(notices().filter("Images"), QStringList());
}

TEST_F(AddressBookDamageTest, MissingPicturesThatCardsTellOfAreToldOnce)
{
    openBook({"INSERT INTO ABPerson (First, ImageType) VALUES ('Mia', 'PHOTO'), ('Jo', 'PHOTO')"});
    EXPECT_EQ(count(), 2);
    EXPECT_EQ(notices().filter("Images"), QStringList()); // nobody has asked for one
    readAll();
    EXPECT_EQ(
        notices().filter("Images"), QStringList("The backup has no AddressBookImages.sqlitedb."));
}

TEST_F(AddressBookDamageTest, PicturesThatAreNoDatabaseAreToldAndTheRestIsRead)
{
    addBook({"INSERT INTO ABPerson (First) VALUES ('Mia')"});
    builder().add("HomeDomain", "Library/AddressBook/AddressBookImages.sqlitedb", "not a database");
    openFolder();
    readAll();
    EXPECT_EQ(contact(0).firstName, "Mia");
    EXPECT_EQ(contact(0).photo, QByteArray());
    EXPECT_EQ(notices().filter("Images").size(), 1) << notices().join('\n').toStdString();
}

TEST_F(AddressBookDamageTest, PicturesWhosePayloadIsMissingAreTold)
{
    addBook({"INSERT INTO ABPerson (First) VALUES ('Mia')"});
    builder().addMissing("HomeDomain", "Library/AddressBook/AddressBookImages.sqlitedb");
    openFolder();
    readAll();
    readAll();
    EXPECT_EQ(notices().filter("Images").size(), 1);
}

TEST_F(AddressBookDamageTest, BookThatIsNoDatabaseIsToldOnce)
{
    builder().add("HomeDomain", kBook, "not a database");
    openFolder();
    EXPECT_EQ(m_opened->records.getPRData(kContacts), nullptr);
    EXPECT_EQ(notices().filter("AddressBook").size(), 1);
}

TEST_F(AddressBookDamageTest, BookWithoutPeopleIsOfNoKnownKind)
{
    builder().addDatabase("HomeDomain", kBook, {"CREATE TABLE other (a)"});
    openFolder();
    EXPECT_EQ(m_opened->records.getPRData(kContacts), nullptr);
    EXPECT_EQ(notices().filter("not of a kind").size(), 1);
}

// Page 2 is the table of people, 3 the bookkeeping of AUTOINCREMENT; leaves follow.
TEST_F(AddressBookDamageTest, DamagedPagesCostTheirOwnRowsOnly)
{
    const QByteArray whole = databaseBytes(bookTables() + manyPeople(200)).file;
    constexpr int kPage = 4096;
    const int pages = whole.size() / kPage;
    ASSERT_GT(pages, 30);
    for (int page = 1; page < pages; ++page) {
        SCOPED_TRACE(page);
        QByteArray bytes = whole;
        bytes.replace(page * kPage, kPage, QByteArray(kPage, '\xEE'));
        openFile(bytes);
        if (m_opened->records.getPRData(kContacts) == nullptr) {
            continue;
        }
        readAll();
        EXPECT_LE(notices().filter(kDamaged).size(), 1);
        EXPECT_LE(count(), 200);
        EXPECT_TRUE(count() == 200 || notices().filter(kDamaged).size() == 1);
    }
}

TEST_F(AddressBookDamageTest, DamagedPictureGivesWayToItsThumbnail)
{
    addBook({"INSERT INTO ABPerson (First) VALUES ('Mia')"});
    const QStringList rows{
        "INSERT INTO ABFullSizeImage (record_id, data) VALUES (1, zeroblob(20000))",
        "INSERT INTO ABThumbnailImage (record_id, data) VALUES (1, 'thumb')"};
    QByteArray bytes = databaseBytes(pictureTables() + rows).file;
    constexpr int kPage = 4096;
    // The picture's bytes go on over a chain of pages; a number in front of each leads to the next.
    bytes.replace(bytes.size() - 3 * kPage, 4, QByteArray::fromHex("7FFFFFFF"));
    builder().add("HomeDomain", "Library/AddressBook/AddressBookImages.sqlitedb", bytes);
    openFolder();
    EXPECT_EQ(contact(0).photo, "thumb");
    EXPECT_EQ(notices().filter("Images"), QStringList("AddressBookImages.sqlitedb" + kDamaged));
}

TEST_F(AddressBookDamageTest, LinksInARingAreOnePersonEach)
{
    openBook({"INSERT INTO ABPerson (ROWID, First, PersonLink) VALUES (1, 'A', 2), (2, 'B', 1),"
              " (3, 'C', 3), (4, 'D', 9223372036854775807), (5, 'E', -9223372036854775807)",
        "INSERT INTO ABPersonLink VALUES (1, 2, 2), (2, 1, 1), (3, 3, 3)"});
    EXPECT_EQ(names(), QStringList({"A", "B", "C", "D", "E"}));
    readAll();
}

TEST_F(AddressBookDamageTest, OddTypesOfValuesAreNoCrash)
{
    openBook({"INSERT INTO ABPerson (First, Last, Note, Birthday, AlternateBirthday, Kind,"
              " PersonLink, LastSort, LastSortLanguageIndex) VALUES"
              " (x'FF00FE', 12.5, x'00', 'inf', x'62706C6973743030FF', 'x', 'y', x'FF', -9e99)",
        "INSERT INTO ABMultiValue VALUES (1, 1, 3, 'x', 'y', x'C328'), (2, 1, 5, NULL, NULL, 7)",
        "INSERT INTO ABMultiValueEntry VALUES (2, NULL, x'00'), ('x', 'y', 'z')",
        "INSERT INTO ABMultiValueEntryKey VALUES (NULL), (x'FF')"});
    ASSERT_EQ(count(), 1);
    EXPECT_EQ(contact(0).birthday, "");
    EXPECT_EQ(contact(0).lastName, "12.5");
    EXPECT_EQ(contact(0).getAltBirthdayType(), 0);
    EXPECT_EQ(properties(0).size(), 2);
}

} // namespace

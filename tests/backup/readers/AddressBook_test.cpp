// SPDX-License-Identifier: MIT
#include "AddressBookTest.h"

namespace {

QString people(const QString& columns, const QString& values)
{
    return "INSERT INTO ABPerson (" + columns + ") VALUES " + values;
}

QString values(const QString& rows)
{
    return "INSERT INTO ABMultiValue (record_id, property, identifier, label, value) VALUES "
           + rows;
}

TEST_F(AddressBookTest, ContactHasAllFieldsOfItsCard)
{
    openBook({people("Prefix, First, Middle, Last, Suffix, FirstPhonetic, MiddlePhonetic,"
                     " LastPhonetic, OrganizationPhonetic, FirstPronunciation, MiddlePronunciation,"
                     " LastPronunciation, OrganizationPronunciation, PreviousFamilyName, Nickname,"
                     " JobTitle, Department, Organization, Birthday, Note",
        "('pre', 'first', 'mid', 'last', 'suf', 'fp', 'mp', 'lp', 'op', 'fs', 'ms', 'ls', 'os',"
        " 'born', 'nick', 'job', 'dep', 'org', '504878400', 'line 1' || char(13, 10) || 'line "
        "2')")});
    ASSERT_EQ(names(), QStringList("pre first mid last suf"));
    const PRContactPrivate& all = contact(0);
    EXPECT_EQ(
        QStringList({all.namePrefix, all.firstName, all.middleName, all.lastName, all.nameSuffix}),
        QStringList({"pre", "first", "mid", "last", "suf"}));
    EXPECT_EQ(QStringList({all.firstPhonetic, all.middlePhonetic, all.lastPhonetic,
                  all.organizationPhonetic}),
        QStringList({"fp", "mp", "lp", "op"}));
    EXPECT_EQ(QStringList({all.firstPronunciation, all.middlePronunciation, all.lastPronunciation,
                  all.organizationPronunciation}),
        QStringList({"fs", "ms", "ls", "os"}));
    EXPECT_EQ(QStringList({all.previousFamilyName, all.nickname, all.jobTitle, all.department,
                  all.organization}),
        QStringList({"born", "nick", "job", "dep", "org"}));
    EXPECT_EQ(all.birthday, "504878400");
    EXPECT_EQ(all.note, "line 1\nline 2");
    EXPECT_EQ(all.photo, QByteArray());
    EXPECT_EQ(all.getAltBirthdayType(), 0);
    EXPECT_EQ(notices().filter("AddressBook"), QStringList());
}

TEST_F(AddressBookTest, PropertiesStandInTheOrderOfThePhoneWithTheirLabels)
{
    openBook({people("First", "('Mia')"),
        "INSERT INTO ABMultiValueLabel VALUES ('_$!<Mobile>!$_'), ('iPhone'), ('the <boat>')",
        values("(1, 4, 0, 1, 'mia@example.org'), (1, 3, 2, 3, '3'), (1, 3, 1, 2, '2'),"
               " (1, 3, 1, NULL, '2b'), (1, 3, 0, 99, '1'), (1, 22, 0, 1, 'http://a.example'),"
               " (1, 23, 0, 1, 'Jo'), (1, 16, 0, 1, 'tone'), (2, 3, 0, 1, 'of nobody')")});
    EXPECT_EQ(properties(0), QStringList({"3 : 1", "3 iPhone: 2", "3 : 2b", "3 the <boat>: 3",
                                 "4 _$!<Mobile>!$_: mia@example.org",
                                 "22 _$!<Mobile>!$_: http://a.example", "23 _$!<Mobile>!$_: Jo"}));
}

TEST_F(AddressBookTest, CompositeValuesAreMapsUnderTheUsualKeys)
{
    openBook({people("First", "('Mia')"), "INSERT INTO ABMultiValueLabel VALUES ('_$!<Home>!$_')",
        R"(INSERT INTO ABMultiValueEntryKey VALUES ('STREET'), ('zip'), ('countrycode'),
            ('Service'), ('UserName'), ('url'), ('sublocality'), ('Own'))",
        values("(1, 5, 0, 1, NULL), (1, 13, 0, 1, NULL), (1, 46, 0, 1, NULL)"),
        R"(INSERT INTO ABMultiValueEntry VALUES
            (1, 1, 'Hafen 1' || char(13, 10) || 'Haus 2'), (1, 2, '20359'), (1, 3, 'de'),
            (1, 7, 'Altstadt'), (1, 8, 'x'), (1, 99, 'no key'), (2, 4, 'Skype'), (2, 5, 'mia'),
            (3, 4, 'twitter'), (3, 5, 'mia'), (3, 6, 'http://t.example/mia'),
            (77, 1, 'of no value'))"});
    EXPECT_EQ(properties(0),
        QStringList({"5 _$!<Home>!$_: CountryCode=de; Own=x; Street=Hafen 1\nHaus 2;"
                     " SubLocality=Altstadt; ZIP=20359",
            "13 _$!<Home>!$_: service=Skype; username=mia",
            "46 _$!<Home>!$_: service=twitter; url=http://t.example/mia; username=mia"}));
}

TEST_F(AddressBookTest, CompositeValueThatIsOneTextStandsUnderItsMainKey)
{
    openBook({people("First", "('Mia')"),
        values("(1, 5, 0, 0, 'Hafen 1'), (1, 13, 0, 0, 'mia'), (1, 46, 0, 0, 'mia46')")});
    EXPECT_EQ(properties(0),
        QStringList({"5 : Street=Hafen 1", "13 : username=mia", "46 : username=mia46"}));
}

TEST_F(AddressBookTest, ValuesThatHoldNothingAreLeftOut)
{
    openBook({people("First", "('Mia')"),
        values("(1, 3, 0, 0, ''), (1, 3, 1, 0, NULL), (1, 5, 0, 0, NULL), (1, 12, 0, 0, 'soon'),"
               " (1, NULL, 0, 0, 'x'), (1, -3, 0, 0, 'x'), (1, 'x', 0, 0, 'x'), (NULL, 3, 0, 0, "
               "'1')")});
    EXPECT_EQ(properties(0), QStringList());
}

TEST_F(AddressBookTest, DatesAreNoonOfTheirDay)
{
    openBook({people("First, Birthday", "('Mia', '-16070400.0')"),
        values("(1, 12, 0, 0, '-12493375200'), (1, 12, 1, 0, '86399')")});
    // 2000-06-29; -12493375200 is 18:00 of 1605-02-06.
    EXPECT_EQ(contact(0).birthday, "-16027200");
    EXPECT_EQ(properties(0), QStringList({"12 : -12493396800", "12 : 43200"}));
}

TEST_F(AddressBookTest, WhoHasNoNameIsCalledByWhatElseTheCardTells)
{
    openBook({people("ROWID, Organization, Nickname, CompositeNameFallback, Last",
                  "(1, 'Org', 'Nick', NULL, NULL), (2, NULL, 'Nick', 'x', NULL),"
                  " (3, NULL, NULL, 'Fallback', NULL), (4, NULL, NULL, NULL, NULL),"
                  " (5, '', ' ', '', ''), (6, NULL, NULL, NULL, NULL),"
                  " (7, NULL, NULL, NULL, NULL), (8, NULL, NULL, NULL, 'Last')"),
        values("(4, 4, 0, 0, 'a@example.org'), (4, 3, 1, 0, '+49 2'), (4, 3, 0, 0, '+49 1'),"
               " (5, 4, 0, 0, 'b@example.org'), (6, 22, 0, 0, 'http://c.example')")});
    QStringList all = names();
    all.sort();
    EXPECT_EQ(all, QStringList({"+49 1", "Fallback", "Last", "Nick", "No Name", "Org",
                       "b@example.org", "http://c.example"}));
}

TEST_F(AddressBookTest, PeopleStandInTheOrderOfThePhonesList)
{
    openBook({people("First, LastSortLanguageIndex, LastSortSection, LastSort, Last",
        "('no place', NULL, NULL, NULL, 'Aal'), ('d', 1, 'A', 'x', ''), ('c', 0, 'B', 'y', ''),"
        " ('a', 0, 'A', CAST(x'3101' AS TEXT), ''), ('b', 0, 'A', CAST(x'310102' AS TEXT), ''),"
        " ('e', 2147483647, '#', 'a', '')")});
    EXPECT_EQ(names(), QStringList({"a", "b", "c", "d", "e", "no place Aal"}));
}

TEST_F(AddressBookTest, WithoutSortNamesPeopleStandByLastName)
{
    openBook({people("First, Last, Organization, Kind, LastPhonetic",
        "('Zoe', 'adler', '', 0, ''), ('Al', 'Zeh', '', 0, ''), ('Bo', 'Ärmel', '', 0, ''),"
        " ('', '', 'Boot AG', 1, ''), ('7', '', '', 0, ''), ('', '', '', 0, ''),"
        " ('伟', '王', '', 0, 'Wang'), ('Anna', 'Adler', '', 0, '')")});
    EXPECT_EQ(names(), QStringList({"Anna Adler", "Zoe adler", "Bo Ärmel", "Boot AG", "王伟",
                           "Al Zeh", "7", "No Name"}));
}

TEST_F(AddressBookTest, LinkedCardsAreOnePerson)
{
    openBook({people("ROWID, First, Last, PersonLink, IsPreferredName, Nickname, Organization,"
                     " JobTitle, Birthday, Note",
                  "(1, 'Tom', 'B', 5, 0, 'Tommy', 'Shop', NULL, NULL, 'one'),"
                  " (2, 'Thomas', NULL, 5, 1, NULL, NULL, NULL, NULL, 'two'),"
                  " (3, NULL, NULL, 5, 0, 'T', 'Other', 'Boss', '504878400', 'one'),"
                  " (4, 'Alone', NULL, -1, 1, NULL, NULL, NULL, NULL, NULL),"
                  " (5, 'Alone too', NULL, 0, 1, NULL, NULL, NULL, NULL, NULL),"
                  " (6, 'Alone 0', NULL, 0, 1, NULL, NULL, NULL, NULL, NULL),"
                  " (7, 'Null', NULL, NULL, 1, NULL, NULL, NULL, NULL, NULL)"),
        values("(1, 3, 0, 0, '+49 171-1'), (1, 4, 0, 0, 'Tom@example.org'),"
               " (2, 3, 0, 0, '+491711'), (2, 3, 1, 0, '+491711'),"
               " (3, 4, 0, 0, 'tom@example.org'), (3, 3, 0, 0, '+49 172')")});
    QStringList all = names();
    all.sort();
    ASSERT_EQ(all, QStringList({"Alone", "Alone 0", "Alone too", "Null", "Thomas"}));
    const int row = names().indexOf("Thomas");
    const PRContactPrivate& tom = contact(row);
    EXPECT_EQ(tom.firstName, "Thomas");
    EXPECT_EQ(tom.lastName, "");
    EXPECT_EQ(tom.nickname, "Tommy");
    EXPECT_EQ(tom.organization, "Shop");
    EXPECT_EQ(tom.jobTitle, "");
    EXPECT_EQ(tom.birthday, "504878400");
    EXPECT_EQ(tom.note, "two\none");
    EXPECT_EQ(properties(row),
        QStringList({"3 : +491711", "3 : +491711", "3 : +49 172", "4 : Tom@example.org"}));
}

TEST_F(AddressBookTest, TableOfLinksSaysWhoGivesNameAndPicture)
{
    addBook({people("ROWID, First, PersonLink, IsPreferredName",
                 "(1, 'One', 3, 1), (2, 'Two', 3, 0), (3, 'Three', 3, 0), (4, 'Four', 4, 1)"),
        "INSERT INTO ABPersonLink VALUES (3, 3, 2), (4, 3, 1)"}); // 1 and 3 are not of link 4
    addPictures({"INSERT INTO ABFullSizeImage (record_id, data) VALUES (1, 'one'), (3, 'three'),"
                 " (4, 'four')"});
    openFolder();
    ASSERT_EQ(names(), QStringList({"Four", "Two"}));
    EXPECT_EQ(contact(0).photo, "four");
    EXPECT_EQ(contact(1).photo, "three");
}

TEST_F(AddressBookTest, PhotoIsTheFullPictureElseTheLargestThumbnail)
{
    addBook({people("First", "('1'), ('2'), ('3'), ('4')")});
    addPictures({"INSERT INTO ABFullSizeImage (record_id, data) VALUES (1, x'FFD8FF00'), (2, NULL),"
                 " (3, x'')",
        "INSERT INTO ABThumbnailImage (record_id, format, data) VALUES (1, 5, 'longer than it'),"
        " (2, 0, 'small'), (2, 5, 'the largest'), (2, 4, 'medium'), (3, 0, 'only')"});
    openFolder();
    ASSERT_EQ(count(), 4);
    EXPECT_EQ(contact(0).photo, QByteArray::fromHex("FFD8FF00"));
    EXPECT_EQ(contact(1).photo, "the largest");
    EXPECT_EQ(contact(2).photo, "only");
    EXPECT_EQ(contact(3).photo, QByteArray());
}

TEST_F(AddressBookTest, ContactHoldsUntilTheNextOneIsAskedFor)
{
    openBook({people("First", "('A'), ('B')")});
    const PRContactPrivate* first = &contact(0);
    EXPECT_EQ(&contact(0), first);
    EXPECT_EQ(first->firstName, "A");
    EXPECT_EQ(contact(1).firstName, "B");
    EXPECT_EQ(contact(0).firstName, "A");
}

TEST_F(AddressBookTest, LooseBookFindsThePicturesBesideIt)
{
    writeFile(m_directory.filePath("AddressBookImages.sqlitedb"),
        databaseBytes(
            pictureTables()
            + QStringList("INSERT INTO ABFullSizeImage (record_id, data) VALUES (1, 'me')"))
            .file);
    openFile(bookTables() + QStringList(people("First, ImageType", "('Mia', 'PHOTO')")));
    ASSERT_EQ(names(), QStringList("Mia"));
    EXPECT_EQ(contact(0).photo, "me");
    EXPECT_EQ(notices(), QStringList());
}

TEST_F(AddressBookTest, ContactsOfTheWriteAheadLogAreRead)
{
    builder().addDatabaseWithLog("HomeDomain", "Library/AddressBook/AddressBook.sqlitedb",
        bookTables(), {people("First", "('Logged')"), values("(1, 3, 0, 0, '+49 1')")});
    builder().addDatabaseWithLog("HomeDomain", "Library/AddressBook/AddressBookImages.sqlitedb",
        pictureTables(), {"INSERT INTO ABFullSizeImage (record_id, data) VALUES (1, 'me')"});
    openFolder();
    ASSERT_EQ(names(), QStringList("Logged"));
    EXPECT_EQ(contact(0).photo, "me");
    EXPECT_EQ(properties(0), QStringList("3 : +49 1"));
}

TEST_F(AddressBookTest, TenThousandContactsAreReadInAnyOrder)
{
    QStringList statements{
        R"(WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 10000)
           INSERT INTO ABPerson (First, LastSortSection, LastSort)
           SELECT 'N' || i, 'A', printf('%05d', 10000 - i) FROM n)",
        "INSERT INTO ABMultiValue (record_id, property, value) SELECT ROWID, 3, '+' || ROWID FROM"
        " ABPerson"};
    openBook(statements);
    ASSERT_EQ(count(), 10000);
    for (const int row : {0, 9999, 5000, 1}) {
        EXPECT_EQ(contact(row).firstName, QString("N%1").arg(10000 - row));
        EXPECT_EQ(properties(row), QStringList(QString("3 : +%1").arg(10000 - row)));
    }
}

} // namespace

// SPDX-License-Identifier: MIT
// Address books of real phones, and a small one that others made by hand. They lie beside the
// project, or where DATAEXPORT_TEST_DATA says; the tests are passed over where they are absent.
#include "AddressBookTest.h"

#include <QDir>
#include <QFileInfo>

namespace {

class RealContacts : public AddressBookTest {
protected:
    bool open(const QString& path)
    {
        const QString directory = qEnvironmentVariable(
            "DATAEXPORT_TEST_DATA", QStringLiteral(DATAEXPORT_SOURCE_DIR "/../shared/data"));
        m_file = QDir(directory).filePath(path);
        if (!QFileInfo::exists(m_file)) {
            return false;
        }
        take(QFileInfo(m_file).isDir() ? backup::openBackupFolder(m_file)
                                       : backup::openDatabaseFile(m_file));
        return true;
    }

    QString m_file;
};

TEST_F(RealContacts, PeopleOfIos15AreThereAndTwoCardsAreOne)
{
    if (!open("databases/ios15-addressbook/filesystem2/mobile/Library/AddressBook"
              "/AddressBook.sqlitedb")) {
        GTEST_SKIP() << "there is no " << m_file.toStdString();
    }
    // The order is that of the store's sort keys.
    ASSERT_EQ(names(), QStringList({"Apple Inc.", "Thom De'Fer", "This DFIR", "This Is DFIR",
                           "This Is DFIR Two", "ThisIs DFIRThree", "Josh Hickman", "Liz"}));
    EXPECT_EQ(properties(0),
        QStringList({"3 _$!<Main>!$_: 1-800-MY-APPLE",
            "5 _$!<Work>!$_: City=Cupertino; Country=United States; CountryCode=us; State=CA;"
            " Street=One Apple Park Way; ZIP=95014",
            "22 _$!<HomePage>!$_: http://www.apple.com"}));
    EXPECT_EQ(properties(4), QStringList({"3 _$!<Mobile>!$_: (919) 888-7386",
                                 "4 _$!<Home>!$_: thisisdfirtwo@gmail.com"}));
    EXPECT_EQ(properties(6), QStringList({"3 _$!<Mobile>!$_: (919) 579-0479",
                                 "3 TextNow: (919) 391-2507", "4 : joshuahickman957@gmail.com"}));
    EXPECT_EQ(contact(2).photo.size(), 130830);
    EXPECT_TRUE(contact(2).photo.startsWith("\xFF\xD8\xFF"));
    EXPECT_EQ(contact(3).photo.size(), 208637);
    EXPECT_TRUE(contact(3).photo.startsWith("\x89PNG"));
    EXPECT_EQ(contact(6).photo, QByteArray());
    EXPECT_EQ(notices(), QStringList());
}

TEST_F(RealContacts, BookThatLiesInItsLogAloneIsRead)
{
    if (!open("databases/ios16-addressbook-all-in-wal/private/var/mobile/Library/AddressBook"
              "/AddressBook.sqlitedb")) {
        GTEST_SKIP() << "there is no " << m_file.toStdString();
    }
    EXPECT_EQ(names(), QStringList()); // its table of people is empty
    EXPECT_EQ(notices(), QStringList());
}

TEST_F(RealContacts, HandMadeBookIsRead)
{
    if (!open("databases/miniatures/contacts/testdata/contacts.1.AddressBook.sqlitedb")) {
        GTEST_SKIP() << "there is no " << m_file.toStdString();
    }
    ASSERT_EQ(names(),
        QStringList({"Acme Synthetics", "Dr. Alex Quinn Fixture Jr.", "Broken Label", "Solo"}));
    EXPECT_EQ(contact(1).birthday, "-339336000"); // noon of 1990-04-01
    const QString address = "5 _$!<Home>!$_: City=Faketown; Country=Fixtureland; State=FX;"
                            " Street=1 Synthetic Way; ZIP=00001";
    EXPECT_EQ(properties(1),
        QStringList({"3 _$!<Home>!$_: +1 555 0100", "3 _$!<Work>!$_: +1 555 0101",
            "3 : +1 555 0102", "4 _$!<Home>!$_: alex@example.com", address,
            "13 : username=fixture-im", "22 fixture custom: https://alex.example.com"}));
    EXPECT_EQ(properties(2), QStringList("3 : +1 555 0199"));
    EXPECT_EQ(notices(), QStringList());
}

TEST_F(RealContacts, NewIphonesHaveNoContacts)
{
    for (const char* path : {"backups/ios-13.3", "backups/ios-14.0-beta"}) {
        if (!open(path)) {
            GTEST_SKIP() << "there is no " << m_file.toStdString();
        }
        EXPECT_EQ(names(), QStringList());
        EXPECT_EQ(notices().filter("AddressBook"), QStringList());
    }
}

} // namespace

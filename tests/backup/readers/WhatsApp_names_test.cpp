// SPDX-License-Identifier: MIT
#include "WhatsAppTest.h"
#include "backup/readers/WhatsAppPeople.h"

namespace {

constexpr const char* kContacts = "ContactsV2.sqlite";

class WhatsAppNamesTest : public WhatsAppTest {
protected:
    static QStringList contactTables()
    {
        return {"CREATE TABLE ZWAADDRESSBOOKCONTACT (Z_PK INTEGER PRIMARY KEY, ZFULLNAME BLOB,"
                " ZHIGHLIGHTEDNAME BLOB, ZGIVENNAME BLOB, ZLASTNAME BLOB, ZWHATSAPPID BLOB,"
                " ZLID BLOB)"};
    }
    static QString contact(const QString& columns, const QString& values)
    {
        return row("ZWAADDRESSBOOKCONTACT", columns, values);
    }
    static QStringList addressBook(const QString& name, const QString& number)
    {
        return {"CREATE TABLE ABPerson (ROWID INTEGER PRIMARY KEY, First TEXT, Last TEXT,"
                " Organization TEXT, Nickname TEXT)",
            "CREATE TABLE ABMultiValue (UID INTEGER PRIMARY KEY, record_id INTEGER,"
            " property INTEGER, label INTEGER, value TEXT)",
            "INSERT INTO ABPerson (ROWID, First) VALUES (1, '" + name + "')",
            "INSERT INTO ABMultiValue VALUES (1, 1, 3, NULL, '" + number + "')"};
    }
};

// Each source knows a name of its own; what comes first wins.
TEST_F(WhatsAppNamesTest, NameComesFromTheApplicationThenThePhoneThenThePerson)
{
    const QString partner = chat(1, "4915551234567@s.whatsapp.net", "%1", 0);
    struct Case {
        const char* what = nullptr;
        const char* contact = nullptr;
        const char* partner = nullptr;
        const char* member = nullptr;
        const char* book = nullptr;
        const char* profile = nullptr;
        const char* message = nullptr;
        const char* shown = nullptr;
    };
    const std::vector<Case> cases{
        {"contact", "Contact", "Partner", "Member", "Book", "Profile", "Message", "Contact"},
        {"partner", "", "Partner", "Member", "Book", "Profile", "Message", "Partner"},
        {"member", "", "+49 1555 1234567", "Member", "Book", "Profile", "Message", "Member"},
        {"address book", "", "+49 1555 1234567", "", "Book", "Profile", "Message", "Book"},
        {"profile", "", "+49 1555 1234567", "", "", "Profile", "Message", "Profile"},
        {"message", "", "+49 1555 1234567", "+49 1555 1234567", "", "", "Message", "Message"},
        {"bytes", "", "", "", "", "CgNCZW4SDTQ5MTU1NTEyMzQ1NjcYBw==", "", "+4915551234567"},
        {"number", "", "", "", "", "", "", "+4915551234567"},
    };
    int number = 0;
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        const QString address = "4915551234567@s.whatsapp.net";
        const QString folder = m_directory.filePath(QString("backup%1").arg(++number));
        BackupBuilder(folder)
            .addDatabase(kDomain, kStore,
                tables() << chat(1, address, each.partner, 0) << chat(2, "1203@g.us", "Choir", 1)
                         << member(21, 2, address, each.member)
                         << row("ZWAPROFILEPUSHNAME", "ZJID, ZPUSHNAME",
                                QString("'%1', '%2'").arg(address, each.profile))
                         << message(1, 2, "Hi", "ZGROUPMEMBER, ZPUSHNAME",
                                QString("21, '%1'").arg(each.message)))
            .addDatabase(kDomain, kContacts,
                contactTables() << contact(
                    "ZWHATSAPPID, ZFULLNAME", QString("'%1', '%2'").arg(address, each.contact)))
            .addDatabase("HomeDomain", "Library/AddressBook/AddressBook.sqlitedb",
                addressBook(each.book, "0049 1555 1234567"))
            .finish();
        take(backup::openBackupFolder(folder));
        EXPECT_EQ(messages(), QStringList(QString("0 < %1: Hi").arg(each.shown)));
    }
}

TEST_F(WhatsAppNamesTest, ContactMayHaveItsNameInParts)
{
    builder().addDatabase(kDomain, kContacts,
        contactTables() << contact("ZWHATSAPPID, ZFULLNAME", "'491', 'Without suffix'")
                        << contact("ZWHATSAPPID, ZHIGHLIGHTEDNAME",
                               "'492@s.whatsapp.net', 'Highlighted'")
                        << contact("ZWHATSAPPID, ZGIVENNAME, ZLASTNAME", "'493', 'Mia', 'Jansen'")
                        << contact("ZWHATSAPPID, ZGIVENNAME", "'494', 'Mia'"));
    QStringList statements;
    for (int id = 1; id <= 4; ++id) {
        statements << chat(id, QString("49%1@s.whatsapp.net").arg(id), QString(), 0)
                   << message(id, id, "Hi");
    }
    open(statements);
    EXPECT_EQ(
        column(kChats, 0), QStringList({"Mia", "Mia Jansen", "Highlighted", "Without suffix"}));
}

TEST_F(WhatsAppNamesTest, HiddenNumberIsFoundWhereItIsKnown)
{
    builder()
        .addDatabase(kDomain, "LID.sqlite",
            {"CREATE TABLE ZWAPHONENUMBERLIDPAIR (Z_PK INTEGER PRIMARY KEY, ZLID TEXT,"
             " ZPHONENUMBER TEXT)",
                "INSERT INTO ZWAPHONENUMBERLIDPAIR VALUES (1, '1001@lid', '12025550114'),"
                " (2, '1002', '4930@s.whatsapp.net')"})
        .addDatabase(kDomain, kContacts,
            contactTables() << contact("ZWHATSAPPID, ZLID, ZFULLNAME", "'4940', '1004', 'Ole'"));
    open(chats() << chat(3, "1001@lid", "", 0) << chat(4, "1002@lid", "", 0)
                 << chat(5, "1003@lid", "", 0) << chat(6, "1004@lid", "", 0) << message(3, 3, "a")
                 << message(4, 4, "b") << message(5, 5, "c") << message(6, 6, "d"));
    EXPECT_EQ(
        lines(kChats), QStringList({"Ole | Ole | +4940", "1003 | 1003 | ", "+4930 | +4930 | +4930",
                           "Ben Carter | Ben Carter | +12025550114"}));
}

TEST_F(WhatsAppNamesTest, HiddenAndOpenAddressOfAPersonShareTheirName)
{
    builder().addDatabase(kDomain, "LID.sqlite",
        {"CREATE TABLE ZWAPHONENUMBERLIDPAIR (Z_PK INTEGER PRIMARY KEY, ZLID TEXT,"
         " ZPHONENUMBER TEXT)",
            "INSERT INTO ZWAPHONENUMBERLIDPAIR VALUES (1, '1001@lid', '4930'),"
            " (2, '1002@lid', '4940'), (3, '1001@lid', NULL)"});
    const QString profile = "ZJID, ZPUSHNAME";
    open({chat(1, "1001@lid", "Ole", 0), chat(2, "1203@g.us", "Choir", 1),
        member(21, 2, "4930@s.whatsapp.net", ""), member(22, 2, "4940@s.whatsapp.net", ""),
        member(23, 2, "1001@lid", ""), member(24, 2, "1003@lid", ""),
        row("ZWAPROFILEPUSHNAME", profile, "'1002@lid', 'Zara'"),
        row("ZWAPROFILEPUSHNAME", profile, "NULL, 'Nobody'"), message(1, 1, "Hi"),
        message(2, 2, "a", "ZGROUPMEMBER", "21"), message(3, 2, "b", "ZGROUPMEMBER", "22"),
        message(4, 2, "c", "ZGROUPMEMBER", "24")});
    EXPECT_EQ(messages(), QStringList({"0 < Ole: a", "0 < Zara: b", "0 < 1003: c"}));
    EXPECT_EQ(lines(kChats), QStringList({"Choir | Choir | +4930,+4940", "Ole | Ole | +4930"}));
}

// The hyphen of phones is U+2011.
TEST_F(WhatsAppNamesTest, NumberInPlaceOfANameIsNone)
{
    open({chat(1, ben(), "\u202A+1\u00A0(202)\u00A0555\u20110114\u202C", 0),
        chat(2, "1203@g.us", "Choir", 1),
        row("ZWAPROFILEPUSHNAME", "ZJID, ZPUSHNAME", "'" + ben() + "', 'Ben'"), message(1, 1, "Hi"),
        message(2, 2, "Hi", "ZFROMJID", "'" + ben() + "'")});
    EXPECT_EQ(column(kChats, 0), QStringList({"Choir", "Ben"}));
    EXPECT_EQ(messages(), QStringList("0 < Ben: Hi"));
}

TEST_F(WhatsAppNamesTest, NamesLoseTheirMarks)
{
    open({chat(1, "49@s.whatsapp.net", "\u200E\u2068Ben\u2069 ", 0), message(1, 1, "Hi")});
    EXPECT_EQ(column(kChats, 0), QStringList("Ben"));
    EXPECT_EQ(backup::cleanName("\u202ABen\u202C  Carter"), "Ben Carter");
}

TEST_F(WhatsAppNamesTest, GroupWithoutANameIsNamedByItsMembers)
{
    open({chat(1, "1203@g.us", "", 1), member(1, 1, ben(), "Ben"), member(2, 1, mia(), "Mia"),
        message(1, 1, "Hi")});
    EXPECT_EQ(lines(kChats), QStringList("Ben, Mia | Ben, Mia | +12025550114,+31205550120"));
}

TEST_F(WhatsAppNamesTest, GroupThatAllHaveLeftIsNamedByThem)
{
    open({chat(1, "1203@g.us", "", 1), member(1, 1, ben(), "Ben", 0), member(2, 1, mia(), "Mia", 0),
        message(1, 1, "Hi")});
    EXPECT_EQ(lines(kChats), QStringList("Ben, Mia | Ben, Mia | "));
}

TEST_F(WhatsAppNamesTest, ChatOfAnUnknownKindIsNamedByItsAddress)
{
    open({chat(1, ben(), "", 77), chat(2, "1203@g.us", "Choir", 77), message(1, 1, "Hi"),
        message(2, 2, "Hi")});
    EXPECT_EQ(lines(kChats),
        QStringList({"Choir | Choir | ", "+12025550114 | +12025550114 | +12025550114"}));
}

TEST_F(WhatsAppNamesTest, TwinsDoNotShareTheirContacts)
{
    const QString address = "49@s.whatsapp.net";
    builder()
        .addDatabase(kDomain, kStore, tables() << chat(1, address, "", 0) << message(1, 1, "Hi"))
        .addDatabase(kBusiness, kStore, tables() << chat(1, address, "", 0) << message(1, 1, "Hi"))
        .addDatabase(kBusiness, kContacts,
            contactTables() << contact("ZWHATSAPPID, ZFULLNAME", "'49', 'Customer'"));
    openFolder();
    EXPECT_EQ(column(kBusinessChats, 0), QStringList("Customer"));
    EXPECT_EQ(column(kChats, 0), QStringList("+49"));
}

TEST_F(WhatsAppNamesTest, LooseStoreHasItsContactsBeside)
{
    writeFile(m_directory.filePath(kContacts),
        databaseBytes(contactTables() << contact("ZWHATSAPPID, ZFULLNAME", "'49', 'Beside'")).file);
    openFile(tables() << chat(1, "49@s.whatsapp.net", "", 0) << message(1, 1, "Hi"));
    EXPECT_EQ(column(kChats, 0), QStringList("Beside"));
}

TEST_F(WhatsAppNamesTest, ContactsThatAreNoDatabaseAreTold)
{
    builder().add(kDomain, kContacts, "no database");
    open({chat(1, "49@s.whatsapp.net", "", 0), message(1, 1, "Hi")});
    EXPECT_EQ(column(kChats, 0), QStringList("+49"));
    EXPECT_EQ(notices("ContactsV2").size(), 1);
}

TEST(WhatsAppPeople, PersonsAreToldFromGroupsAndLists)
{
    for (const char* person : {"49@s.whatsapp.net", "1@lid", "49@c.us"}) {
        EXPECT_TRUE(backup::isPerson(person)) << person;
    }
    for (const char* other :
        {"", "1203@g.us", "123@broadcast", "status@broadcast", "120@newsletter"}) {
        EXPECT_FALSE(backup::isPerson(other)) << other;
    }
}

} // namespace

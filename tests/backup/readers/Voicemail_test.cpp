// SPDX-License-Identifier: MIT
#include "LazyTableTest.h"

namespace {

constexpr int kVoicemail = 4;
const QString kPlace = "Library/Voicemail/";

const QString kTable =
    R"(CREATE TABLE voicemail (ROWID INTEGER PRIMARY KEY AUTOINCREMENT, remote_uid INTEGER,
            date INTEGER, token TEXT, sender TEXT, callback_num TEXT, duration INTEGER,
            expiration INTEGER, trashed_date INTEGER, flags INTEGER))";

// 2023-03-08 20:26:40 UTC is 1,678,307,200 seconds after 1970 began. `values`: sender, number to
// call back, when it was put into the trash, flags
QString message(int id, const QString& values)
{
    return QString("INSERT INTO voicemail (ROWID, date, duration, sender, callback_num,"
                   " trashed_date, flags) VALUES (%1, 1678307200 - %1 * 60, 12, %2)")
        .arg(id)
        .arg(values);
}

class VoicemailTest : public LazyTableTest {
protected:
    void add(const QString& name) { builder().add("HomeDomain", kPlace + name, name.toUtf8()); }

    void open(const QStringList& statements)
    {
        builder().addDatabase(
            "HomeDomain", kPlace + "voicemail.db", QStringList{kTable} + statements);
        openFolder();
    }
};

TEST_F(VoicemailTest, MessageHasNameNumberDateAndDuration)
{
    builder().addDatabase("HomeDomain", "Library/AddressBook/AddressBook.sqlitedb",
        {R"(CREATE TABLE ABPerson (ROWID INTEGER PRIMARY KEY, First TEXT, Last TEXT, Nickname TEXT,
            Organization TEXT))",
            R"(CREATE TABLE ABMultiValue (UID INTEGER PRIMARY KEY, record_id INTEGER,
            property INTEGER, value TEXT))",
            "INSERT INTO ABPerson (First) VALUES ('Mia')",
            "INSERT INTO ABMultiValue (record_id, property, value) VALUES (1, 3, '0171 5550101')"});
    add("0.amr");
    add("1.amr");
    open({message(0, "'+491715550101', NULL, 0, 67"), message(1, "NULL, NULL, 0, 3")});
    EXPECT_EQ(lines(kVoicemail),
        QStringList({"Mia 2023-03-08 22.26.amr | +491715550101 | 2023-03-08 22:26 | 0:00:12 | ",
            "Unknown 2023-03-08 22.25.amr |  | 2023-03-08 22:25 | 0:00:12 | "}));
    EXPECT_EQ(files(kVoicemail),
        QStringList({"Mia 2023-03-08 22.26.amr = 0.amr", "Unknown 2023-03-08 22.25.amr = 1.amr"}));
}

TEST_F(VoicemailTest, DeletedOnesAreKnownByDateOrFlags)
{
    open({message(1, "'1', '9', 700000000, 67"), message(2, "NULL, '2', NULL, 75"),
        message(3, "'3', NULL, NULL, NULL")});
    EXPECT_EQ(lines(kVoicemail).filter(QRegularExpression("^x ")).size(), 2);
    EXPECT_EQ(column(kVoicemail, 1), QStringList({"1", "2", "3"}));
    EXPECT_EQ(
        notices("not in the backup"), QStringList("Recordings that are not in the backup: 3"));
}

TEST_F(VoicemailTest, WordsComeFromTheTranscript)
{
    add("1.amr");
    add("2.amr");
    add("3.amr");
    builder().add("HomeDomain", kPlace + "1.transcript", propertyList(R"(
        <key>$archiver</key><string>NSKeyedArchiver</string>
        <key>$version</key><integer>100000</integer>
        <key>$top</key><dict><key>root</key><dict><key>CF$UID</key><integer>1</integer></dict></dict>
        <key>$objects</key><array><string>$null</string><dict>
            <key>transcriptionString</key><dict><key>CF$UID</key><integer>2</integer></dict>
            <key>confidence</key><real>0.7</real>
        </dict><string>Call me back!</string></array>)"));
    builder().add("HomeDomain", kPlace + "2.transcript", "no property list");
    open({message(1, "'1', NULL, 0, 67"), message(2, "'2', NULL, 0, 67"),
        message(3, "'3', NULL, 0, 67")});
    EXPECT_EQ(column(kVoicemail, 4), QStringList({"Call me back!", "", ""}));
}

TEST_F(VoicemailTest, SoundsWithoutARowAreListedToo)
{
    add("1.amr");
    add("Greeting.amr");
    add("5F0C/AB.amr");
    add("1.transcript");
    open({message(1, "'1', NULL, 0, 67")});
    EXPECT_EQ(
        column(kVoicemail, 0), QStringList({"1 2023-03-08 22.25.amr", "AB.amr", "Greeting.amr"}));
}

TEST_F(VoicemailTest, WithoutAStoreTheSoundsAreThere)
{
    add("1.amr");
    openFolder();
    EXPECT_EQ(files(kVoicemail), QStringList("1.amr = 1.amr"));
}

TEST_F(VoicemailTest, EmptyStoreIsASetWithoutRecords)
{
    open({});
    EXPECT_NE(m_opened->records.getPRData(kVoicemail), nullptr);
    EXPECT_EQ(lines(kVoicemail), QStringList());
    EXPECT_EQ(notices("Recordings that"), QStringList());
}

TEST_F(VoicemailTest, OddValuesCostNoMessage)
{
    openFile(
        QStringList{kTable} + QStringList{R"(INSERT INTO voicemail (date, sender, duration) VALUES
            ('soon', x'ff', 'long'), (9e999, '../..', -1))"});
    EXPECT_EQ(column(kVoicemail, 3), QStringList({"", ""}));
    EXPECT_EQ(column(kVoicemail, 2), QStringList({"", ""}));
}

} // namespace

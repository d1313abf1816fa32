// SPDX-License-Identifier: MIT
#include "contact_sets.h"
#include "interchange/ExportCSVFile_Google.h"
#include "interchange_access.h"

#include <QString>

#include <gtest/gtest.h>

#include <array>

using contacts::commas;
using contacts::composite;
using contacts::plain;
using contacts::with;

namespace {

const QString kFixed =
    "Name,Given Name,Additional Name,Family Name,Yomi Name,Given Name Yomi,Additional Name Yomi,"
    "Family Name Yomi,Name Prefix,Name Suffix,Initials,Nickname,Short Name,Maiden Name,Birthday,"
    "Gender,Location,Billing Information,Directory Server,Mileage,Occupation,Hobby,Sensitivity,"
    "Priority,Subject,Notes,Language,Photo,Group Membership";
const QString kOrganization =
    ",Organization 1 - Type,Organization 1 - Name,Organization 1 - Yomi Name,"
    "Organization 1 - Title,Organization 1 - Department,Organization 1 - Symbol,"
    "Organization 1 - Location,Organization 1 - Job Description";

// What a contact without any value has in its row: the four semicolons of the name, 28 fixed
// fields, one for each of E-mail, Phone and Address, eight of the organization, and four more
// series.
const QString kEmptyFixed = ":;;;" + commas(28);
const QString kEmptyRow = kEmptyFixed + commas(3) + commas(8) + commas(4);

QString exported(std::vector<ContactContent> contents)
{
    return contacts::exported<ExportCSVFile_Google>(contacts::kGoogleFile, std::move(contents));
}

QStringList lines(std::vector<ContactContent> contents)
{
    return contacts::exportedLines<ExportCSVFile_Google>(
        contacts::kGoogleFile, std::move(contents));
}

// What the handlers made of one contact, by the keys of the field table.
QMap<QString, QString> record(ContactContent content)
{
    const support::TempTree tree;
    std::vector<ContactContent> contents;
    contents.push_back(std::move(content));
    PRContactData data(contacts::records(std::move(contents)));
    ExportCSVFile_Google exporter(nullptr);
    EXPECT_EQ(exporter.exportContacts(&data, tree.dir(), "Anna", "Contacts"), 0);
    EXPECT_EQ(access_to::records(exporter).size(), 1);
    return access_to::records(exporter).value(0);
}

QString field(const char* key, const std::vector<ContactProperty>& properties)
{
    return record(with(properties)).value(key);
}

} // namespace

TEST(GoogleCsv, WithoutContactsIsItsHeader)
{
    EXPECT_EQ(exported({}), kFixed + kOrganization + "\r\n");
}

TEST(GoogleCsv, HeaderHasAsManyGroupsAsTheLargestContactNeeds)
{
    const QStringList file = lines({
        with({plain(Email, "", "a"), plain(Phone, "", "1"), plain(RelatedName, "", "r"),
            plain(Date, "", "0"), composite(InstantMessage, {})}),
        with({plain(Email, "", "a"), plain(Email, "", "b"), composite(Address, {}),
            plain(WebAddress, "", "w")}),
    });
    EXPECT_EQ(file.first(),
        kFixed
            + ",E-mail 1 - Type,E-mail 1 - Value,E-mail 2 - Type,E-mail 2 - Value"
              ",Phone 1 - Type,Phone 1 - Value"
              ",Address 1 - Type,Address 1 - Formatted,Address 1 - Street,Address 1 - City"
              ",Address 1 - PO Box,Address 1 - Region,Address 1 - Postal Code"
              ",Address 1 - Country,Address 1 - Extended Address"
            + kOrganization
            + ",Relation 1 - Type,Relation 1 - Value,Website 1 - Type,Website 1 - Value"
              ",Event 1 - Type,Event 1 - Value,Custom Field 1 - Type,Custom Field 1 - Value");
    EXPECT_EQ(file.size(), 3);
}

TEST(GoogleCsv, RichContactsComeOutWhole)
{
    const QStringList file = lines({contacts::rich(), contacts::plainOne()});
    ASSERT_EQ(file.size(), 3);
    EXPECT_EQ(file[1],
        "Luna:Mia;Ann;Dr;Jr" + commas(11) + "Mimi" + commas(3) + "--05-31" + commas(11)
            + "Likes\tstars\tOther Contact Info:\t<<First Phonetic:Mee>>\t"
              "<<Previous Family Name:Sol>>\t<<Commemoration Day:--05-31>>\t"
              "<<twitter:https://t.example/mia>>\t"
            + commas(3) + ",HOME,mia@example.org,4,luna@example.com"
            + R"(,CELL,+49 171 5550101,Assistant,030\;5)"
            + R"(,HOME,,12MainStApt3\n2ndfloor,New York,,NY,10001,us,Harlem)"
            + ",,Moon,,Cook,R;D,,," + ",Mother,Eva,HomePage,https://luna.example/,,,Skype,mia;1");
    EXPECT_EQ(file[2], ":Jörg;;;" + commas(28) + "," + commas(3) + ",WORK,110,," + "," + commas(8)
                           + "," + commas(7) + commas(4 * 2));
}

TEST(GoogleCsv, RecordHasEachFieldUnderTheKeyOfItsTable)
{
    const QMap<QString, QString> fields = record([] {
        ContactContent content = contacts::rich();
        content.middlePhonetic = "Enn";
        content.lastPhonetic = "Loo;na";
        return content;
    }());
    const QStringList empty{"Yomi_Name", "Initials", "Short_Name", "Maiden_Name", "Gender",
        "Location", "Billing_Information", "Directory_Server", "Mileage", "Occupation", "Hobby",
        "Sensitivity", "Priority", "Subject", "Language", "Photo", "Group_Membership"};
    QMap<QString, QString> expected{
        {"Name", "Luna:Mia;Ann;Dr;Jr"},
        {"Given_Name", "Mia"},
        {"Additional_Name", "Ann"},
        {"Family_Name", "Luna"},
        {"Given_Name_Yomi", "Mee"},
        {"Additional_Name_Yomi", "Enn"},
        {"Family_Name_Yomi", R"(Loo\;na)"},
        {"Name_Prefix", "Dr"},
        {"Name_Suffix", "Jr"},
        {"Nickname", "Mimi"},
        {"Birthday", "--05-31"},
        {"E-mail", "HOME,mia@example.org,4,luna@example.com"},
        {"Phone", R"(CELL,+49 171 5550101,Assistant,030\;5)"},
        {"Address", R"(HOME,,12MainStApt3\n2ndfloor,New York,,NY,10001,us,Harlem)"},
        {"Organization", ",Moon,,Cook,R;D,,,"},
        {"Relation", "Mother,Eva"},
        {"Website", "HomePage,https://luna.example/"},
        {"Custom_Field", "Skype,mia;1"},
        {"Notes",
            "Likes\tstars\tOther Contact Info:\t<<First Phonetic:Mee>>\t<<Middle Phonetic:Enn>>\t"
            "<<Last Phonetic:Loo;na>>\t<<Previous Family Name:Sol>>\t"
            "<<Commemoration Day:--05-31>>\t<<twitter:https://t.example/mia>>\t"},
    };
    for (const QString& key : empty) {
        expected.insert(key, "");
    }
    EXPECT_EQ(expected.size(), 36);
    EXPECT_EQ(fields.keys(), expected.keys());
    for (const QString& key : fields.keys()) {
        EXPECT_EQ(fields.value(key), expected.value(key)) << key.toStdString();
    }
}

TEST(GoogleCsv, KeysWithUnderscoresAreNeverFoundSoThatNamesStandInNameAlone)
{
    ContactContent content;
    content.firstName = "Mia";
    content.middleName = "Ann";
    content.lastName = "Luna";
    content.firstPhonetic = "Mee";
    content.namePrefix = "Dr";
    content.nameSuffix = "Jr";
    content.note = "\tOther Contact Info:\t";
    const QString row = lines({content}).last();
    EXPECT_EQ(row.section(',', 0, 0), "Luna:Mia;Ann;Dr;Jr");
    EXPECT_EQ(row.section(',', 1, 24), commas(23)); // Given Name to Subject
    EXPECT_EQ(row.section(',', 25, 25), "\tOther Contact Info:\t");
}

TEST(GoogleCsv, ComposedNameOfNobodyIsAColonAndThreeSemicolons)
{
    EXPECT_EQ(record({}).value("Name"), ":;;;");
    ContactContent content;
    content.lastName = R"(a;\b)";
    content.firstName = "%5";
    EXPECT_EQ(record(content).value("Name"), R"(a\;\\b:%5;;;)");
}

TEST(GoogleCsv, BirthdayIsMonthAndDayOrNothing)
{
    ContactContent content;
    EXPECT_EQ(record(content).value("Birthday"), "");
    content.birthday = "-12523075200"; // in 1604
    EXPECT_EQ(record(content).value("Birthday"), "--02-29");
    content.birthday = "no number";
    EXPECT_EQ(record(content).value("Birthday"), "--01-01");
}

TEST(GoogleCsv, SeriesWithoutValuesGivesOneFieldThatNoColumnIsFor)
{
    const QStringList file = lines({ContactContent{}});
    EXPECT_EQ(file.last(), kEmptyRow);
    EXPECT_EQ(file.first().count(',') + 1, 29 + 8);
    EXPECT_EQ(file.last().count(',') + 1, 29 + 3 + 8 + 4);
}

TEST(GoogleCsv, SmallerContactIsFilledUpToTheLargest)
{
    const QStringList file = lines({
        with({plain(Phone, "_$!<Home>!$_", "123")}),
        with({plain(Phone, "a", "1"), plain(Phone, "b", "2")}),
        ContactContent{},
    });
    const QString behind = commas(1) + commas(8) + commas(4);
    EXPECT_EQ(file[1], kEmptyFixed + "," + ",HOME,123,," + behind);
    EXPECT_EQ(file[2], kEmptyFixed + "," + ",a,1,b,2" + behind);
    EXPECT_EQ(file[3], kEmptyFixed + "," + ",,,," + behind);
}

TEST(GoogleCsv, CommaInAValueTakesOneFieldOfTheFiller)
{
    const QStringList file = lines({
        with({plain(Phone, "a", "1,2")}),
        with({plain(Phone, "a", "1"), plain(Phone, "b", "2")}),
        with({plain(Phone, "a", "1,2,3,4,5")}),
    });
    const QString behind = commas(1) + commas(8) + commas(4);
    EXPECT_EQ(file[1], kEmptyFixed + "," + ",a,1,2," + behind);
    EXPECT_EQ(file[3], kEmptyFixed + "," + ",a,1,2,3,4,5" + behind); // longer than the header
}

TEST(GoogleCsv, CommaInNameNicknameOrOrganizationMovesTheRow)
{
    ContactContent content;
    content.lastName = "a,b";
    content.nickname = "c,d";
    content.organization = "e,f";
    EXPECT_EQ(lines({content}).last(),
        "a,b:;;;" + commas(11) + "c,d" + commas(17) + commas(3) + ",,e,f" + commas(6) + commas(4));
}

TEST(GoogleCsv, EmailLabelIsEscapedTwice)
{
    EXPECT_EQ(field("E-mail", {plain(Email, "a;b", "c;d")}), R"(a\\\;b,c\;d)");
    EXPECT_EQ(field("Phone", {plain(Phone, "a;b", "c;d")}), R"(a\;b,c\;d)");
}

TEST(GoogleCsv, EmailLabelLosesThreeWrappersAndAPhoneLabelTwo)
{
    const QString nested = "_$!<_$!<_$!<a>!$_>!$_>!$_";
    EXPECT_EQ(field("E-mail", {plain(Email, nested, "x")}), "a,x");
    EXPECT_EQ(field("Phone", {plain(Phone, nested, "x")}), "_$!<a>!$_,x");
}

TEST(GoogleCsv, LabelsAreWrittenInTypeColumns)
{
    struct Row {
        const char* key = "";
        int type = 0;
        const char* label = "";
        const char* expected = "";
    };
    const std::array rows{
        Row{"E-mail", Email, "_$!<Work>!$_", "WORK,v"},
        Row{"E-mail", Email, "", "4,v"},
        Row{"E-mail", Email, "_$!<School>!$_", "School,v"},
        Row{"Phone", Phone, "_$!<WorkFAX>!$_", "WORKFAX,v"},
        Row{"Phone", Phone, "_$!<OtherFAX>!$_", "OtherFAX,v"}, // unwrapped, not mapped
        Row{"Phone", Phone, "main", "pref,v"},
        Row{"Phone", Phone, "", "3,v"},
        Row{"Phone", Phone, "abc_$!<wxyz", "$!<,v"}, // the mark stands in its middle
        Row{"Relation", RelatedName, "", "OTHER,v"},
        Row{"Relation", RelatedName, "home", "internet,v"},
        Row{"Relation", RelatedName, "_$!<Father>!$_", "Father,v"},
        Row{"Website", WebAddress, "_$!<HomePage>!$_", "HomePage,v"},
        Row{"Website", WebAddress, "_$!<Other>!$_", "OTHER,v"},
        Row{"Website", WebAddress, "home", "home,v"},
        Row{"Website", WebAddress, "", "22,v"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(std::string(row.key) + " " + row.label);
        EXPECT_EQ(field(row.key, {plain(row.type, row.label, "v")}), row.expected);
    }
}

TEST(GoogleCsv, AddressCountryIsItsCodeAndOnlyTheStreetIsCleaned)
{
    const QMap<QString, QString> entry{{"Street", "5th Ave., \v1"}, {"City", "New, York"},
        {"State", "N.Y."}, {"ZIP", "1 0"}, {"Country", "USA"}, {"CountryCode", "u s"},
        {"SubLocality", "Har lem"}};
    EXPECT_EQ(field("Address", {composite(Address, entry, "_$!<Other>!$_")}),
        R"(Other,,5thAve\n1,New, York,,N.Y.,1 0,u s,Har lem)");
    EXPECT_EQ(field("Address", {composite(Address, {}, "")}), "5,,,,,,,,");
}

TEST(GoogleCsv, MessengersAndOrganizationAreNotEscaped)
{
    EXPECT_EQ(field("Custom_Field",
                  {composite(InstantMessage, {{"service", "a;b"}, {"username", R"(c\d)"}})}),
        R"(a;b,c\d)");
    ContactContent content;
    content.organization = "a;b";
    content.jobTitle = "%1";
    content.department = R"(c\d)";
    EXPECT_EQ(record(content).value("Organization"), R"(,a;b,,%1,c\d,,,)");
}

TEST(GoogleCsv, DatesStandInTheNoteAndLeaveTheirColumnsEmpty)
{
    const QStringList file = lines({
        with({plain(Date, "_$!<Anniversary>!$_", "0"), plain(Date, "", "86400")}),
        ContactContent{},
    });
    EXPECT_TRUE(file[0].contains(",Event 1 - Type,Event 1 - Value,Event 2 - Type,Event 2 - Value"));
    EXPECT_EQ(file[1], ":;;;" + commas(25)
                           + "\tOther Contact Info:\t<<Commemoration Day:--01-01/--01-02>>\t"
                           + commas(3) + commas(3) + commas(8) + commas(2) + commas(4) + commas(1));
    EXPECT_EQ(file[2], kEmptyFixed + commas(3) + commas(8) + commas(2) + commas(4) + commas(1));
}

TEST(GoogleCsv, DatesBesideANoteWithItsBlockAreNotCounted)
{
    ContactContent content = with({plain(Date, "", "0")});
    content.note = "a\n\tOther Contact Info:\tb;";
    const QString file = exported({content});
    EXPECT_FALSE(file.contains("Event"));
    EXPECT_TRUE(file.contains(",a\n\tOther Contact Info:\tb\\;,")); // breaks the row in two
}

TEST(GoogleCsv, PropertiesOfOtherKindsLeaveNoTrace)
{
    EXPECT_EQ(lines({with({plain(16, "a", "b"), plain(0, "a", "b"), plain(99, "a", "b")})}).last(),
        kEmptyRow);
}

// SPDX-License-Identifier: MIT
#include "contact_sets.h"
#include "interchange/ExportCSVFile_Outlook.h"
#include "interchange_access.h"

#include <QString>

#include <gtest/gtest.h>

#include <array>

using contacts::commas;
using contacts::composite;
using contacts::plain;
using contacts::with;

namespace {

const QString kNames =
    "First Name,Middle Name,Last Name,Title,Suffix,Nickname,Given Yomi,Surname Yomi";
const QString kBehindPhones =
    ",Company Main Phone,Callback,Radio Phone,Telex,TTY/TDD Phone,IMAddress,Job Title,Department,"
    "Company,Office Location,Manager's Name,Assistant's Name,Assistant's Phone,Company Yomi";
const QString kBusinessAddress =
    ",Business Street,Business City,Business State,Business Postal Code,Business Country/Region";
const QString kHomeAddress =
    ",Home Street,Home City,Home State,Home Postal Code,Home Country/Region";
const QString kOtherAddress =
    ",Other Street,Other City,Other State,Other Postal Code,Other Country/Region";
const QString kHeader =
    kNames
    + ",E-mail Address,Home Phone,Business Phone,Mobile Phone,Car Phone,Other Phone,Primary Phone,"
      "Pager,Business Fax,Home Fax,Other Fax"
    + kBehindPhones + kBusinessAddress + kHomeAddress + kOtherAddress
    + ",Spouse,Schools,Hobby,Location,Web Page,Anniversary,Birthday,Notes";

QString exported(std::vector<ContactContent> contents)
{
    return contacts::exported<ExportCSVFile_Outlook>(contacts::kOutlookFile, std::move(contents));
}

QStringList lines(std::vector<ContactContent> contents)
{
    return contacts::exportedLines<ExportCSVFile_Outlook>(
        contacts::kOutlookFile, std::move(contents));
}

// What the handlers made of one contact, by the keys of the field table.
QMap<QString, QString> record(ContactContent content)
{
    const support::TempTree tree;
    std::vector<ContactContent> contents;
    contents.push_back(std::move(content));
    PRContactData data(contacts::records(std::move(contents)));
    ExportCSVFile_Outlook exporter(nullptr);
    EXPECT_EQ(exporter.exportContacts(&data, tree.dir(), "Anna", "Contacts"), 0);
    EXPECT_EQ(access_to::records(exporter).size(), 1);
    return access_to::records(exporter).value(0);
}

// The fields that hold something.
QMap<QString, QString> filledFields(const std::vector<ContactProperty>& properties)
{
    QMap<QString, QString> filled = record(with(properties));
    for (const QString& key : filled.keys()) {
        if (filled.value(key).isEmpty()) {
            filled.remove(key);
        }
    }
    return filled;
}

// The one column that a phone of this label goes to.
QString columnOfPhone(const char* label)
{
    const QMap<QString, QString> filled = filledFields({plain(Phone, label, "1")});
    EXPECT_EQ(filled.size(), 1);
    return filled.key("1");
}

} // namespace

TEST(OutlookCsv, WithoutContactsIsItsHeader)
{
    EXPECT_EQ(exported({}), kHeader + "\r\n");
}

TEST(OutlookCsv, RepeatingColumnsAreNumberedFromTwo)
{
    std::vector<ContactProperty> twice;
    for (const char* label : {"_$!<Home>!$_", "_$!<Work>!$_", "_$!<Mobile>!$_", "_$!<Pager>!$_",
             "_$!<WorkFAX>!$_", "_$!<HomeFAX>!$_", "_$!<OtherFAX>!$_"}) {
        twice.insert(twice.end(), 2, plain(Phone, label, "1"));
    }
    for (const int kind : {Email, RelatedName, WebAddress, Date}) {
        twice.insert(twice.end(), 2, plain(kind, "", "0"));
    }
    twice.insert(twice.end(), 2, composite(InstantMessage, {}));
    twice.push_back(plain(Email, "", "third"));
    EXPECT_EQ(lines({with(twice)}).first(),
        kNames
            + ",E-mail Address,E-mail 2 Address,E-mail 3 Address,Home Phone,Home Phone 2,"
              "Business Phone,Business Phone 2,Mobile Phone,Car Phone,Other Phone,Other Phone 2,"
              "Primary Phone,Pager,Pager 2,Business Fax,Business Fax 2,Home Fax,Home Fax 2,"
              "Other Fax,Other Fax 2"
            + QString(kBehindPhones).replace("IMAddress", "IMAddress,IMAddress 2")
            + kBusinessAddress + kHomeAddress + kOtherAddress
            + ",Spouse,Spouse 2,Schools,Hobby,Location,Web Page,Web Page 2,Anniversary,"
              "Anniversary 2,Birthday,Notes");
}

TEST(OutlookCsv, AddressGroupsAreNumberedInTheirPrefix)
{
    const QString header = lines({with({
                                     composite(Address, {}, "_$!<Work>!$_"),
                                     composite(Address, {}, "_$!<Work>!$_"),
                                     composite(Address, {}, "boat"),
                                     composite(Address, {}, ""),
                                 })})
                               .first();
    EXPECT_TRUE(header.contains(kBusinessAddress
                                + ",Business 2 Street,Business 2 City,Business 2 State,"
                                  "Business 2 Postal Code,Business 2 Country/Region"
                                + kHomeAddress + kOtherAddress
                                + ",Other 2 Street,Other 2 City,Other 2 State,"
                                  "Other 2 Postal Code,Other 2 Country/Region,Spouse,"));
}

TEST(OutlookCsv, RichContactsComeOutWhole)
{
    const QStringList file = lines({contacts::rich(), contacts::plainOne()});
    ASSERT_EQ(file.size(), 3);
    EXPECT_EQ(file[0], QString(kHeader)
                           .replace("E-mail Address", "E-mail Address,E-mail 2 Address")
                           .replace("Other Phone", "Other Phone,Other Phone 2"));
    EXPECT_EQ(file[1],
        "Mia,Ann,Luna,Cook,Jr,Mimi,Mee," // names, without a phonetic last one
        ",mia@example.org,luna@example.com"
        ",,,,"                       // home, business, mobile, car
        R"(,+49 171 5550101,030\;5)" // other
        ",,,,,"                      // primary, pager, three faxes
        ",,,,,"                      // company to TTY
        R"(,mia;1,Cook,R\;D,Moon)"   // messenger, job, department, company
        ",,,,,"                      // office to phonetic company
        ","                          // business: one field under five columns
        R"(,12MainStApt3\n2ndfloor;Harlem;NewYork;NY;10001,New York,NY,10001,us)"
        ","              // other
        ",Mother:Eva,,," // spouse, schools, hobby, location
        ",https://luna.example/,05/31,05/31"
        ",Likes\tstars\tOther Contact Info:\t<<Previous Family Name:Sol>>\t<<Prefix:Dr>>\t"
        "<<twitter:https://t.example/mia>>\t");
    EXPECT_EQ(file[2], "Jörg" + commas(7) + commas(2) + ",,110" + commas(2) + commas(2) + commas(5)
                           + commas(5) + commas(9) + commas(1) + commas(5) + commas(1) + commas(4)
                           + commas(4));
}

TEST(OutlookCsv, RecordHasEachFieldUnderItsColumnsName)
{
    ContactContent content;
    content.firstName = "a;1";
    content.middleName = "a;2";
    content.lastName = "a;3";
    content.nameSuffix = "a;4";
    content.nickname = "a;5";
    content.firstPhonetic = "b;1";
    content.lastPhonetic = "b;2";
    content.jobTitle = "c;1";
    content.department = "c;2";
    content.organization = "c;3";
    content.organizationPhonetic = "c;4";
    const QMap<QString, QString> expected{
        {"First Name", R"(a\;1)"},
        {"Middle Name", R"(a\;2)"},
        {"Last Name", R"(a\;3)"},
        {"Title", R"(c\;1)"},
        {"Suffix", R"(a\;4)"},
        {"Nickname", R"(a\;5)"},
        {"Given Yomi", R"(b\;1)"},
        {"Surname Yomi", R"(b\;2)"},
        {"Job Title", R"(c\;1)"},
        {"Department", R"(c\;2)"},
        {"Company", R"(c\;3)"},
        {"Company Yomi", R"(c\;4)"},
    };
    const QMap<QString, QString> fields = record(content);
    EXPECT_EQ(fields.size(), 44);
    for (const QString& key : fields.keys()) {
        EXPECT_EQ(fields.value(key), expected.value(key)) << key.toStdString();
    }
    for (const QString& key : expected.keys()) {
        EXPECT_TRUE(fields.contains(key)) << key.toStdString();
    }
}

TEST(OutlookCsv, PhoneLabelChoosesTheColumn)
{
    struct Row {
        const char* label = "";
        const char* column = "";
    };
    const std::array rows{
        Row{"_$!<Home>!$_", "Home Phone"},
        Row{"HOME", "Home Phone"}, // a label of one's own that reads like the word
        Row{"_$!<Work>!$_", "Business Phone"},
        Row{"_$!<Pager>!$_", "Pager"},
        Row{"_$!<WorkFAX>!$_", "Business Fax"},
        Row{"_$!<HomeFAX>!$_", "Home Fax"},
        Row{"_$!<OtherFAX>!$_", "Other Fax"},
        Row{"_$!<Main>!$_", "Other Phone"},
        Row{"_$!<Other>!$_", "Other Phone"},
        Row{"main", "Other Phone"}, // "pref"
        Row{"", "Other Phone"},     // "3"
        Row{"home", "Other Phone"},
        Row{"HOMEFAX", "Other Phone"},
        Row{"_$!<School>!$_", "Other Phone"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.label);
        EXPECT_EQ(columnOfPhone(row.label), row.column);
    }
}

TEST(OutlookCsv, MobileNumbersAreOtherPhonesAndMobilePhoneStaysEmpty)
{
    EXPECT_EQ(columnOfPhone("_$!<Mobile>!$_"), "Other Phone");
    EXPECT_EQ(columnOfPhone("CELL"), "Other Phone");
}

TEST(OutlookCsv, ValuesAreEscapedAndMessengersAreNot)
{
    EXPECT_EQ(filledFields({
                  plain(Email, "x", "a;1"),
                  plain(Email, "y", R"(a\2)"),
                  plain(WebAddress, "x", "w;1"),
                  plain(Phone, "_$!<Home>!$_", "p;1"),
                  composite(InstantMessage, {{"service", "Skype"}, {"username", "i;1"}}),
                  composite(InstantMessage, {{"service", "QQ"}}),
              }),
        (QMap<QString, QString>{
            {"E-mail Address", R"(a\;1,a\\2)"},
            {"Web Page", R"(w\;1)"},
            {"Home Phone", R"(p\;1)"},
            {"IMAddress", "i;1,"},
        }));
}

TEST(OutlookCsv, AddressLabelChoosesTheColumn)
{
    const auto columnOf = [](const char* label) {
        const QMap<QString, QString> filled =
            filledFields({composite(Address, {{"City", "c"}}, label)});
        EXPECT_EQ(filled.size(), 1);
        return filled.firstKey();
    };
    EXPECT_EQ(columnOf("_$!<Work>!$_"), "Business Address");
    EXPECT_EQ(columnOf("_$!<Home>!$_"), "Home Address");
    EXPECT_EQ(columnOf("HOME"), "Home Address");
    EXPECT_EQ(columnOf("_$!<Other>!$_"), "Other Address"); // it keeps its label
    EXPECT_EQ(columnOf("boat"), "Other Address");
    EXPECT_EQ(columnOf(""), "Other Address");
}

TEST(OutlookCsv, StreetHoldsTheWholeAddressAndTheCountryIsItsCode)
{
    const QMap<QString, QString> entry{{"Street", "5th Ave.\v1"}, {"SubLocality", "Har lem"},
        {"City", "New, York"}, {"State", "N.Y."}, {"ZIP", "1-0"}, {"Country", "USA"},
        {"CountryCode", "us"}};
    EXPECT_EQ(filledFields({composite(Address, entry, "_$!<Work>!$_")}).value("Business Address"),
        R"(5thAve\n1;Harlem;NewYork;NY;10,New, York,N.Y.,1-0,us)");
    EXPECT_EQ(filledFields({composite(Address, {}, "")}).value("Other Address"), ";;;;,,,,");
}

TEST(OutlookCsv, SpouseHoldsAllRelatedNamesWithTheirLabelsUnwrapped)
{
    EXPECT_EQ(filledFields({
                               plain(RelatedName, "_$!<Father>!$_", "Tom;"),
                               plain(RelatedName, "", "Eva"),
                               plain(RelatedName, "home", "Kim"),
                               plain(RelatedName, "a;b", "Lee"),
                           })
                  .value("Spouse"),
        R"(Father:Tom\;,OTHER:Eva,internet:Kim,a\;b:Lee)");
}

TEST(OutlookCsv, DatesAreMonthAndDayWithASlash)
{
    EXPECT_EQ(filledFields({plain(Date, "x", "12960000"), plain(Date, "", "no number")}),
        (QMap<QString, QString>{{"Anniversary", "05/31,01/01"}}));
    ContactContent content;
    content.birthday = "-12523075200"; // in 1604
    EXPECT_EQ(record(content).value("Birthday"), "02/29");
}

TEST(OutlookCsv, NoteHasTheFieldsThatHaveNoColumn)
{
    ContactContent content =
        with({composite(SocialProfile, {{"service", "s"}, {"url", "u"}}), plain(Date, "", "0")});
    content.note = "a\nb";
    content.namePrefix = "Dr;";
    content.firstPhonetic = "x";
    content.organizationPhonetic = "y";
    content.middlePhonetic = "z";
    EXPECT_EQ(record(content).value("Notes"),
        "a\tb\tOther Contact Info:\t<<Middle Phonetic:z>>\t<<Prefix:Dr;>>\t<<s:u>>\t");
    content.note = "a\n\tOther Contact Info:\tb;";
    EXPECT_EQ(record(content).value("Notes"), "a\n\tOther Contact Info:\tb\\;");
}

TEST(OutlookCsv, AddressGroupWithoutAddressesGivesOneFieldUnderFiveColumns)
{
    const QStringList file = lines({ContactContent{}});
    EXPECT_EQ(file.first().count(',') + 1, 44 + 3 * 4);
    EXPECT_EQ(file.last(), commas(43));
}

TEST(OutlookCsv, SmallerContactIsFilledUpToTheLargest)
{
    const QStringList file = lines({
        with({plain(Phone, "_$!<Home>!$_", "1"), plain(Phone, "_$!<Home>!$_", "2"),
            composite(Address, {{"ZIP", "9"}}, "_$!<Work>!$_")}),
        ContactContent{},
        with({plain(Phone, "_$!<Home>!$_", "3,4")}),
    });
    ASSERT_EQ(file.size(), 4);
    EXPECT_TRUE(file[0].contains("Home Phone,Home Phone 2,Business Phone"));
    EXPECT_EQ(file[1], commas(9) + "1,2" + commas(24) + ";;;;9,,,9," + commas(10));
    EXPECT_EQ(file[2], commas(43 + 1 + 4));
    EXPECT_EQ(file[3], commas(9) + "3,4" + commas(24) + commas(4) + commas(10)); // keeps its place
}

TEST(OutlookCsv, CommaWithoutFillerMovesTheRow)
{
    ContactContent content = with({plain(WebAddress, "", "w,1")});
    content.lastName = "a,b";
    EXPECT_EQ(lines({content}).last(), ",,a,b" + commas(38) + "w,1" + commas(3));
}

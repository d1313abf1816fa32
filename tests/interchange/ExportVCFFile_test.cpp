// SPDX-License-Identifier: MIT
#include "contact_sets.h"
#include "interchange/ExportVCFFile.h"
#include "interchange_access.h"

#include <QString>

#include <gtest/gtest.h>

#include <array>

using contacts::composite;
using contacts::plain;
using contacts::with;

namespace {

QString exported(std::vector<ContactContent> contents)
{
    return contacts::exported<ExportVCFFile>(contacts::kICloudFile, std::move(contents));
}

// The lines of one contact that every vCard has not.
QStringList linesOf(ContactContent content)
{
    std::vector<ContactContent> contents;
    contents.push_back(std::move(content));
    QStringList lines =
        contacts::exportedLines<ExportVCFFile>(contacts::kICloudFile, std::move(contents));
    for (const char* always :
        {"BEGIN:VCARD", "VERSION:3.0", "FN:  ", "N:;;;;", "NOTE:", "END:VCARD"}) {
        lines.removeOne(always);
    }
    return lines;
}

QStringList linesOf(const std::vector<ContactProperty>& properties)
{
    return linesOf(with(properties));
}

} // namespace

TEST(VCard3, OfAnEmptyContactHasItsNamesAndItsNote)
{
    EXPECT_EQ(exported({ContactContent{}}),
        "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:  \r\nN:;;;;\r\nNOTE:\r\nEND:VCARD\r\n");
}

TEST(VCard3, RichContactsComeOutWhole)
{
    EXPECT_EQ(exported({contacts::rich(), contacts::plainOne()}),
        QString("BEGIN:VCARD\n"
                "VERSION:3.0\n"
                "FN:Mia Ann Luna\n"
                "N:Luna;Mia;Ann;Dr;Jr\n"
                "NICKNAME:Mimi\n"
                "TITLE:Cook\n"
                "ORG:Moon;R\\;D\n"
                "BDAY;VALUE=date:2001-05-31\n"
                "NOTE:Likes\tstars\tOther Contact Info:\tFirst Phonetic:Mee/\t"
                "Previous Family Name:Sol/\t\n"
                "item1.ADR;type=HOME;TYPE=pref:;;12MainStApt3//n2ndfloor;NewYork;NY;10001;USA\n"
                "item1.X-APPLE-SUBLOCALITY:Harlem\n"
                "item1.X-ABADR:us\n"
                "TEL;TYPE=CELL;TYPE=pref;TYPE=VOICE:+49 171 5550101\n"
                "item2.TEL:030\\;5\n"
                "item2.X-ABLABEL:_$!<Assistant>!$_\n"
                "item3.X-ABRELATEDNAMES;TYPE=pref:Eva\n"
                "item3.X-ABLABEL:_$!<Mother>!$_\n"
                "item4.URL;TYPE=pref:https://luna.example/\n"
                "item4.X-ABLABEL:_$!<HomePage>!$_\n"
                "EMAIL;TYPE=HOME;TYPE=pref;TYPE=INTERNET:mia@example.org\n"
                "item5.EMAIL;TYPE=INTERNET:luna@example.com\n"
                "item5.X-ABLABEL:4\n"
                "item6.IMPP;X-SERVICE-TYPE=Skype;TYPE=pref:mia;1\n"
                "item6.X-ABLABEL:Skype\n"
                "item7.X-ABDATE;TYPE=pref:2001-05-31\n"
                "item7.X-ABLABEL:_$!<Anniversary>!$_\n"
                "X-SOCIALPROFILE;TYPE=twitter:https://t.example/mia\n"
                "END:VCARD\n"
                "BEGIN:VCARD\n"
                "VERSION:3.0\n"
                "FN:Jörg  \n"
                "N:;Jörg;;;\n"
                "NOTE:\n"
                "TEL;TYPE=WORK;TYPE=pref;TYPE=VOICE:110\n"
                "END:VCARD\n")
            .replace("\n", "\r\n"));
}

TEST(VCard3, WithoutContactsIsAnEmptyFileAndAnEmptyCopy)
{
    const support::TempTree tree;
    PRContactData data;
    EXPECT_EQ(contacts::exportInto<ExportVCFFile>(tree, data), 0);
    EXPECT_EQ(tree.read(contacts::kICloudFile), "");
    EXPECT_EQ(tree.read(contacts::kMacFile), "");
}

TEST(VCard3, NamesAreEscapedAndPlacesInThemStay)
{
    ContactContent content;
    content.firstName = "a;1";
    content.middleName = "%4";
    content.lastName = R"(a\3)";
    content.namePrefix = "p;";
    content.nameSuffix = "s;";
    content.nickname = "n;";
    content.jobTitle = "t;";
    content.department = "d;";
    EXPECT_EQ(linesOf(content), (QStringList{R"(FN:a\;1 %4 a\\3)", R"(N:a\\3;a\;1;%4;p\;;s\;)",
                                    R"(NICKNAME:n\;)", R"(TITLE:t\;)", R"(ORG:;d\;)"}));
}

TEST(VCard3, BirthdayKeepsItsYear)
{
    ContactContent content;
    content.birthday = "-12523075200";
    EXPECT_EQ(linesOf(content), QStringList{"BDAY;VALUE=date:1604-02-29"});
}

TEST(VCard3, NoteIsInOneLineAndNotEscaped)
{
    ContactContent content;
    content.note = "a;\\\nb\r\nc";
    EXPECT_EQ(exported({content}).section("NOTE:", 1), "a;\\\tb\r\tc\r\nEND:VCARD\r\n");
}

TEST(VCard3, NoteThatHoldsItsBlockKeepsItsLineFeeds)
{
    ContactContent content;
    content.firstPhonetic = "x";
    content.note = "a;\n\tOther Contact Info:\tb";
    EXPECT_EQ(
        exported({content}).section("NOTE:", 1), "a;\n\tOther Contact Info:\tb\r\nEND:VCARD\r\n");
}

TEST(VCard3, EveryAddressIsOfTypeHomeAndThoseAtHomeArePreferred)
{
    const QMap<QString, QString> entry{{"Street", "1 Way"}, {"City", "Rome, It."}, {"State", "La"},
        {"ZIP", "1-2"}, {"Country", "Italy!"}, {"CountryCode", "i t"}};
    EXPECT_EQ(
        linesOf({composite(Address, entry, "_$!<Work>!$_"), composite(Address, {}, "_$!<Home>!$_"),
            composite(Address, {}, "HOME"), composite(Address, {}, "a;b"), composite(Address, {})}),
        (QStringList{
            "item1.ADR;type=HOME:;;1Way;RomeIt;La;12;Italy",
            "item1.X-ABLabel:WORK",
            "item1.X-ABADR:i t",
            "item2.ADR;type=HOME;TYPE=pref:;;;;;;",
            "item2.X-ABLabel:HOME",
            "item2.X-ABADR:",
            "item3.ADR;type=HOME;TYPE=pref:;;;;;;",
            "item3.X-ABLabel:HOME",
            "item3.X-ABADR:",
            "item4.ADR;type=HOME:;;;;;;",
            R"(item4.X-ABLabel:a\;b)",
            "item4.X-ABADR:",
            "item5.ADR;type=HOME:;;;;;;",
            "item5.X-ABLabel:5",
            "item5.X-ABADR:",
        }));
}

TEST(VCard3, AddressLabelledOtherKeepsItsLabelWhole)
{
    EXPECT_EQ(linesOf({composite(Address, {}, "_$!<Other>!$_")}).value(1),
        "item1.X-ABLabel:_$!<Other>!$_");
}

TEST(VCard3, DistrictTakesTheLineOfTheLabel)
{
    EXPECT_EQ(linesOf({composite(Address, {{"SubLocality", "Har; lem"}}, "_$!<Home>!$_")}),
        (QStringList{"item1.ADR;type=HOME;TYPE=pref:;;;;;;", "item1.X-APPLE-SUBLOCALITY:Har; lem",
            "item1.X-ABADR:"}));
}

TEST(VCard3, VerticalTabOfAStreetIsTwoSlashesAndAnN)
{
    EXPECT_EQ(linesOf({composite(Address, {{"Street", "a\vb"}})}).first(),
        "item1.ADR;type=HOME:;;a//nb;;;;");
}

TEST(VCard3, FirstPhoneOnAPlainLineIsPreferred)
{
    EXPECT_EQ(
        linesOf({plain(Phone, "_$!<School>!$_", "1;2"), plain(Phone, "_$!<HomeFAX>!$_", "2"),
            plain(Phone, "_$!<Mobile>!$_", "3"), plain(Phone, "main", "4"), plain(Phone, "", "5"),
            plain(Phone, "bo;at", "6;7"), plain(Phone, "_$!<OtherFAX>!$_", "8")}),
        (QStringList{
            R"(item1.TEL:1\;2)",
            "item1.X-ABLABEL:_$!<School>!$_",
            "TEL;TYPE=HOME;TYPE=FAX;TYPE=pref;TYPE=VOICE:2",
            "TEL;TYPE=CELL;TYPE=VOICE:3",
            "TEL;TYPE=pref;TYPE=VOICE:4", // the word for "main", and no preference
            "TEL;TYPE=3;TYPE=VOICE:5",
            R"(TEL;TYPE=bo\;at;TYPE=VOICE:6\;7)",
            "item2.TEL:8",
            "item2.X-ABLABEL:_$!<OtherFAX>!$_",
        }));
}

TEST(VCard3, FirstRelatedNameIsPreferred)
{
    EXPECT_EQ(linesOf({plain(RelatedName, "", "Eva;"), plain(RelatedName, "home", "Kim"),
                  plain(RelatedName, "_$!<Son>!$_", "Tom")}),
        (QStringList{R"(item1.X-ABRELATEDNAMES;TYPE=pref:Eva\;)", "item1.X-ABLABEL:OTHER",
            "item2.X-ABRELATEDNAMES:Kim", "item2.X-ABLABEL:internet", "item3.X-ABRELATEDNAMES:Tom",
            "item3.X-ABLABEL:_$!<Son>!$_"}));
}

TEST(VCard3, EveryHomePageIsPreferredAndNoOtherAddressOfTheWeb)
{
    EXPECT_EQ(linesOf({plain(WebAddress, "_$!<Home>!$_", "a;"), plain(WebAddress, "boat", "b;"),
                  plain(WebAddress, "_$!<HomePage>!$_", "c"),
                  plain(WebAddress, "_$!<HomePage>!$_", "d"), plain(WebAddress, "", "e")}),
        (QStringList{R"(URL;TYPE=HOME:a\;)", R"(item1.URL:b\;)", "item1.X-ABLABEL:boat",
            "item2.URL;TYPE=pref:c", "item2.X-ABLABEL:_$!<HomePage>!$_", "item3.URL;TYPE=pref:d",
            "item3.X-ABLABEL:_$!<HomePage>!$_", "item4.URL:e", "item4.X-ABLABEL:22"}));
}

TEST(VCard3, EveryEmailAtHomeIsPreferredButInNoGroup)
{
    EXPECT_EQ(linesOf({plain(Email, "_$!<Work>!$_", "a;"), plain(Email, "_$!<Home>!$_", "b"),
                  plain(Email, "_$!<Home>!$_", "c"), plain(Email, "HOME", "d;"),
                  plain(Email, "_$!<Other>!$_", "e")}),
        (QStringList{R"(EMAIL;TYPE=WORK;TYPE=INTERNET:a\;)",
            "EMAIL;TYPE=HOME;TYPE=pref;TYPE=INTERNET:b",
            "EMAIL;TYPE=HOME;TYPE=pref;TYPE=INTERNET:c", R"(item1.EMAIL;TYPE=INTERNET:d\;)",
            "item1.X-ABLABEL:HOME", "EMAIL;TYPE=OTHER;TYPE=INTERNET:e"}));
}

TEST(VCard3, FirstMessengerIsPreferredAndItsUserNotEscaped)
{
    EXPECT_EQ(linesOf({composite(InstantMessage, {{"service", "S;k"}, {"username", R"(a;b\)"}}),
                  composite(InstantMessage, {{"username", "c"}}),
                  composite(InstantMessage, {{"service", "_$!<Home>!$_"}})}),
        (QStringList{R"(item1.IMPP;X-SERVICE-TYPE=S\;k;TYPE=pref:a;b\)", R"(item1.X-ABLABEL:S\;k)",
            "item2.IMPP;X-SERVICE-TYPE=:c", "item2.X-ABLABEL:",
            "item3.IMPP;X-SERVICE-TYPE=_$!<Home>!$_:", "item3.X-ABLABEL:_$!<Home>!$_"}));
}

TEST(VCard3, FirstDateInAGroupIsPreferred)
{
    EXPECT_EQ(linesOf({plain(Date, "_$!<Other>!$_", "0"), plain(Date, "", "no number"),
                  plain(Date, "_$!<Anniversary>!$_", "12960000"), plain(Date, "bo;at", "86400"),
                  plain(Date, "_$!<Home>!$_", "-12523075200")}),
        (QStringList{"X-ABDATE;TYPE=OTHER:2001-01-01", "X-ABDATE;TYPE=12:2001-01-01",
            "item1.X-ABDATE;TYPE=pref:2001-05-31", "item1.X-ABLABEL:_$!<Anniversary>!$_",
            R"(X-ABDATE;TYPE=bo\;at:2001-01-02)", "item2.X-ABDATE:1604-02-29",
            "item2.X-ABLABEL:_$!<Home>!$_"}));
}

TEST(VCard3, SocialProfilesAreNotEscapedAndInNoGroup)
{
    EXPECT_EQ(linesOf({composite(SocialProfile, {{"service", "a;b"}, {"url", R"(c;d\)"}}),
                  composite(SocialProfile, {})}),
        (QStringList{R"(X-SOCIALPROFILE;TYPE=a;b:c;d\)", "X-SOCIALPROFILE;TYPE=:"}));
}

TEST(VCard3, GroupsAreNumberedOverAllKindsAndFromOneInEachVCard)
{
    const std::vector<ContactProperty> properties{plain(Email, "own", "e"),
        plain(Phone, "_$!<School>!$_", "p"), plain(Phone, "_$!<Home>!$_", "h"),
        composite(Address, {})};
    const QString file = exported({with(properties), with(properties)});
    EXPECT_EQ(file.count("item1.ADR"), 2); // addresses come first, whatever their place
    EXPECT_EQ(file.count("item2.TEL"), 2);
    EXPECT_EQ(file.count("item3.EMAIL"), 2);
    EXPECT_FALSE(file.contains("item4"));
}

TEST(VCard3, LongLinesAreNotFoldedAndPicturesNotWritten)
{
    ContactContent content;
    content.nickname = QString(5000, 'x');
    content.photo = "\xff\xd8\xff";
    EXPECT_EQ(linesOf(content), QStringList{"NICKNAME:" + content.nickname});
}

TEST(VCard3, MacFileIsTheSameByteForByte)
{
    const support::TempTree tree;
    PRContactData data(contacts::records({contacts::rich(), contacts::plainOne()}));
    EXPECT_EQ(contacts::exportInto<ExportVCFFile>(tree, data), 0);
    EXPECT_EQ(tree.read(contacts::kICloudFile), tree.read(contacts::kMacFile));
    EXPECT_TRUE(tree.read(contacts::kMacFile).startsWith("BEGIN:VCARD\r\n")); // no mark before it
}

TEST(VCard3, MacFileOfAnEarlierExportStays)
{
    const support::TempTree tree;
    PRContactData first(contacts::records({contacts::rich()}));
    PRContactData second(contacts::records({contacts::plainOne()}));
    EXPECT_EQ(contacts::exportInto<ExportVCFFile>(tree, first), 0);
    const QByteArray mac = tree.read(contacts::kMacFile);
    EXPECT_EQ(contacts::exportInto<ExportVCFFile>(tree, second), 0);
    EXPECT_EQ(tree.read(contacts::kMacFile), mac);
    EXPECT_TRUE(tree.read(contacts::kICloudFile).contains("N:;J"));
}

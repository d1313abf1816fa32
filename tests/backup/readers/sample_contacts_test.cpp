// SPDX-License-Identifier: MIT
// What samples/backup/people.json says, as it comes out of the sample backup.
#include "AddressBookTest.h"

#include <QImage>
#include <QSet>

namespace {

class SampleContactsTest : public AddressBookTest {
protected:
    void SetUp() override
    {
        take(backup::openBackupFolder(QStringLiteral(DATAEXPORT_BUILD_DIR "/samples/backup")));
    }

    int rowOf(const QString& name) { return names().indexOf(name); }
};

TEST_F(SampleContactsTest, SixtyOneCardsAreFiftyEightPeople)
{
    EXPECT_EQ(count(), 58);
    const QStringList all = names();
    EXPECT_EQ(all.filter("Baker"), QStringList("Tom Baker"));
    EXPECT_EQ(all.filter("Holm"), QStringList("Frida Holm"));
    for (const char* name :
        {"Anna Berger", "نور الأمين", "田中 由紀", "王伟", "김민준", "สมชาย ใจดี", "प्रिया शर्मा",
            "דנה לוי", "Алексей Иванович Смирнов", "Blumen Sommer", "Nordlys Reiser AS",
            "Oma Hilde", "+49 160 5550183", "newsletter@example.net", "No Name"}) {
        EXPECT_TRUE(all.contains(name)) << name;
    }
}

TEST_F(SampleContactsTest, EachKindOfPropertyIsThere)
{
    QSet<int> kinds;
    QSet<QString> services;
    int photos = 0;
    int calendars = 0;
    for (int row = 0; row < count(); ++row) {
        const PRContactPrivate& person = contact(row);
        photos += person.photo.isEmpty() ? 0 : 1;
        calendars += person.getAltBirthdayType() == 0 ? 0 : 1;
        const QList<PRContactProperty*>& all = person.properties();
        for (const PRContactProperty* property : all) {
            kinds.insert(property->propType());
            services.insert(property->propValueEntry().value("service").toLower());
        }
    }
    EXPECT_EQ(kinds, QSet<int>({3, 4, 5, 12, 13, 22, 23, 46}));
    EXPECT_TRUE(
        services.contains({"skype", "icq", "qq", "aim", "yahoo", "msn", "googletalk", "facebook",
            "jabber", "gadugadu", "twitter", "flickr", "linkedin", "myspace", "sinaweibo"}));
    EXPECT_EQ(photos, 10);
    EXPECT_EQ(calendars, 4);
}

TEST_F(SampleContactsTest, LinkedCardsAreOneWithWhatEachOfThemSays)
{
    const int row = rowOf("Frida Holm");
    ASSERT_GE(row, 0);
    const PRContactPrivate& frida = contact(row);
    EXPECT_EQ(frida.nickname, "Fri");
    EXPECT_EQ(frida.jobTitle, "Dirigent");
    EXPECT_EQ(frida.note, "From the choir\nBirthday cake: cardamom");
    EXPECT_EQ(QImage::fromData(frida.photo).size(), QSize(480, 480));
    const QString address = "5 _$!<Home>!$_: City=Stockholm; Country=Sverige; CountryCode=se;"
                            " Street=Söder Mälarstrand 5; ZIP=118 20";
    EXPECT_EQ(properties(row),
        QStringList({"3 _$!<Mobile>!$_: +46 8 5550 1185", "3 _$!<Work>!$_: +46 8 5550 1186",
            "4 _$!<Home>!$_: frida@example.se", "4 _$!<Other>!$_: fholm@example.com", address}));
}

TEST_F(SampleContactsTest, NamesWithSeparatorsAndLongNotesAreWhole)
{
    const int row = rowOf(R"(Walter "Walt" Smith, Jr.; Sr.\Esq.)");
    ASSERT_GE(row, 0);
    EXPECT_EQ(contact(row).note, "He said: \"Yes, no; maybe\\perhaps\".\n\tIndented line\n\n"
                                 "- last, after an empty one;");
    const int grace = rowOf("Mrs. Grace Ann Johnson PhD");
    ASSERT_GE(grace, 0);
    EXPECT_EQ(contact(grace).note.count('\n'), 3);
    EXPECT_EQ(QImage::fromData(contact(grace).photo).width(), 1024);
    EXPECT_EQ(contact(grace).properties().size(), 26);
}

TEST_F(SampleContactsTest, PhotoOfAThumbnailAloneIsTheLargest)
{
    const int row = rowOf("Hafenapotheke");
    ASSERT_GE(row, 0);
    EXPECT_EQ(QImage::fromData(contact(row).photo).size(), QSize(320, 320));
}

TEST_F(SampleContactsTest, NothingIsToldAboutIt)
{
    for (int row = 0; row < count(); ++row) {
        contact(row);
    }
    EXPECT_EQ(notices(), QStringList());
}

} // namespace

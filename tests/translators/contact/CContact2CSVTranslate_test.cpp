// SPDX-License-Identifier: MIT
#include "translators/contact/CContact2CSVTranslate.h"
#include "translators/contact/contact_csv.h"
#include "translators/contact/marking_translation.h"

namespace {

const QString kFixedNames =
    "Given Name,Additional Name,Family Name,Given Name Yomi,Additional Name Yomi,"
    "Family Name Yomi,Name Prefix,Name Suffix,Nickname,Birthday,Notes,"
    "Organization 1 - Type,Organization 1 - Name,Organization 1 - Title,"
    "Organization 1 - Department,IM 1 - Service,IM 1 - Value";

// Cells that are empty, each with a comma behind it.
QString empty(int cells)
{
    return QString("\"\",").repeated(cells);
}

QStringList rowsOf(std::vector<ContactContent> contents)
{
    return ::rowsOf<CContact2CSVTranslate>(std::move(contents));
}

QMap<QString, QString> filledCells(ContactContent content)
{
    return ::filledCells<CContact2CSVTranslate>(std::move(content));
}

TEST(ContactCsv, WithoutRecordsHoldsTheSeventeenFixedNames)
{
    EXPECT_EQ(kFixedNames.count(',') + 1, 17);
    EXPECT_EQ(rowsOf({}), QStringList(kFixedNames + ",\n"));
}

TEST(ContactCsv, NamesStandBareThoughAllCellsAreQuoted)
{
    EXPECT_FALSE(rowsOf({}).at(0).contains('"'));
    EXPECT_EQ(rowsOf(std::vector<ContactContent>(1)).at(1), empty(17) + "\n");
}

TEST(ContactCsv, EveryRowKeepsACommaBeforeItsLineFeed)
{
    std::vector<ContactContent> contents(2);
    contents[0].firstName = "Mia";
    for (const QString& row : rowsOf(std::move(contents))) {
        EXPECT_TRUE(row.endsWith(",\n")) << row.toStdString();
        EXPECT_EQ(row.count("\n"), 1);
        EXPECT_EQ(row.count("\r"), 0);
    }
}

TEST(ContactCsv, TextsStandInTheirColumns)
{
    EXPECT_EQ(rowsOf({everyText()}).at(1).toStdString(),
        R"("Mia","Ann","Berg","mi-a","","beh-rg","Dr.","jr.","Mimi","1985-04-12","Likes tea",)"
        R"("","Acme","Pilot","Flight","","",)"
        "\n");
}

TEST(ContactCsv, AdditionalNameYomiStaysEmpty)
{
    ContactContent content;
    content.middlePhonetic = "an";
    EXPECT_EQ(rowsOf({content}).at(1), empty(17) + "\n");
}

TEST(ContactCsv, OrganizationTypeStaysEmpty)
{
    const auto filled = filledCells(everyText());
    EXPECT_TRUE(filled.contains("Organization 1 - Name"));
    EXPECT_FALSE(filled.contains("Organization 1 - Type"));
}

TEST(ContactCsv, BlocksFollowInTheOrderAddressPhoneEmailEventWebsite)
{
    EXPECT_EQ(rowsOf({holding({plain(22, "", ""), plain(12, "", ""), plain(4, "", ""),
                         plain(3, "", ""), composite(5, "", {})})})
                  .at(0),
        kFixedNames
            + ",Address 1 - Type,Address 1 - City,Address 1 - Street,Address 1 - Postal Code,"
              "Address 1 - Country,Phone 1 - Type,Phone 1 - Value,E-mail 1 - Type,"
              "E-mail 1 - Value,Event 1 - Type,Event 1 - Value,Website 1 - Type,"
              "Website 1 - Value,\n");
}

TEST(ContactCsv, BlocksOfOneKindAreNumberedFromOne)
{
    const std::vector<PRContactProperty> phones(11, plain(3, "", ""));
    QString names = kFixedNames;
    for (int i = 1; i <= 11; ++i) {
        names += QString(",Phone %1 - Type,Phone %1 - Value").arg(i);
    }
    EXPECT_EQ(rowsOf({holding(phones)}).at(0), names + ",\n");
}

TEST(ContactCsv, TheContactWithMostOfAKindDecidesItsColumns)
{
    const PRContactProperty home = plain(3, "_$!<Home>!$_", "1");
    const QStringList rows =
        rowsOf({holding({home, plain(4, "", "a@b")}), holding({home, home, home}), holding({})});
    EXPECT_EQ(rows.at(0), kFixedNames
                              + ",Phone 1 - Type,Phone 1 - Value,Phone 2 - Type,Phone 2 - Value,"
                                "Phone 3 - Type,Phone 3 - Value,E-mail 1 - Type,"
                                "E-mail 1 - Value,\n");
    EXPECT_EQ(rows.at(1), empty(17) + "\"home\",\"1\"," + empty(4) + "\"\",\"a@b\",\n");
    EXPECT_EQ(rows.at(2), empty(17) + QString("\"home\",\"1\",").repeated(3) + empty(2) + "\n");
    EXPECT_EQ(rows.at(3), empty(17) + empty(8) + "\n");
}

TEST(ContactCsv, OnlySelectedContactsAreCounted)
{
    const PRContactProperty phone = plain(3, "", "1");
    RecordList records;
    records.push_back(contactOf(holding({phone, phone}), "unwanted", false));
    records.push_back(std::make_unique<PRAbstractItem>(Record{.values = {"stranger"}}));
    records.push_back(contactOf(holding({phone})));
    EXPECT_EQ(::rowsOf<CContact2CSVTranslate>(std::move(records)),
        QStringList(
            {kFixedNames + ",Phone 1 - Type,Phone 1 - Value,\n", empty(17) + "\"\",\"1\",\n"}));
}

TEST(ContactCsv, ThePropertiesOfAKindAreCountedWhateverLiesBetween)
{
    EXPECT_EQ(filledCells(holding({plain(3, "_$!<Home>!$_", "1"), plain(4, "_$!<Work>!$_", "a@b"),
                  plain(3, "_$!<Mobile>!$_", "2"), plain(22, "_$!<HomePage>!$_", "http://x"),
                  plain(3, "Beach hut", "3"), plain(22, "", "http://y")})),
        (QMap<QString, QString>{{"Phone 1 - Type", "home"}, {"Phone 1 - Value", "1"},
            {"Phone 2 - Type", "mobile"}, {"Phone 2 - Value", "2"}, {"Phone 3 - Type", "Beach hut"},
            {"Phone 3 - Value", "3"}, {"E-mail 1 - Type", "work"}, {"E-mail 1 - Value", "a@b"},
            {"Website 1 - Type", "home page"}, {"Website 1 - Value", "http://x"},
            {"Website 2 - Value", "http://y"}}));
}

TEST(ContactCsv, LabelsAreEnglishInEveryLanguage)
{
    const MarkingTranslation translation;
    EXPECT_EQ(
        filledCells(holding({plain(3, "_$!<Home>!$_", "1")})).value("Phone 1 - Type"), "home");
}

TEST(ContactCsv, AddressHasItsPartsEachInOneLine)
{
    EXPECT_EQ(
        rowsOf({holding({composite(5, "_$!<Work>!$_",
                   {{"Street", "Main St 1\nBack house\n"}, {"City", "San\nJose"}, {"State", "C\nA"},
                       {"ZIP", "95\n101"}, {"Country", "U\nSA"}, {"CountryCode", "us"}})})})
            .at(1),
        empty(17) + R"("work","San Jose C A","Main St 1 Back house ","95 101","U SA",)" + "\n");
}

TEST(ContactCsv, StateSharesTheCellOfTheCity)
{
    struct {
        const char* what = "";
        QMap<QString, QString> entry;
        const char* cell = "";
    } const rows[] = {
        {"both", {{"City", "Berlin"}, {"State", "BE"}}, "Berlin BE"},
        {"the city alone", {{"City", "Berlin"}}, "Berlin"},
        {"an empty state", {{"City", "Berlin"}, {"State", ""}}, "Berlin"},
        {"the state alone", {{"City", ""}, {"State", "BE"}}, "BE"},
        {"neither", {{"ZIP", "1"}}, ""},
        {"a line feed is a blank, and no empty text", {{"City", "\n"}, {"State", "BE"}}, "  BE"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const QString cell =
            filledCells(holding({composite(5, "", row.entry)})).value("Address 1 - City");
        EXPECT_EQ(cell.toStdString(), row.cell);
    }
}

TEST(ContactCsv, CarriageReturnsOfAnAddressStay)
{
    EXPECT_EQ(filledCells(holding({composite(5, "", {{"Street", "a\r\nb"}})}))
                  .value("Address 1 - Street"),
        "a\r b");
}

TEST(ContactCsv, DatesAreDays)
{
    struct {
        const char* what = "";
        const char* seconds = "";
        const char* cell = "";
    } const rows[] = {
        {"local day", "694306800", "2023-01-02"},
        {"fraction", "694267200.75", "2023-01-01"},
        {"year 1604: month and day alone", "-12519360000", "04-12"},
        {"no number", "soon", "2001-01-01"},
        {"beyond all calendars", "1e300", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        ContactContent content = holding({plain(12, "_$!<Anniversary>!$_", row.seconds)});
        content.birthday = row.seconds;
        const auto filled = filledCells(content);
        EXPECT_EQ(filled.value("Birthday").toStdString(), row.cell);
        EXPECT_EQ(filled.value("Event 1 - Value").toStdString(), row.cell);
        EXPECT_EQ(filled.value("Event 1 - Type"), "anniversary");
    }
}

TEST(ContactCsv, AnEventWithoutADateIsTheStartOf2001AndABirthdayIsEmpty)
{
    EXPECT_EQ(filledCells(holding({plain(12, "", "")})),
        (QMap<QString, QString>{{"Event 1 - Value", "2001-01-01"}}));
}

TEST(ContactCsv, MessengersShareTwoCellsInReversedOrder)
{
    EXPECT_EQ(filledCells(holding({composite(13, "", {{"service", "skype"}, {"username", "mia"}}),
                  plain(3, "", "1"), composite(13, "", {{"service", "qq"}, {"username", "123"}}),
                  composite(13, "", {{"service", "Signal"}, {"username", "m.b"}})})),
        (QMap<QString, QString>{{"IM 1 - Service", "Signal ::: QQ ::: Skype"},
            {"IM 1 - Value", "m.b ::: 123 ::: mia"}, {"Phone 1 - Value", "1"}}));
}

TEST(ContactCsv, AMessengerWithoutServiceOrUserKeepsItsPlace)
{
    struct {
        const char* what = "";
        std::vector<PRContactProperty> messengers;
        const char* services = "";
        const char* users = "";
    } const rows[] = {
        {"none", {}, "", ""},
        {"alone without a service", {composite(13, "", {{"username", "mia"}})}, "", "mia"},
        {"first without a service",
            {composite(13, "", {{"username", "mia"}}),
                composite(13, "", {{"service", "qq"}, {"username", "123"}})},
            "QQ ::: ", "123 ::: mia"},
        {"last without a service",
            {composite(13, "", {{"service", "qq"}, {"username", "123"}}),
                composite(13, "", {{"username", "mia"}})},
            " ::: QQ", "mia ::: 123"},
        {"without a user", {composite(13, "", {{"service", "qq"}}), composite(13, "", {})},
            " ::: QQ", " ::: "},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const auto filled = filledCells(holding(row.messengers));
        EXPECT_EQ(filled.value("IM 1 - Service").toStdString(), row.services);
        EXPECT_EQ(filled.value("IM 1 - Value").toStdString(), row.users);
    }
}

TEST(ContactCsv, OtherKindsDoNotReachTheFile)
{
    for (const int type : {0, 1, 16, 23, 46, 99}) {
        SCOPED_TRACE(type);
        EXPECT_EQ(rowsOf({holding({plain(type, "_$!<Home>!$_", "x")})}),
            QStringList({kFixedNames + ",\n", empty(17) + "\n"}));
    }
}

TEST(ContactCsv, TextsKeepCommasAndLineBreaksAndDoubleTheirQuotes)
{
    const QString hostile = "a,\"b\"\r\nc;%1 \xC3\xBC \xF0\x9F\x98\x80<&>'=1+1";
    const QString quoted = "\"a,\"\"b\"\"\r\nc;%1 \xC3\xBC \xF0\x9F\x98\x80<&>'=1+1\",";
    ContactContent content = holding({plain(3, hostile, hostile),
        composite(13, hostile, {{"service", hostile}, {"username", hostile}}),
        composite(5, hostile, {{"City", "a,\"b\""}})});
    content.firstName = hostile;
    content.note = hostile;
    EXPECT_EQ(rowsOf({content}).at(1).toStdString(),
        (quoted + empty(9) + quoted + empty(4) + quoted + quoted + quoted + R"("a,""b""",)"
            + empty(3) + quoted + quoted + "\n")
            .toStdString());
}

TEST(ContactCsv, ContactsBeyondTheCountedOnesLoseTheirLastProperties)
{
    PRContactData data(contactsOf({holding({plain(3, "", "1")})}));
    TextSink sink;
    CContact2CSVTranslate translator(&data);
    ASSERT_TRUE(translator.prepare(&sink, "T", nullptr));
    const auto other = contactOf(holding({plain(3, "", "2"), plain(3, "", "3")}));
    EXPECT_TRUE(translator.writeItem(&sink, other.get()));
    EXPECT_EQ(sink.writes().at(1), empty(17) + "\"\",\"2\",\n");
}

TEST(ContactCsv, RowBeforeTheNamesIsEmpty)
{
    PRContactData data;
    TextSink sink;
    const auto contact = contactOf(everyText());
    EXPECT_TRUE(CContact2CSVTranslate(&data).writeItem(&sink, contact.get()));
    EXPECT_EQ(sink.writes(), QStringList(",\n"));
}

} // namespace

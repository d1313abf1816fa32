// SPDX-License-Identifier: MIT
#include "translators/contact/CContact2CSVTranslateTavero.h"
#include "translators/contact/contact_csv.h"
#include "translators/contact/marking_translation.h"

namespace {

const QString kFixedNames = R"("Prefix","FirstName","FirstNameYomi","MiddleName","LastName",)"
                            R"("LastNameYomi","Suffix","NickName","Company","Department",)"
                            R"("JobTitle","Birthday","Notes")";

// Cells that are empty, each with a comma before it.
QString empty(int cells)
{
    return QString(",\"\"").repeated(cells);
}

// The cells of a contact without texts that stand once.
const QString kNoTexts = "\"\"" + empty(12);

QStringList rowsOf(std::vector<ContactContent> contents)
{
    return ::rowsOf<CContact2CSVTranslateTavero>(std::move(contents));
}

QMap<QString, QString> filledCells(ContactContent content)
{
    return ::filledCells<CContact2CSVTranslateTavero>(std::move(content));
}

TEST(TaveroCsv, WithoutRecordsHoldsTheThirteenFixedNamesInQuotes)
{
    EXPECT_EQ(kFixedNames.count(',') + 1, 13);
    EXPECT_EQ(rowsOf({}), QStringList(kFixedNames + "\n"));
}

TEST(TaveroCsv, RowsEndWithoutAComma)
{
    EXPECT_EQ(rowsOf(std::vector<ContactContent>(2)),
        QStringList({kFixedNames + "\n", kNoTexts + "\n", kNoTexts + "\n"}));
}

TEST(TaveroCsv, TextsStandInTheirColumns)
{
    EXPECT_EQ(rowsOf({everyText()}).at(1).toStdString(),
        R"("Dr.","Mia","mi-a","Ann","Berg","beh-rg","jr.","Mimi","Acme","Flight","Pilot",)"
        R"("1985-04-12","Likes tea")"
        "\n");
}

TEST(TaveroCsv, BlocksFollowInTheirOrder)
{
    EXPECT_EQ(
        rowsOf({holding({plain(23, "", ""), plain(22, "", ""), composite(13, "", {}),
                   plain(12, "", ""), plain(4, "", ""), plain(3, "", ""), composite(5, "", {})})})
            .at(0)
            .toStdString(),
        kFixedNames.toStdString()
            + R"(,"Address 1 - Type","Address 1 - Street","Address 1 - City",)"
              R"("Address 1 - State","Address 1 - Postal Code","Address 1 - Country",)"
              R"("Phone 1 - Type","Phone 1 - Value","E-mail 1 - Type","E-mail 1 - Value",)"
              R"("Date 1 - Type","Date 1 - Value","IM 1 - Type","IM 1 - Service","IM 1 - User",)"
              R"("URL 1 - Type","URL 1 - Value","Related 1 - Type","Related 1 - Value")"
              "\n");
}

TEST(TaveroCsv, TheContactWithMostOfAKindDecidesItsColumns)
{
    const PRContactProperty mother = plain(23, "_$!<Mother>!$_", "Ada");
    const QStringList rows = rowsOf({holding({mother}), holding({mother, mother}), holding({})});
    EXPECT_EQ(rows.at(0), kFixedNames
                              + R"(,"Related 1 - Type","Related 1 - Value","Related 2 - Type",)"
                              + "\"Related 2 - Value\"\n");
    EXPECT_EQ(rows.at(1), kNoTexts + R"(,"mother","Ada")" + empty(2) + "\n");
    EXPECT_EQ(rows.at(2), kNoTexts + R"(,"mother","Ada","mother","Ada")" + "\n");
    EXPECT_EQ(rows.at(3), kNoTexts + empty(4) + "\n");
}

TEST(TaveroCsv, OnlySelectedContactsAreCounted)
{
    const PRContactProperty phone = plain(3, "", "1");
    RecordList records;
    records.push_back(contactOf(holding({phone, phone}), "unwanted", false));
    records.push_back(std::make_unique<PRAbstractItem>(Record{.values = {"stranger"}}));
    records.push_back(contactOf(holding({phone})));
    EXPECT_EQ(::rowsOf<CContact2CSVTranslateTavero>(std::move(records)),
        QStringList({kFixedNames + ",\"Phone 1 - Type\",\"Phone 1 - Value\"\n",
            kNoTexts + ",\"\",\"1\"\n"}));
}

TEST(TaveroCsv, EachKindIsCountedForItself)
{
    const MarkingTranslation translation; // labels are English in every language
    EXPECT_EQ(filledCells(holding({plain(3, "_$!<Home>!$_", "1"), plain(4, "_$!<Work>!$_", "a@b"),
                  plain(3, "Beach hut", "2"), plain(22, "_$!<HomePage>!$_", "http://x"),
                  plain(23, "_$!<ElderSister>!$_", "Eva"),
                  plain(12, "_$!<Anniversary>!$_", "694267200"), plain(12, "", "")})),
        (QMap<QString, QString>{{"Phone 1 - Type", "home"}, {"Phone 1 - Value", "1"},
            {"Phone 2 - Type", "Beach hut"}, {"Phone 2 - Value", "2"}, {"E-mail 1 - Type", "work"},
            {"E-mail 1 - Value", "a@b"}, {"URL 1 - Type", "home page"},
            {"URL 1 - Value", "http://x"}, {"Related 1 - Type", "Elder Sister"},
            {"Related 1 - Value", "Eva"}, {"Date 1 - Type", "anniversary"},
            {"Date 1 - Value", "2023-01-01"}, {"Date 2 - Value", "2001-01-01"}}));
}

TEST(TaveroCsv, AddressHasEachPartInAColumnAndInOneLine)
{
    EXPECT_EQ(
        rowsOf({holding({composite(5, "_$!<Work>!$_",
                   {{"Street", "Main St 1\nBack house"}, {"City", "San\nJose"}, {"State", "C\nA"},
                       {"ZIP", "95\n101"}, {"Country", "U\nSA"}, {"CountryCode", "us"}})})})
            .at(1),
        kNoTexts + R"(,"work","Main St 1 Back house","San Jose","C A","95 101","U SA")" + "\n");
}

TEST(TaveroCsv, AnEmptyStateShiftsNothing)
{
    for (const QMap<QString, QString>& entry : {
             QMap<QString, QString>{{"City", "Berlin"}, {"State", ""}, {"ZIP", "10115"}},
             QMap<QString, QString>{{"City", "Berlin"}, {"ZIP", "10115"}},
         }) {
        EXPECT_EQ(rowsOf({holding({composite(5, "", entry)})}).at(1),
            kNoTexts + R"(,"","","Berlin","","10115","")" + "\n");
    }
}

TEST(TaveroCsv, MessengersStandInNumberedBlocksInTheirOrder)
{
    EXPECT_EQ(filledCells(holding(
                  {composite(13, "_$!<Home>!$_", {{"service", "SKYPE"}, {"username", "Mia"}}),
                      composite(13, "_$!<Work>!$_", {{"service", "qq"}, {"username", "123"}})})),
        (QMap<QString, QString>{{"IM 1 - Type", "home"}, {"IM 1 - Service", "skype"},
            {"IM 1 - User", "Mia"}, {"IM 2 - Type", "work"}, {"IM 2 - Service", "qq"},
            {"IM 2 - User", "123"}}));
}

TEST(TaveroCsv, ServicesAreKeysInSmallLettersAndNotNames)
{
    struct {
        const char* service = "";
        const char* cell = "";
    } const rows[] = {
        {"googletalk", "googletalk"},
        {"Yahoo", "yahoo"},
        {"\xC3\x84 App", "\xC3\xA4 app"},
        {"", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.service);
        const auto filled = filledCells(
            holding({composite(13, "", {{"service", row.service}, {"username", "mia"}})}));
        EXPECT_EQ(filled.value("IM 1 - Service").toStdString(), row.cell);
        EXPECT_EQ(filled.value("IM 1 - User"), "mia");
    }
}

TEST(TaveroCsv, DatesOfTheYear1604AreMonthAndDayAlone)
{
    ContactContent content = holding({plain(12, "", "-12519360000")});
    content.birthday = "-12519360000";
    const auto filled = filledCells(content);
    EXPECT_EQ(filled.value("Birthday"), "04-12");
    EXPECT_EQ(filled.value("Date 1 - Value"), "04-12");
}

TEST(TaveroCsv, OtherKindsDoNotReachTheFile)
{
    for (const int type : {0, 1, 16, 46, 99}) {
        SCOPED_TRACE(type);
        EXPECT_EQ(rowsOf({holding({plain(type, "_$!<Home>!$_", "x")})}),
            QStringList({kFixedNames + "\n", kNoTexts + "\n"}));
    }
}

TEST(TaveroCsv, TextsKeepCommasAndLineBreaksAndDoubleTheirQuotes)
{
    const QString hostile = "a,\"b\"\r\nc;%1 \xC3\xBC \xF0\x9F\x98\x80";
    const QString quoted = ",\"a,\"\"b\"\"\r\nc;%1 \xC3\xBC \xF0\x9F\x98\x80\"";
    ContactContent content = holding({plain(3, hostile, hostile),
        composite(13, hostile, {{"service", "A,\"B\"\n"}, {"username", hostile}})});
    content.note = hostile;
    EXPECT_EQ(
        rowsOf({content}).at(1).toStdString(), ("\"\"" + empty(11) + quoted + quoted + quoted
                                                   + quoted + ",\"a,\"\"b\"\"\n\"" + quoted + "\n")
                                                   .toStdString());
}

TEST(TaveroCsv, RowBeforeTheNamesIsEmpty)
{
    PRContactData data;
    TextSink sink;
    const auto contact = contactOf(everyText());
    EXPECT_TRUE(CContact2CSVTranslateTavero(&data).writeItem(&sink, contact.get()));
    EXPECT_EQ(sink.writes(), QStringList("\n"));
}

} // namespace

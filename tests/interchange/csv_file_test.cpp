// SPDX-License-Identifier: MIT
#include "contact_sets.h"
#include "interchange/csv_file.h"
#include "interchange_access.h"

#include <QString>

#include <gtest/gtest.h>

#include <array>

namespace {

struct PadRow {
    const char* what = "";
    const char* item = "";
    int fields = 0;
    const char* expected = "";
};

QString padded(const char* item, int fields)
{
    CsvRow row;
    row.addPadded(item, fields);
    return row.line();
}

template <typename Exporter> void expectRefused(int mode)
{
    SCOPED_TRACE(mode);
    const support::TempTree tree;
    PRContactData data(contacts::records({ContactContent{}}));
    Exporter exporter(nullptr);
    EXPECT_EQ(access_to::writeFile(exporter, data, mode, tree.path("x.csv")), -1);
    EXPECT_EQ(tree.list(), QStringList());
    EXPECT_TRUE(access_to::records(exporter).isEmpty());
}

} // namespace

TEST(CsvRow, JoinsItsFieldsAsTheyAreAndEndsInCrLf)
{
    CsvRow row;
    row.add("");
    row.add("a \"b\"");
    row.add("");
    row.add("c,d");
    EXPECT_EQ(row.line(), ",a \"b\",,c,d\r\n");
    EXPECT_EQ(CsvRow().line(), "\r\n");
}

TEST(CsvRow, PadsAnItemToItsFieldsAndCountsItsCommas)
{
    const std::array rows{
        PadRow{"nothing to pad to", "", 0, "\r\n"},
        PadRow{"one field", "a", 1, "a\r\n"},
        PadRow{"one value of two", "HOME,123", 4, "HOME,123,,\r\n"},
        PadRow{"no value of two", "", 4, ",,,\r\n"},
        PadRow{"full", "a,b,c", 3, "a,b,c\r\n"},
        PadRow{"a comma in a value is a field", "HOME,1,2", 4, "HOME,1,2,\r\n"},
        PadRow{"more commas than fields", "a,b,c", 2, "a,b,c\r\n"},
    };
    for (const PadRow& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(padded(row.item, row.fields), row.expected);
    }
}

TEST(CsvFiles, AreWrittenInTheModeForOneFileAlone)
{
    for (const int mode : {0, 2, 3, -1}) {
        expectRefused<ExportCSVFile_Google>(mode);
        expectRefused<ExportCSVFile_Outlook>(mode);
    }
}

TEST(CsvFiles, AreNotReadForWhenTheyCannotBeOpened)
{
    const support::TempTree tree;
    PRContactData data(contacts::records({ContactContent{}}));
    ExportCSVFile_Google google(nullptr);
    ExportCSVFile_Outlook outlook(nullptr);
    const QString path = tree.path("no folder/x.csv");
    EXPECT_EQ(access_to::writeFile(google, data, 1, path), -1);
    EXPECT_EQ(access_to::writeFile(outlook, data, 1, path), -1);
    EXPECT_TRUE(access_to::records(google).isEmpty());
    EXPECT_TRUE(access_to::records(outlook).isEmpty());
}

TEST(CsvFiles, HoldOldRecordsTooWhenOneObjectExportsTwice)
{
    const support::TempTree tree;
    PRContactData two(contacts::records(
        {contacts::with({contacts::plain(Phone, "a", "1"), contacts::plain(Phone, "b", "2")})}));
    PRContactData one(contacts::records({contacts::with({contacts::plain(Phone, "c", "3")})}));
    ExportCSVFile_Google exporter(nullptr);
    EXPECT_EQ(exporter.exportContacts(&two, tree.dir(), "Anna", "Contacts"), 0);
    EXPECT_EQ(exporter.exportContacts(&one, tree.dir(), "Anna", "Contacts"), 0);
    const QString file = QString::fromUtf8(tree.read(contacts::kGoogleFile));
    // The columns are counted anew, for the new contacts alone.
    EXPECT_TRUE(file.contains("Phone 1 - Type"));
    EXPECT_FALSE(file.contains("Phone 2 - Type"));
    EXPECT_TRUE(file.contains(",a,1,b,2,"));
    EXPECT_TRUE(file.contains(",c,3,"));
    EXPECT_EQ(file.count("\r\n"), 3);
}

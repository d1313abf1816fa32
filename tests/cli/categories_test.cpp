// SPDX-License-Identifier: MIT
#include "cli/categories.h"
#include "model/PRBackup.h"

#include <gtest/gtest.h>

#include <array>

namespace {

struct Row {
    const char* what;
    QString list;
    QVector<int> dataTypes;
};

std::unique_ptr<PRData> recordsOf(int dataType, int count, bool selected = true)
{
    RecordList records;
    for (int i = 0; i < count; ++i) {
        records.push_back(std::make_unique<PRAbstractItem>(Record{.selected = selected}));
    }
    return std::make_unique<PRData>(dataType, std::move(records));
}

} // namespace

TEST(ParseCategories, TakesNamesAndNumbers)
{
    const std::array rows{
        Row{"a number", "0", {0}},
        Row{"the last number", "35", {35}},
        Row{"a name", "Messages", {0}},
        Row{"a name in other letters", "cALL hISTORY", {3}},
        Row{"several, in their order", "Notes,0,Contacts", {27, 0, 2}},
        Row{"blanks around the commas", " Messages , 2 ", {0, 2}},
        Row{"one named twice", "0,Messages", {0}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const formats::Result<QVector<int>> parsed = parseCategories(row.list);
        ASSERT_TRUE(parsed.has_value());
        EXPECT_EQ(parsed.value(), row.dataTypes);
    }
}

TEST(ParseCategories, NamesWhatIsNoCategory)
{
    for (const QString bad : {"Mesages", "36", "-1", "", "1.0"}) {
        SCOPED_TRACE(bad.toStdString());
        const formats::Result<QVector<int>> parsed = parseCategories("0," + bad);
        ASSERT_FALSE(parsed.has_value());
        EXPECT_TRUE(parsed.error().what.contains('"' + bad + '"'));
    }
}

TEST(ParseCategories, ListsAllCategoriesInItsError)
{
    const QString what = parseCategories("?").error().what;
    EXPECT_EQ(what.count('\n'), kDataTypeCount);
    EXPECT_TRUE(what.contains("\n   0  Messages\n"));
    EXPECT_TRUE(what.endsWith("\n  35  App Documents"));
}

TEST(PlanExport, WritesAllCategoriesInTheOrderOfTheLibrary)
{
    PRBackup backup;
    for (int dataType = 0; dataType < kDataTypeCount; ++dataType) {
        backup.add(recordsOf(dataType, 1));
    }
    EXPECT_EQ(planExport(backup, {}).written,
        (QVector<int>{21, 22, 23, 2, 0, 1, 3, 29, 27, 28, 30, 31, 32, 33, 34, 5, 6, 7, 8, 9, 10, 11,
            12, 13, 14, 15, 16, 17, 18, 19, 20, 24, 25, 26, 35, 4}));
    EXPECT_EQ(planExport(backup, {0, 4, 2}).written, (QVector<int>{2, 0, 4}));
}

TEST(PlanExport, CountsSelectedRecordsAlone)
{
    PRBackup backup;
    backup.add(recordsOf(0, 3, false));
    backup.add(recordsOf(1, 3, false));
    const ExportPlan plan = planExport(backup, {});
    EXPECT_TRUE(plan.written.isEmpty());
}

TEST(PlanExport, TellsOfEmptyCategoriesOnlyWhereTheyWereNamed)
{
    const PRBackup backup;
    EXPECT_TRUE(planExport(backup, {}).empty.isEmpty());
    EXPECT_EQ(planExport(backup, {0}).empty, (QVector<int>{0}));
}

TEST(CategoryNames, KeepTheOrderOfTheList)
{
    EXPECT_EQ(categoryNames({21, 6}), "Photos, WhatsApp Attachments");
}

// SPDX-License-Identifier: MIT
#include "loading.h"
#include "model/PRCalendarItem.h"
#include "model/PRContactItem.h"
#include "model/PRFileItem.h"
#include "model/PRNoteItem.h"
#include "model/PRSMSItem.h"
#include "model/PRSafariBookmarkItem.h"
#include "model/PRWeichatContactItem.h"
#include "model/PRWhatsappItem.h"

#include <gtest/gtest.h>

#include <set>
#include <typeinfo>

using support::TempTree;

namespace {

struct KindRow {
    const char* name;
    const std::type_info& type;
    std::set<int> dataTypes; ///< whose records are of this kind where none is named
};

const KindRow kKinds[] = {
    {"sms", typeid(PRSMSItem), {0}},
    {"contact", typeid(PRContactItem), {2}},
    {"chat", typeid(PRWhatsappItem), {5, 7, 9, 11, 14, 17, 19}},
    {"chatContact", typeid(PRWeichatContactItem), {16}},
    {"event", typeid(PRCalendarItem), {29}},
    {"bookmark", typeid(PRSafariBookmarkItem), {33, 34}},
    {"note", typeid(PRNoteItem), {27}},
    {"plain", typeid(PRAbstractItem), {3, 13, 30}},
    {"file", typeid(PRFileItem),
        {1, 4, 6, 8, 10, 12, 15, 18, 20, 21, 22, 23, 24, 25, 26, 28, 31, 32, 35}},
};

const std::type_info& typeOf(const PRAbstractItem& item)
{
    return typeid(item);
}

} // namespace

TEST(Load, TakesADocumentThatHoldsNothing)
{
    const TempTree tree;
    const auto result = loadText(tree, R"({"recordSet": 1})");
    ASSERT_TRUE(result.has_value()) << errorOf(result);
    EXPECT_EQ(result->owner, "");
    for (int dataType = 0; dataType < kDataTypeCount; ++dataType) {
        EXPECT_EQ(result->records.getPRData(dataType), nullptr) << dataType;
    }
}

TEST(Load, ReadsTheOwner)
{
    const TempTree tree;
    const auto result = loadText(tree, R"({"recordSet": 1, "owner": "Anna", "sets": []})");
    ASSERT_TRUE(result.has_value()) << errorOf(result);
    EXPECT_EQ(result->owner, "Anna");
}

TEST(Load, MakesASetForEachDataTypeThatIsNamedAndNoOther)
{
    const TempTree tree;
    for (int dataType = 0; dataType < kDataTypeCount; ++dataType) {
        SCOPED_TRACE(dataType);
        const auto result = loadText(tree, setOf(dataType, ""));
        ASSERT_TRUE(result.has_value()) << errorOf(result);
        for (int other = 0; other < kDataTypeCount; ++other) {
            EXPECT_EQ(result->records.getPRData(other) != nullptr, other == dataType) << other;
        }
        const PRData& set = *result->records.getPRData(dataType);
        EXPECT_EQ(set.dataType(), dataType);
        EXPECT_EQ(dynamic_cast<const PRSMSData*>(&set) != nullptr, dataType == 0);
        EXPECT_EQ(dynamic_cast<const PRContactData*>(&set) != nullptr, dataType == 2);
        EXPECT_EQ(set.count(1), 0);
    }
}

TEST(Load, ReadsColumns)
{
    const TempTree tree;
    const auto result = loadText(tree,
        R"({"recordSet": 1, "sets": [{"dataType": 0}, {"dataType": 2, "columns": ["A", ""]},
            {"dataType": 3, "columns": []}]})");
    ASSERT_TRUE(result.has_value()) << errorOf(result);
    EXPECT_EQ(result->records.getPRData(0)->dataColumn(), 1);
    EXPECT_EQ(result->records.getPRData(0)->columnName(0), "Name");
    EXPECT_EQ(result->records.getPRData(2)->dataColumn(), 2);
    EXPECT_EQ(result->records.getPRData(2)->columnName(0), "A");
    EXPECT_EQ(result->records.getPRData(2)->columnName(1), "");
    EXPECT_EQ(result->records.getPRData(3)->dataColumn(), 0);
}

TEST(Load, KeepsTheOrderOfRecords)
{
    const TempTree tree;
    const auto result =
        loadText(tree, setOf(3, R"({"values": ["b", "1"]}, {"values": ["a"]}, {})"));
    ASSERT_TRUE(result.has_value()) << errorOf(result);
    const PRData& set = *result->records.getPRData(3);
    ASSERT_EQ(set.count(1), 3);
    EXPECT_EQ(set.value(0, 0), "b");
    EXPECT_EQ(set.value(0, 1), "1");
    EXPECT_EQ(set.value(0, 2), "");
    EXPECT_EQ(set.value(1, 0), "a");
    EXPECT_EQ(set.value(2, 0), "");
}

TEST(Load, DoesNotMindTheOrderOfKeys)
{
    const TempTree tree;
    const auto result = loadText(tree, R"({"sets": [
        {"records": [{"group": "A"}, {"group": "B"}], "columns": ["Title"], "dataType": 33},
        {"records": [], "dataType": 3}], "owner": "Anna", "recordSet": 1})");
    ASSERT_TRUE(result.has_value()) << errorOf(result);
    EXPECT_EQ(result->owner, "Anna");
    const PRData& set = *result->records.getPRData(33);
    ASSERT_EQ(set.count(1), 2);
    EXPECT_EQ(dynamic_cast<PRSafariBookmarkItem&>(*set.at(1, true)).bookmarkGroup(), "B");
    EXPECT_EQ(set.columnName(0), "Title");
    EXPECT_NE(result->records.getPRData(3), nullptr);
}

TEST(Load, ChoosesTheKindByTheDataType)
{
    const TempTree tree;
    std::set<int> seen;
    for (const KindRow& row : kKinds) {
        for (const int dataType : row.dataTypes) {
            SCOPED_TRACE(dataType);
            const auto result = loadText(tree, setOf(dataType, "{}"));
            ASSERT_TRUE(result.has_value()) << errorOf(result);
            EXPECT_EQ(typeOf(*result->records.getPRData(dataType)->at(0, true)), row.type);
            seen.insert(dataType);
        }
    }
    EXPECT_EQ(seen.size(), std::size_t(kDataTypeCount));
}

TEST(Load, TakesARecordOfAnyKindInAnySet)
{
    const TempTree tree;
    for (const KindRow& row : kKinds) {
        SCOPED_TRACE(row.name);
        for (const int dataType : {0, 2, 21}) {
            const auto result =
                loadText(tree, setOf(dataType, QByteArray(R"({"kind": ")") + row.name + "\"}"));
            ASSERT_TRUE(result.has_value()) << errorOf(result);
            EXPECT_EQ(typeOf(*result->records.getPRData(dataType)->at(0, true)), row.type);
        }
    }
}

TEST(Load, ReadsFlags)
{
    const TempTree tree;
    for (const int flag : {1, 2, 8, 16}) {
        const auto result =
            loadText(tree, setOf(3, R"({"flags": [)" + QByteArray::number(flag) + "]}"));
        ASSERT_TRUE(result.has_value()) << errorOf(result);
        for (const int other : {1, 2, 4, 8, 16, 32}) {
            EXPECT_EQ(result->records.getPRData(3)->at(0, true)->flag(other), other == flag);
        }
    }
    const auto all = loadText(tree, setOf(3, R"({"flags": [16, 1, 2, 8, 1]})"));
    ASSERT_TRUE(all.has_value()) << errorOf(all);
    EXPECT_EQ(all->records.getPRData(3)->at(0, true)->record().flags, 27);
}

TEST(Load, LeavesOutOfTheExportWhatIsNotSelected)
{
    const TempTree tree;
    const auto result = loadText(tree, setOf(3, R"({}, {"selected": false}, {"selected": true})"));
    ASSERT_TRUE(result.has_value()) << errorOf(result);
    const PRData& set = *result->records.getPRData(3);
    EXPECT_EQ(set.recoverCount(), 2);
    EXPECT_EQ(set.recoverList(), (QList<int>{0, 2}));
    EXPECT_EQ(set.recoverFileList(), (QList<PRAbstractItem*>{set.at(0, true), set.at(2, true)}));
    EXPECT_FALSE(set.checked(set.at(1, true)));
    EXPECT_FALSE(set.recover(set.at(1, true)));
}

TEST(Load, ReadsTheParent)
{
    const TempTree tree;
    const auto result = loadText(tree,
        setOf(
            21, R"({}, {"parent": null}, {"parent": ""}, {"parent": "Alps"}, {"parent": "..."})"));
    ASSERT_TRUE(result.has_value()) << errorOf(result);
    const PRData& set = *result->records.getPRData(21);
    EXPECT_EQ(set.at(0, true)->parentItem(), nullptr);
    EXPECT_EQ(set.at(1, true)->parentItem(), nullptr);
    ASSERT_NE(set.at(2, true)->parentItem(), nullptr);
    EXPECT_EQ(set.at(2, true)->parentItem()->value(0), "");
    EXPECT_EQ(set.at(3, true)->parentItem()->value(0), "Alps");
    EXPECT_EQ(set.at(4, true)->parentItem()->value(0), "...");
}

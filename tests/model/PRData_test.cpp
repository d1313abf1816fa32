// SPDX-License-Identifier: MIT
#include "model/PRData.h"
#include "model/PRFileItem.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

#include <memory>
#include <utility>

namespace {

std::unique_ptr<PRAbstractItem> record(const QString& name, bool selected)
{
    return std::make_unique<PRAbstractItem>(
        Record{.values = {name, name + "'s second"}, .selected = selected});
}

// Four records: the first and the last are not selected, the third is a file.
PRData fourRecords()
{
    RecordList records;
    records.push_back(record("a", false));
    records.push_back(record("b", true));
    records.push_back(std::make_unique<PRFileItem>(Record{.values = {"c"}}));
    records.push_back(record("d", false));
    return PRData(5, std::move(records), {"Name", "Second"});
}

/// Loads its records when they are first asked for.
class LateData : public PRData {
public:
    LateData() : PRData(3) {}
    int loads() const { return m_loads; }

protected:
    const RecordList& records() const override
    {
        if (m_records.empty()) {
            ++m_loads;
            m_records.push_back(record("late", true));
        }
        return m_records;
    }

private:
    mutable int m_loads = 0;
    mutable RecordList m_records;
};

} // namespace

TEST(PRData, AddressesItsRecordsByRow)
{
    const PRData data = fourRecords();
    EXPECT_EQ(data.dataType(), 5);
    EXPECT_EQ(data.count(1), 4);
    EXPECT_EQ(data.count(0), 4);
    EXPECT_EQ(data.at(0, true)->value(0), "a");
    EXPECT_EQ(data.at(3, true)->value(0), "d");
    EXPECT_EQ(data.at(3, false), data.at(3, true));
    EXPECT_EQ(data.at(4, true), nullptr);
    EXPECT_EQ(data.at(-1, true), nullptr);
}

TEST(PRData, CountsAndListsTheSelectedRecordsInOrder)
{
    const PRData data = fourRecords();
    EXPECT_EQ(data.recoverCount(), 2);
    EXPECT_EQ(data.recoverList(), QList<int>({1, 2}));
    EXPECT_EQ(data.recoverFileList(), QList<PRAbstractItem*>({data.at(1, true), data.at(2, true)}));
}

TEST(PRData, TellsOfEachRecordWhetherItIsWanted)
{
    const PRData data = fourRecords();
    const bool wanted[] = {false, true, true, false};
    int row = 0;
    for (const bool expected : wanted) {
        EXPECT_EQ(data.checked(data.at(row, true)), expected) << row;
        EXPECT_EQ(data.recover(data.at(row, true)), expected) << row;
        ++row;
    }
    EXPECT_FALSE(data.checked(nullptr));
    EXPECT_FALSE(data.recover(nullptr));
}

TEST(PRData, FollowsTheSelection)
{
    const PRData data = fourRecords();
    data.at(0, true)->setSelected(true);
    data.at(1, true)->setSelected(false);
    EXPECT_EQ(data.recoverCount(), 2);
    EXPECT_EQ(data.recoverList(), QList<int>({0, 2}));
    EXPECT_EQ(data.recoverFileList(), QList<PRAbstractItem*>({data.at(0, true), data.at(2, true)}));
}

TEST(PRData, GivesTheSameRecordEachTime)
{
    const PRData data = fourRecords();
    EXPECT_EQ(data.at(1, true), data.at(1, true));
    EXPECT_EQ(data.recoverFileList(), data.recoverFileList());
}

TEST(PRData, WithoutRecordsIsEmpty)
{
    const PRData data(3);
    EXPECT_EQ(data.recoverCount(), 0);
    EXPECT_TRUE(data.recoverList().isEmpty());
    EXPECT_TRUE(data.recoverFileList().isEmpty());
    EXPECT_EQ(data.count(1), 0);
    EXPECT_EQ(data.at(0, true), nullptr);
}

TEST(PRData, HasColumnsWithHeadings)
{
    const PRData data = fourRecords();
    EXPECT_EQ(data.dataColumn(), 2);
    EXPECT_EQ(data.columnName(0), "Name");
    EXPECT_EQ(data.columnName(1), "Second");
    EXPECT_EQ(data.columnName(2), "");
    EXPECT_EQ(data.columnName(-1), "");
}

TEST(PRData, HasOneColumnWhereNoneAreGivenAndNoneForAnEmptyList)
{
    EXPECT_EQ(PRData(3).dataColumn(), 1);
    EXPECT_EQ(PRData(3).columnName(0), "Name");
    EXPECT_EQ(PRSMSData().columnName(0), "Name");
    EXPECT_EQ(PRContactData().columnName(0), "Name");
    EXPECT_EQ(PRData(3, {}, {}).dataColumn(), 0);
    EXPECT_EQ(PRData(3, {}, {}).columnName(0), "");
}

TEST(PRData, ReadsCellsFromTheRecords)
{
    const PRData data = fourRecords();
    EXPECT_EQ(data.value(1, 0), "b");
    EXPECT_EQ(data.value(1, 1), "b's second");
    EXPECT_EQ(data.value(2, 1), "");
    EXPECT_EQ(data.value(1, 9), "");
    EXPECT_EQ(data.value(4, 0), "");
    EXPECT_EQ(data.value(-1, 0), "");
}

TEST(PRData, SetsOfMessagesAndContactsKnowTheirType)
{
    EXPECT_EQ(PRSMSData().dataType(), 0);
    EXPECT_EQ(PRContactData().dataType(), 2);
}

TEST(PRData, LoadsLateRecordsOnceForAllQuestions)
{
    const LateData data;
    EXPECT_EQ(data.loads(), 0);
    EXPECT_EQ(data.recoverCount(), 1);
    EXPECT_EQ(data.recoverList(), QList<int>({0}));
    EXPECT_EQ(data.recoverFileList().size(), 1);
    EXPECT_EQ(data.count(1), 1);
    EXPECT_EQ(data.value(0, 0), "late");
    EXPECT_EQ(data.loads(), 1);
}

// SPDX-License-Identifier: MIT
#include "driver/CBackupExporter.h"
#include "driver/driver_fixture.h"
#include "support/recording_progress.h"

#include <algorithm>
#include <functional>
#include <numeric>

namespace {

using support::RecordingProgress;

// Writes its data type down each time that its records are counted.
class CountedSet final : public PRData {
public:
    CountedSet(QVector<int>& counted, int dataType, RecordList records)
        : PRData(dataType, std::move(records)), m_counted(counted)
    {
    }

protected:
    const RecordList& records() const override
    {
        m_counted.append(dataType());
        return PRData::records();
    }

private:
    QVector<int>& m_counted;
};

// Changes its selection after it was counted for the scale.
template <typename Base> class FickleSet final : public Base {
public:
    template <typename... Arguments>
    explicit FickleSet(bool selectedLater, Arguments&&... arguments)
        : Base(std::forward<Arguments>(arguments)...), m_selectedLater(selectedLater)
    {
        select(!selectedLater);
    }

protected:
    const RecordList& records() const override
    {
        if (++m_asked == 2) {
            select(m_selectedLater);
        }
        return Base::records();
    }

private:
    void select(bool selected) const
    {
        for (const auto& record : Base::records()) {
            record->setSelected(selected);
        }
    }

    bool m_selectedLater;
    mutable int m_asked = 0;
};

QVector<int> allTypes()
{
    QVector<int> types(36);
    std::iota(types.begin(), types.end(), 0);
    return types;
}

using BackupExporter = DriverTest;

TEST_F(BackupExporter, CountsThenWritesTheCategoriesInTheOrderOfTheTable)
{
    QVector<int> counted;
    PRBackup backup;
    for (int type = 0; type < 36; ++type) {
        // Of the plain class: the entry of the messages refuses it, so that all are alike.
        backup.add(std::make_unique<CountedSet>(counted, type, plainRecords(1)));
    }
    CBackupExporter().exportBackup(&backup, root(), nullptr, allTypes(), false, "Anna");
    EXPECT_EQ(counted.mid(0, 36), kTableOrder) << "when the scale is made";
    QVector<int> written = counted.mid(36);
    written.erase(std::unique(written.begin(), written.end()), written.end());
    EXPECT_EQ(written.mid(0, 36), kTableOrder) << "when the categories are written";
}

TEST_F(BackupExporter, EachCategoryWeighsAHundredUnitsARecordAndGetsThemInTheOrderOfTheTable)
{
    PRBackup backup;
    QStringList expected{"initRange 66600"}; // 1 + 2 + ... + 36 records
    for (int type = 0; type < 36; ++type) {
        backup.add(plainSet(type, type + 1, 3));
    }
    for (const int type : kTableOrder) {
        expected += stepsOf(type, type + 1);
    }
    expected += {"step 0", "initRange 3100", "setAttachStage true", "step 0", "step 0", "finish"};
    RecordingProgress progress;
    EXPECT_TRUE(
        CBackupExporter().exportBackup(&backup, root(), &progress, allTypes(), false, "Anna"));
    EXPECT_EQ(roundedSteps(progress.calls()), roundedSteps(expected));
}

TEST_F(BackupExporter, OrderAndRepetitionOfTheWantedTypesAndUnknownNumbersHaveNoEffect)
{
    struct {
        const char* what;
        QVector<int> types;
    } const rows[] = {
        {"as in the table", {2, 0, 3}},
        {"another order", {3, 2, 0}},
        {"repeated", {0, 3, 0, 2, 2, 3, 0}},
        {"unknown numbers", {36, 0, 2, 3, -1, 99, 1 << 30}},
        {"types without a set", {0, 1, 2, 3, 4, 5}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        PRBackup backup;
        backup.add(smsSet(1));
        backup.add(plainSet(2, 2));
        backup.add(plainSet(3, 3));
        backup.add(plainSet(7, 7)); // not wanted
        RecordingProgress progress;
        EXPECT_TRUE(
            CBackupExporter().exportBackup(&backup, root(), &progress, row.types, false, "Anna"));
        EXPECT_EQ(progress.calls(),
            QStringList({"initRange 600", "step 200", "step 50", "step 0", "step 50", "step 0",
                "step 0", "step 100", "step 100", "step 100", "step 0", "finish"}));
    }
}

TEST_F(BackupExporter, WithNothingToWriteItOnlyFinishes)
{
    struct {
        const char* what;
        QVector<int> types;
    } const rows[] = {
        {"no types", {}},
        {"types without a set", {1, 5, 14, 15}},
        {"types without a selected record", {2, 3}},
        {"unknown numbers", {36, -1}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        PRBackup backup;
        backup.add(smsSet(1));
        backup.add(plainSet(2, 0, 4));
        backup.add(plainSet(3, 0));
        RecordingProgress progress;
        EXPECT_TRUE(
            CBackupExporter().exportBackup(&backup, root(), &progress, row.types, false, "Anna"));
        EXPECT_EQ(progress.calls(), QStringList("finish"));
        EXPECT_EQ(tree(), QStringList());
    }
}

TEST_F(BackupExporter, WithNothingToWriteItNeedsNoProgress)
{
    PRBackup backup;
    EXPECT_TRUE(CBackupExporter().exportBackup(&backup, root(), nullptr, {0}, false, "Anna"));
    EXPECT_TRUE(CBackupExporter().exportBackup(&backup, root(), nullptr, false, "Anna"));
    EXPECT_EQ(tree(), QStringList());
}

TEST_F(BackupExporter, WithoutProgressItWritesAllTheSame)
{
    PRBackup backup;
    backup.add(smsSet(3));
    backup.add(plainSet(3, 1)); // stands behind the messages
    backup.add(plainSet(14, 1));
    EXPECT_TRUE(
        CBackupExporter().exportBackup(&backup, root(), nullptr, {0, 3, 14}, false, "Anna"));
    EXPECT_EQ(tree(),
        QStringList({"Call History/", "Call History/Anna's Call History.html", "Messages/",
            "Messages/Anna's Messages.csv", "Messages/Anna's Messages.html", "Messages/image/",
            "WeChat/", "WeChat/Anna's WeChat.csv", "WeChat/Anna's WeChat.html", "WeChat/image/"}));
    EXPECT_EQ(pageConversations(), 3);
    EXPECT_EQ(csvRows(), 3);
}

TEST_F(BackupExporter, WithoutProgressACategoryDoesNotStopTheNext)
{
    PRBackup backup;
    backup.add(plainSet(21, 1)); // first of the table
    backup.add(smsSet(1));
    CBackupExporter().exportBackup(&backup, root(), nullptr, {0, 21}, false, "Anna");
    EXPECT_EQ(csvRows(), 1);
}

TEST_F(BackupExporter, ACategoryThatFailsDoesNotStopTheNext)
{
    PRBackup backup;
    backup.add(plainSet(2, 1)); // no contact set
    backup.add(smsSet(1));
    RecordingProgress progress;
    EXPECT_TRUE(CBackupExporter().exportBackup(&backup, root(), &progress, {0, 2}, false, "Anna"));
    EXPECT_EQ(progress.calls(), QStringList({"initRange 200", "step 100", "step 50", "step 0",
                                    "step 50", "step 0", "step 0", "finish"}));
    EXPECT_EQ(csvRows(), 1);
}

TEST_F(BackupExporter, ASetOfAnotherClassThanItsTypeMakesNoDirectory)
{
    PRBackup backup;
    backup.add(plainSet(0, 1));
    backup.add(plainSet(2, 1));
    RecordingProgress progress;
    EXPECT_TRUE(CBackupExporter().exportBackup(&backup, root(), &progress, {0, 2}, false, "Anna"));
    EXPECT_EQ(progress.calls(), QStringList({"initRange 200", "step 100", "step 100", "finish"}));
    EXPECT_EQ(tree(), QStringList());
}

TEST_F(BackupExporter, ACategoryEmptiedAfterTheCountIsPassedOver)
{
    PRBackup backup;
    RecordList records;
    records.push_back(conversation("text"));
    backup.add(std::make_unique<FickleSet<PRSMSData>>(false, std::move(records)));
    backup.add(plainSet(3, 1));
    RecordingProgress progress;
    EXPECT_TRUE(CBackupExporter().exportBackup(&backup, root(), &progress, {0, 3}, false, "Anna"));
    EXPECT_EQ(progress.calls(), QStringList({"initRange 200", "step 100", "step 0", "finish"}));
    EXPECT_EQ(tree(), QStringList({"Call History/", "Call History/Anna's Call History.html"}));
}

TEST_F(BackupExporter, ACategoryFilledAfterTheCountIsWrittenOnAShareOfNothing)
{
    PRBackup backup;
    RecordList records;
    records.push_back(conversation("text"));
    backup.add(std::make_unique<FickleSet<PRSMSData>>(true, std::move(records)));
    backup.add(plainSet(3, 1));
    RecordingProgress progress;
    EXPECT_TRUE(CBackupExporter().exportBackup(&backup, root(), &progress, {0, 3}, false, "Anna"));
    EXPECT_EQ(progress.calls(), QStringList({"initRange 100", "step 0", "step 0", "step 0",
                                    "step 0", "step 0", "step 100", "step 0", "finish"}));
    EXPECT_EQ(pageConversations(), 1);
    EXPECT_EQ(csvRows(), 1);
}

TEST_F(BackupExporter, ASelectionThatWasEmptyWhenCountedIsNotLookedAtAgain)
{
    PRBackup backup;
    RecordList records;
    records.push_back(conversation("text"));
    backup.add(std::make_unique<FickleSet<PRSMSData>>(true, std::move(records)));
    RecordingProgress progress;
    EXPECT_TRUE(CBackupExporter().exportBackup(&backup, root(), &progress, {0}, false, "Anna"));
    EXPECT_EQ(progress.calls(), QStringList("finish"));
    EXPECT_EQ(tree(), QStringList());
}

TEST_F(BackupExporter, TheShorterFormWantsAllTypes)
{
    const auto run = [](const std::function<bool(PRBackup*, CIProgressCallback*)>& exportTo) {
        PRBackup backup;
        for (int type = 1; type < 36; ++type) {
            backup.add(plainSet(type, type));
        }
        backup.add(smsSet(2));
        RecordingProgress progress;
        EXPECT_TRUE(exportTo(&backup, &progress));
        return progress.calls();
    };
    const QStringList longer = run([this](PRBackup* backup, CIProgressCallback* progress) {
        return CBackupExporter().exportBackup(
            backup, root(), progress, allTypes(), false, "Longer");
    });
    const QStringList shorter = run([this](PRBackup* backup, CIProgressCallback* progress) {
        return CBackupExporter().exportBackup(backup, root(), progress, false, "Shorter");
    });
    EXPECT_EQ(shorter, longer);
    EXPECT_EQ(shorter.value(0), "initRange 63200"); // 1 + ... + 35 and two conversations
    const QStringList written = tree();
    EXPECT_TRUE(written.contains("Messages/Shorter's Messages.csv"));
    EXPECT_TRUE(written.contains("Messages/Shorter's Messages.html"));
    EXPECT_EQ(
        written.filter("Longer").replaceInStrings("Longer", "Shorter"), written.filter("Shorter"));
}

TEST_F(BackupExporter, TheCategoryIsNamedByTheModelAndItsFilesByOwnerAndCategory)
{
    PRBackup backup;
    backup.add(smsSet(1));
    CBackupExporter().exportBackup(&backup, root(), nullptr, {0}, false, "Anna");
    const QString category = PRBackup::dataTypeName(0);
    EXPECT_EQ(tree(), QStringList({category + "/", category + "/Anna's " + category + ".csv",
                          category + "/Anna's " + category + ".html", category + "/image/"}));
}

TEST_F(BackupExporter, TheRootIsMadeWhereItIsMissing)
{
    PRBackup backup;
    backup.add(smsSet(1));
    EXPECT_TRUE(CBackupExporter().exportBackup(
        &backup, QDir(root().filePath("a/b")), nullptr, {0}, false, "Anna"));
    EXPECT_EQ(
        tree(), QStringList({"a/", "a/b/", "a/b/Messages/", "a/b/Messages/Anna's Messages.csv",
                    "a/b/Messages/Anna's Messages.html", "a/b/Messages/image/"}));
}

TEST_F(BackupExporter, AnExporterServesManyRuns)
{
    PRBackup backup;
    backup.add(smsSet(1));
    CBackupExporter exporter;
    QStringList calls[2];
    for (QStringList& run : calls) {
        RecordingProgress progress;
        EXPECT_TRUE(exporter.exportBackup(&backup, root(), &progress, {0}, false, "Anna"));
        run = progress.calls();
    }
    EXPECT_EQ(calls[0], calls[1]);
    // A page of the same name is replaced.
    EXPECT_EQ(tree(),
        QStringList({"Messages/", "Messages/Anna's Messages (2).csv",
            "Messages/Anna's Messages.csv", "Messages/Anna's Messages.html", "Messages/image/"}));
}

} // namespace

// SPDX-License-Identifier: MIT
#include "driver/driver_fixture.h"
#include "driver/exporter_access.h"
#include "model/CSubProgress.h"
#include "model/PRFileItem.h"
#include "support/log_messages.h"
#include "support/protect_calls.h"
#include "support/recording_progress.h"

#include <utility>

namespace {

using support::LogMessages;
using support::RecordingProgress;

std::unique_ptr<PRAbstractItem> file(
    const QString& name, const QByteArray& bytes, const QString& path = {})
{
    return std::make_unique<PRFileItem>(
        Record{.values = {name}}, FileContent{.data = bytes, .path = path});
}

class FileEntry : public DriverTest {
protected:
    template <typename... Items> static PRData setOf(int dataType, Items... items)
    {
        RecordList records;
        (records.push_back(std::move(items)), ...);
        return PRData(dataType, std::move(records));
    }

    bool run(PRData& data, CIProgressCallback* progress, CBackupExporter& exporter,
        bool convertHeic = false) const
    {
        const LogMessages silence;
        return access_to::exportFile()(
            &data, root(), "Anna", "Cat", progress, &exporter, convertHeic);
    }

    // A file whose first bytes say HEIC, and no more.
    QString writeHalfHeic() const
    {
        QFile source(root().filePath("half"));
        EXPECT_TRUE(source.open(QIODevice::WriteOnly));
        source.write("....ftypheic");
        return source.fileName();
    }
};

TEST_F(FileEntry, PutsFilesIntoTheDirectoryOfTheCategoryWithoutTheOwner)
{
    PRData data = setOf(35, file("a.txt", "1"), file("a.txt", "2"), file("b", "3"));
    CBackupExporter exporter;
    EXPECT_TRUE(run(data, nullptr, exporter));
    EXPECT_EQ(tree(), QStringList({"Cat/", "Cat/a (2).txt", "Cat/a.txt", "Cat/b"}));
}

TEST_F(FileEntry, TakesTheProgressAsItIsGiven)
{
    PRData data = setOf(35, file("a", "1234"), file("b", "123456"));
    RecordingProgress progress;
    CBackupExporter exporter;
    EXPECT_TRUE(run(data, &progress, exporter));
    EXPECT_EQ(progress.calls(), QStringList({"step 0", "step 80", "step 0", "step 120"}));
}

TEST_F(FileEntry, FailsWhereTheDirectoryCannotBeMade)
{
    QFile inTheWay(root().filePath("file"));
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    PRData data = setOf(35, file("a", "1"));
    RecordingProgress progress;
    CBackupExporter exporter;
    EXPECT_FALSE(access_to::exportFile()(
        &data, QDir(inTheWay.fileName()), "Anna", "Cat", &progress, &exporter, true));
    EXPECT_EQ(progress.calls(), QStringList());
    EXPECT_EQ(tree(), QStringList("file"));
}

TEST_F(FileEntry, FilesThatCannotBeHadLeaveTheCategory)
{
    PRData data = setOf(35, file("a", "", root().filePath("none")), file("b", "1"));
    CBackupExporter exporter;
    EXPECT_TRUE(run(data, nullptr, exporter));
    EXPECT_EQ(tree(), QStringList({"Cat/", "Cat/b"}));
}

TEST_F(FileEntry, TellsThePicturesThatWereNotConvertedRunAfterRun)
{
    const QString half = writeHalfHeic();
    PRData data = setOf(21, file("a.heic", "", half), file("b.heic", "", half));
    CBackupExporter exporter;
    EXPECT_TRUE(run(data, nullptr, exporter, false));
    EXPECT_EQ(exporter.unconvertedPictures(), QStringList());
    EXPECT_TRUE(run(data, nullptr, exporter, true));
    QStringList expected{root().filePath("Cat/a (2).heic"), root().filePath("Cat/b (2).heic")};
    EXPECT_EQ(exporter.unconvertedPictures(), expected);
    EXPECT_TRUE(run(data, nullptr, exporter, true));
    expected += {root().filePath("Cat/a (3).heic"), root().filePath("Cat/b (3).heic")};
    EXPECT_EQ(exporter.unconvertedPictures(), expected);
}

TEST_F(FileEntry, ServesAllTypesOfFiles)
{
    for (const int type : kFileTypes) {
        SCOPED_TRACE(type);
        PRBackup backup;
        RecordList records;
        records.push_back(file("a", "1"));
        backup.add(std::make_unique<PRData>(type, std::move(records)));
        const LogMessages silence;
        CBackupExporter().exportBackup(&backup, root(), nullptr, {type}, false, "Anna");
        EXPECT_TRUE(root().exists(PRBackup::dataTypeName(type) + "/a"));
    }
}

TEST_F(FileEntry, OfProtectedBackupsLiftsTheProtectionOfAllButRingtones)
{
    struct {
        int type = 0;
        bool fromDFU = false;
        bool lifted = false;
    } const rows[] = {{21, true, true}, {35, true, true}, {32, true, false}, {21, false, false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.type);
        QDir(root().filePath("Cat")).removeRecursively();
        const QString path = writeHalfHeic();
        PRData data = setOf(row.type, file("a", "", path), file("b", "1"));
        CBackupExporter exporter;
        exporter.setFromDFU(row.fromDFU);
        const support::ProtectCalls calls;
        EXPECT_TRUE(run(data, nullptr, exporter));
        EXPECT_EQ(tree(), QStringList({"Cat/", "Cat/a", "Cat/b", "half"}));
        EXPECT_EQ(calls.calls(),
            row.lifted ? QStringList({"open " + path, "close " + path}) : QStringList());
    }
}

} // namespace

// SPDX-License-Identifier: MIT
// Disks that are full, sources that change or vanish, targets that nobody may write.
#include "support/acting_progress.h"
#include "support/file_limits.h"
#include "support/recording_progress.h"
#include "support/small_disk.h"
#include "translators/records/file_translate_fixture.h"

namespace {

using support::ActingProgress;

class FileTranslateFaults : public FileTranslateTest {
protected:
    /// The lines of the translation alone, where a decoder speaks too.
    QStringList ownLines()
    {
        return run().filter(QRegExp("^(http|exportData|exportDepends|isThumb|thumbnail|Export)"));
    }

    static QString copyFailed(const QString& source, const QString& target)
    {
        return "exportData failed \n src " + source + " \n des " + target + " ";
    }

    static QString thumbnailFailed(const QString& source, const QString& target)
    {
        return "thumbnail copy failed \n src " + source + " \n des " + target + " ";
    }

    QString target(const QString& name) const { return tree.path("out/Cat/" + name); }
};

TEST_F(FileTranslateFaults, ARealFullDiskLeavesNoPartOfAnyFile)
{
    tree.makeDir("out/Cat");
    const support::SmallDisk disk(target(""), 65'536);
    if (!disk.isThere()) {
        GTEST_SKIP() << "no disk can be mounted";
    }
    const QByteArray tooMuch(70'000, 'x');
    const QString path = source("a", tooMuch);
    const QString thumbnail = source("t", tooMuch);
    add(file("a", {.data = tooMuch}), file("b", {.path = path}),
        file("c", {.path = path, .thumbnail = thumbnail}),
        file("d", {.path = path, .thumbnail = source("s", "small")}), file("e", {.data = "e"}));
    EXPECT_EQ(run(), QStringList({"exportDepends failed a", copyFailed("", "a"),
                         thumbnailFailed("", target("a")), copyFailed(path, target("b")),
                         thumbnailFailed("", target("b")), copyFailed(path, target("c")),
                         thumbnailFailed(thumbnail, target("c")), copyFailed(path, target("d"))}));
    EXPECT_EQ(written(), QStringList({"d", "e"}));
    EXPECT_EQ(contents("d"), "small");
}

TEST_F(FileTranslateFaults, ATargetThatNobodyMayWriteFailsEachFileAndNotTheCategory)
{
    const QString path = source("b", "source");
    const QString thumbnail = source("t", "last");
    add(file("a", {.data = "bytes"}), file("b", {.path = path, .thumbnail = thumbnail}),
        fileOf("Trip", "c", {.data = "bytes"}));
    tree.makeDir("out/Cat");
    for (const char* folder : {"", "in", "out", "out/Cat"}) {
        QFile::setPermissions(tree.path(folder), static_cast<QFile::Permissions>(0x5555));
    }
    QStringList lines;
    {
        const support::AsAnybody rights;
        lines = run();
    }
    for (const char* folder : {"", "in", "out", "out/Cat"}) {
        QFile::setPermissions(tree.path(folder), static_cast<QFile::Permissions>(0x7777));
    }
    EXPECT_EQ(lines, QStringList({"exportDepends failed a", copyFailed("", "a"),
                         thumbnailFailed("", target("a")), copyFailed(path, "b"),
                         thumbnailFailed(thumbnail, target("b")), "exportDepends failed c",
                         copyFailed("", "c"), thumbnailFailed("", target("c"))}));
    EXPECT_EQ(written(), QStringList());
}

TEST_F(FileTranslateFaults, ASourceThatNobodyMayReadLeavesItsThumbnail)
{
    const QString secret = source("secret", "source");
    add(file("a", {.path = secret, .thumbnail = source("t", "last")}));
    QFile::setPermissions(secret, {});
    for (const QString& folder : {tree.path(), tree.path("in"), tree.makeDir("out/Cat")}) {
        QFile::setPermissions(folder, static_cast<QFile::Permissions>(0x7777));
    }
    QStringList lines;
    {
        const support::AsAnybody rights;
        lines = run();
    }
    EXPECT_EQ(lines, QStringList(copyFailed(secret, "a")));
    EXPECT_EQ(contents("a"), "last");
}

TEST_F(FileTranslateFaults, ASourceThatOpensAndCannotBeReadLeavesItsThumbnail)
{
    add(file("a", {.path = "/proc/self/mem", .thumbnail = source("t", "last")}));
    EXPECT_EQ(run(), QStringList(copyFailed("/proc/self/mem", target("a"))));
    EXPECT_EQ(written(), QStringList("a"));
    EXPECT_EQ(contents("a"), "last");
}

TEST_F(FileTranslateFaults, ASourceThatVanishesBeforeItsTurnLeavesItsThumbnail)
{
    const QString path = source("a", QByteArray(300, 'x'));
    add(file("a", {.path = path, .thumbnail = source("t", "last")}),
        file("b", {.data = QByteArray(100, 'y')}));
    ActingProgress progress([&path] { QFile::remove(path); }); // once its bytes are counted
    EXPECT_EQ(run(&progress), QStringList(copyFailed(path, "a")));
    EXPECT_EQ(written(), QStringList({"a", "b"}));
    EXPECT_EQ(contents("a"), "last");
    EXPECT_EQ(progress.position(), 50) << "a quarter of the units of two records";
}

TEST_F(FileTranslateFaults, AFileThatGrowsIsCopiedAndMovesNoFurtherThanItsUnits)
{
    const QString path = source("a", QByteArray(20'000, 'x'));
    add(file("a", {.path = path}), file("b", {.data = "y"}));
    int steps = 0;
    ActingProgress progress([&path, &steps] {
        QFile grown(path);
        if (++steps == 2 && grown.open(QIODevice::Append)) { // behind the first chunk
            grown.write(QByteArray(30'000, 'z'));
        }
    });
    EXPECT_EQ(run(&progress), QStringList());
    EXPECT_EQ(contents("a"), QByteArray(20'000, 'x') + QByteArray(30'000, 'z'));
    EXPECT_EQ(contents("b"), "y");
    EXPECT_DOUBLE_EQ(progress.position(), 200);
}

// A copy that was begun and failed its check leaves its path as the name for all that follows,
// unless it was begun under another name.
TEST_F(FileTranslateFaults, AThumbnailOfAnAddressThatFailsItsCheckStays)
{
    const QString broken = source("b", "JFIF, and no picture");
    add(file(
            "a.jpg", {.path = "http://h/a", .thumbFile = broken, .thumbnail = source("t", "last")}),
        file("b.mov",
            {.path = "http://h/b", .thumbFile = broken, .thumbnail = source("t", "last")}));
    EXPECT_EQ(
        ownLines(), QStringList({"http exportData 1 thumbFilePath failed " + target("a.jpg"),
                        "http export failed http://h/a", copyFailed("http://h/a", target("a.jpg")),
                        "http exportData 2 thumbFilePath failed b.mov.jpg",
                        "http export failed http://h/b", copyFailed("http://h/b", "b.mov")}));
    EXPECT_EQ(written(), QStringList({"a (2).jpg", "a.jpg", "b.mov", "b.mov.jpg"}));
    EXPECT_EQ(contents("a (2).jpg"), "last");
    EXPECT_EQ(contents("b.mov"), "last");
}

// Only its first letters make an address: here they are those of a file beside the program.
TEST_F(FileTranslateFaults, AnAddressThatIsAFileTooGoesAllWays)
{
    tree.write("http picture", encoded("BMP"));
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(tree.path()));
    FileContent content{.path = "http picture", .thumbFile = source("a", "thumb")};
    content.thumbToMedia = true;
    add(file("a.png", content));
    content.thumbFile = "none";
    add(file("b.png", content));
    const QStringList lines = run();
    QDir::setCurrent(before);
    EXPECT_EQ(lines, QStringList({"http exportData 2 thumbFilePath failed b.png.jpg",
                         "http export failed http picture"}));
    EXPECT_EQ(written(), QStringList({"a.png", "a.png.jpg", "b (2).png", "b.png"}));
    EXPECT_EQ(contents("b (2).png"), encoded("BMP"));
}

} // namespace

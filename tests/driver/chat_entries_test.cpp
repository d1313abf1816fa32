// SPDX-License-Identifier: MIT
// The categories of chats and of chat contacts.
#include "driver/driver_fixture.h"
#include "driver/exporter_access.h"
#include "model/CSubProgress.h"
#include "model/PRWeichatContactItem.h"
#include "model/PRWhatsappItem.h"
#include "support/recording_progress.h"

namespace {

using support::RecordingProgress;

class ChatEntryTest : public DriverTest {
protected:
    QStringList callsOf(access_to::Entry entry, PRData* data, int range, int cancelAtStep = 0,
        const QString& ownerName = "Anna")
    {
        RecordingProgress progress(cancelAtStep);
        progress.initRange(range);
        progress.clearCalls();
        result = entry(data, root(), ownerName, "Cat", &progress, nullptr, true);
        return progress.calls();
    }

    bool run(access_to::Entry entry, PRData* data, CIProgressCallback* progress = nullptr) const
    {
        return entry(data, root(), "Anna", "Cat", progress, nullptr, true);
    }

    bool result = false;
};

// --- chats

const char* const kChatPage = "Cat/Anna's Cat.html";
const char* const kChatCsv = "Cat/Anna's Cat.csv";
const QStringList kPageAlone{"Cat/", kChatPage, "Cat/image/"};
const QStringList kBothChatFiles{"Cat/", kChatCsv, kChatPage, "Cat/image/"};

class ExportWhatsapp : public ChatEntryTest {
protected:
    static std::unique_ptr<PRData> chats(int count, int dataType = 5)
    {
        RecordList records;
        for (int i = 0; i < count; ++i) {
            std::vector<PRWhatsappMsg> messages;
            messages.emplace_back(ChatMessage{.content = QString::number(i + 1)});
            records.push_back(std::make_unique<PRWhatsappItem>(Record{}, std::move(messages)));
        }
        return std::make_unique<PRData>(dataType, std::move(records));
    }

    int pageChats() const { return contentsOf(kChatPage).count(R"(<div class="main">)"); }
    int csvLines() const { return contentsOf(kChatCsv).count(QByteArray("\n\0", 2)); }

    const access_to::Entry entry = access_to::exportWhatsapp();
    const access_to::Entry page = access_to::exportWhatsappHtml();
};

TEST_F(ExportWhatsapp, WritesPageAndCsvIntoTheCategory)
{
    const auto set = chats(2);
    EXPECT_TRUE(run(entry, set.get()));
    EXPECT_EQ(tree(), kBothChatFiles);
    EXPECT_EQ(contentsOf(kChatCsv).left(4).toHex(), "fffe4300"); // the mark and the C of "Chat"
    EXPECT_EQ(csvLines(), 3);
    const QByteArray text = contentsOf(kChatPage);
    EXPECT_TRUE(text.contains("<title>Anna's Cat</title><style type=\"text/css\">html, div"));
    EXPECT_TRUE(text.contains("h2 { color:#333333; font-size:14px; font-weight:bold;"));
    EXPECT_TRUE(text.contains("<h1>Anna's Cat</h1>"));
    EXPECT_EQ(pageChats(), 2);
    EXPECT_TRUE(text.endsWith("</div></div></body></html>"));
}

TEST_F(ExportWhatsapp, ThePageAloneUsesTheProgressAsItIs)
{
    const auto set = chats(2);
    EXPECT_EQ(callsOf(page, set.get(), 201), QStringList({"range", "step 100.5", "step 100.5"}));
    EXPECT_TRUE(result);
    EXPECT_EQ(tree(), kPageAlone);
    EXPECT_TRUE(run(page, set.get()));
}

TEST_F(ExportWhatsapp, ThePageAloneTakesTheCategoryWhenItCannotBeOpened)
{
    ASSERT_TRUE(root().mkpath(kChatPage)); // a directory in its place
    ASSERT_TRUE(root().mkpath("Other"));
    const auto set = chats(2);
    EXPECT_EQ(callsOf(page, set.get(), 200), QStringList());
    EXPECT_FALSE(result);
    EXPECT_EQ(tree(), QStringList("Other/"));
}

TEST_F(ExportWhatsapp, GivesEachOfItsTwoStagesHalfOfTheRangeInWholeUnits)
{
    const auto set = chats(2);
    EXPECT_EQ(callsOf(entry, set.get(), 201),
        QStringList({"range", "step 50", "step 50", "step 0", "step 50", "step 50", "step 0"}));
    EXPECT_TRUE(result);
}

TEST_F(ExportWhatsapp, RunsItsStagesOnARangeOfNothing)
{
    const auto set = chats(1);
    for (const int range : {0, 1}) {
        SCOPED_TRACE(range);
        EXPECT_EQ(callsOf(entry, set.get(), range),
            QStringList({"range", "step 0", "step 0", "step 0", "step 0"}));
        EXPECT_TRUE(result);
    }
}

TEST_F(ExportWhatsapp, RunsItsStagesUnderAProgressWithoutParent)
{
    const auto set = chats(1);
    CSubProgress progress(nullptr, 200);
    EXPECT_TRUE(run(entry, set.get(), &progress));
    EXPECT_EQ(tree(), kBothChatFiles);
}

TEST_F(ExportWhatsapp, AFailedPageTakesTheCategoryAndMakesNoCsv)
{
    ASSERT_TRUE(root().mkpath("Other"));
    ASSERT_TRUE(root().mkpath(kChatPage)); // a directory in its place
    const auto set = chats(2);
    EXPECT_EQ(callsOf(entry, set.get(), 200), QStringList({"range", "step 100", "step 0"}));
    EXPECT_FALSE(result);
    EXPECT_EQ(tree(), QStringList("Other/"));
}

TEST_F(ExportWhatsapp, AFailedCsvTakesTheFinishedPage)
{
    // With ".html" the name is as long as file systems take one; the CSV needs a number in it.
    const QString owner(244, 'x');
    ASSERT_TRUE(root().mkpath("Cat/" + owner + "'s Cat.csv"));
    const auto set = chats(2);
    EXPECT_EQ(callsOf(entry, set.get(), 200, 0, owner),
        QStringList({"range", "step 50", "step 50", "step 0", "step 100"}));
    EXPECT_FALSE(result);
    EXPECT_EQ(tree(), QStringList());
}

TEST_F(ExportWhatsapp, ACancelKeepsWhatWasWritten)
{
    struct {
        int cancelAtStep = 0;
        QStringList calls;
        int pageChats = 0;
        int csvLines = 0; // -1: no file
    } const rows[] = {
        {1, {"range", "step 50", "step 50", "step 0"}, 0, -1},
        {2, {"range", "step 50", "step 50", "step 0", "step 0"}, 1, -1},
        {3, {"range", "step 50", "step 50", "step 0", "step 0"}, 2, -1},
        {4, {"range", "step 50", "step 50", "step 0", "step 50", "step 50"}, 2, 1},
        {5, {"range", "step 50", "step 50", "step 0", "step 50", "step 50", "step 0"}, 2, 2},
    };
    const auto set = chats(2);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.cancelAtStep);
        QDir(root().filePath("Cat")).removeRecursively();
        EXPECT_EQ(callsOf(entry, set.get(), 200, row.cancelAtStep), row.calls);
        EXPECT_TRUE(result);
        EXPECT_EQ(tree(), row.csvLines < 0 ? kPageAlone : kBothChatFiles);
        EXPECT_EQ(pageChats(), row.pageChats);
        EXPECT_TRUE(contentsOf(kChatPage).endsWith("</div></body></html>"));
        if (row.csvLines >= 0) {
            EXPECT_EQ(csvLines(), row.csvLines);
        }
    }
}

TEST_F(ExportWhatsapp, ServesAllChatApplications)
{
    for (const int type : {5, 7, 9, 11, 14, 17, 19}) {
        SCOPED_TRACE(type);
        PRBackup backup;
        backup.add(chats(1, type));
        EXPECT_TRUE(
            CBackupExporter().exportBackup(&backup, root(), nullptr, {type}, false, "Anna"));
        const QString category = PRBackup::dataTypeName(type);
        const QString files = category + "/Anna's " + category;
        EXPECT_EQ(tree(),
            QStringList({category + "/", files + ".csv", files + ".html", category + "/image/"}));
        QDir(root().filePath(category)).removeRecursively();
    }
}

// --- chat contacts

const char* const kCardPage = "Cat/HTML/Anna's Cat.html";
const char* const kCardCsv = "Cat/CSV/Anna's Cat.csv";
const QStringList kCardPageAlone{"Cat/", "Cat/HTML/", kCardPage, "Cat/HTML/image/"};
const QStringList kBothCardFiles{
    "Cat/", "Cat/CSV/", kCardCsv, "Cat/HTML/", kCardPage, "Cat/HTML/image/"};

class ExportWeichatContact : public ChatEntryTest {
protected:
    static std::unique_ptr<PRData> contacts(int count)
    {
        RecordList records;
        for (int i = 0; i < count; ++i) {
            records.push_back(std::make_unique<PRWeichatContactItem>(
                Record{}, PRWeiChatContact::Content{.name = QString::number(i + 1)}));
        }
        return std::make_unique<PRData>(16, std::move(records));
    }

    const access_to::Entry entry = access_to::exportWeichatContact();
};

TEST_F(ExportWeichatContact, WritesPageAndCsvIntoFoldersOfTheirOwn)
{
    const auto set = contacts(2);
    EXPECT_TRUE(run(entry, set.get()));
    EXPECT_EQ(tree(), kBothCardFiles);
    EXPECT_EQ(contentsOf(kCardCsv),
        "\xEF\xBB\xBFName,Alias,Wechat ID,WXID,Region,Phone,What's Up,\n1,,,, ,,,\n2,,,, ,,,\n");
    const QByteArray text = contentsOf(kCardPage);
    EXPECT_TRUE(text.contains("<title>Anna's Cat</title><style type=\"text/css\">html, div"));
    EXPECT_TRUE(text.contains("#wrap { width:700px;"));
    EXPECT_TRUE(text.contains("<h1>Anna's Cat</h1>"));
    EXPECT_EQ(text.count(R"(<div class="main nc">)"), 2);
    EXPECT_TRUE(text.endsWith("</table></div></div></body></html>"));
}

TEST_F(ExportWeichatContact, GivesEachOfItsTwoStagesAThirdOfTheRangeInWholeUnits)
{
    const auto set = contacts(2);
    EXPECT_EQ(callsOf(entry, set.get(), 302),
        QStringList({"range", "step 50", "step 50", "step 0", "step 50", "step 50", "step 0"}))
        << "the last third is left to the driver";
    EXPECT_TRUE(result);
}

TEST_F(ExportWeichatContact, RunsItsStagesUnderAProgressWithoutParentOrRange)
{
    const auto set = contacts(1);
    CSubProgress progress(nullptr, 300);
    EXPECT_TRUE(run(entry, set.get(), &progress));
    EXPECT_EQ(tree(), kBothCardFiles);
    for (const int range : {0, 2}) {
        EXPECT_EQ(callsOf(entry, set.get(), range),
            QStringList({"range", "step 0", "step 0", "step 0", "step 0"}));
        EXPECT_TRUE(result);
    }
}

TEST_F(ExportWeichatContact, AFailedPageTakesTheCategoryAndMakesNoCsv)
{
    ASSERT_TRUE(root().mkpath("Other"));
    ASSERT_TRUE(root().mkpath("Cat/CSV/earlier"));
    ASSERT_TRUE(root().mkpath(kCardPage)); // a directory in its place
    const auto set = contacts(2);
    EXPECT_EQ(callsOf(entry, set.get(), 300), QStringList({"range", "step 100", "step 0"}));
    EXPECT_FALSE(result);
    EXPECT_EQ(tree(), QStringList("Other/"));
}

TEST_F(ExportWeichatContact, AFailedCsvTakesTheFinishedPage)
{
    const QString owner(244, 'x'); // as for the chats
    ASSERT_TRUE(root().mkpath("Cat/CSV/" + owner + "'s Cat.csv"));
    const auto set = contacts(2);
    EXPECT_EQ(callsOf(entry, set.get(), 300, 0, owner),
        QStringList({"range", "step 50", "step 50", "step 0", "step 100"}));
    EXPECT_FALSE(result);
    EXPECT_EQ(tree(), QStringList());
}

TEST_F(ExportWeichatContact, ACancelKeepsWhatWasWritten)
{
    struct {
        int cancelAtStep = 0;
        int cards = 0;
        int csvLines = 0; // -1: no file
    } const rows[] = {{1, 0, -1}, {2, 1, -1}, {3, 2, -1}, {4, 2, 1}, {5, 2, 2}, {6, 2, 3}};
    const auto set = contacts(2);
    for (const auto& row : rows) {
        SCOPED_TRACE(row.cancelAtStep);
        QDir(root().filePath("Cat")).removeRecursively();
        callsOf(entry, set.get(), 300, row.cancelAtStep);
        EXPECT_TRUE(result);
        EXPECT_EQ(tree(), row.csvLines < 0 ? kCardPageAlone : kBothCardFiles);
        EXPECT_EQ(contentsOf(kCardPage).count(R"(<div class="main nc">)"), row.cards);
        if (row.csvLines >= 0) {
            EXPECT_EQ(contentsOf(kCardCsv).count('\n'), row.csvLines);
        }
    }
}

TEST_F(ExportWeichatContact, TheDriverWritesThemUnderTheNameOfTheirCategory)
{
    PRBackup backup;
    backup.add(contacts(1));
    EXPECT_TRUE(CBackupExporter().exportBackup(&backup, root(), nullptr, {16}, false, "Anna"));
    EXPECT_TRUE(tree().contains("WeChat Contacts/HTML/Anna's WeChat Contacts.html"));
    EXPECT_TRUE(tree().contains("WeChat Contacts/CSV/Anna's WeChat Contacts.csv"));
}

} // namespace

// SPDX-License-Identifier: MIT
#include "driver/driver_fixture.h"
#include "driver/exporter_access.h"
#include "model/PRFileItem.h"
#include "model/PRWhatsappItem.h"
#include "support/log_messages.h"
#include "support/recording_progress.h"

#include <algorithm>

namespace {

using support::RecordingProgress;

// Addresses of a bad form: each is tried once and given up, without a network.
constexpr const char* kFirst = "http://[1";
constexpr const char* kSecond = "http://[2";
constexpr const char* kFile = "https://[3";

// What the host's progress sees of an attachment that is given up: a poll, and its part.
const QString kGivenUp = ", step 0, step 100";

std::unique_ptr<PRAbstractItem> chatOf(
    const std::vector<ChatMessage>& messages, int flags = 0, bool selected = true)
{
    std::vector<PRWhatsappMsg> made;
    made.reserve(messages.size());
    for (const ChatMessage& message : messages) {
        made.emplace_back(message);
    }
    return std::make_unique<PRWhatsappItem>(
        Record{.flags = flags, .selected = selected}, std::move(made));
}

std::unique_ptr<PRAbstractItem> fileAt(const QString& path, bool selected = true)
{
    return std::make_unique<PRFileItem>(
        Record{.values = {"name.jpg"}, .selected = selected}, FileContent{.path = path});
}

template <typename... Items> void addSet(PRBackup& backup, int dataType, Items... items)
{
    RecordList records;
    (records.push_back(std::move(items)), ...);
    backup.add(std::make_unique<PRData>(dataType, std::move(records)));
}

QStringList collectedMedia(PRBackup& backup, const QVector<int>& types, int dataType = 14)
{
    CBackupExporter exporter;
    QList<PRWhatsappMsg*> messages;
    (exporter.*access_to::getDownloadChatMsg())(messages, dataType, &backup, types);
    QStringList media;
    for (const PRWhatsappMsg* message : messages) {
        media.append(message->media());
    }
    return media;
}

QStringList collectedPaths(PRBackup& backup, const QVector<int>& types, int dataType = 15)
{
    CBackupExporter exporter;
    QList<PRFileItem*> files;
    (exporter.*access_to::getDownloadFileItem())(files, dataType, &backup, types);
    QStringList paths;
    for (const PRFileItem* file : files) {
        paths.append(file->filePath());
    }
    return paths;
}

struct AddressRow {
    const char* what;
    QString text;
    bool collected;
};

const AddressRow kAddresses[] = {
    {"http", "http://example.invalid/1", true},
    {"https", "https://example.invalid/1", true},
    {"only the first letters count", "httpfile", true},
    {"capitals", "HTTP://example.invalid/1", false},
    {"one capital", "Http://example.invalid/1", false},
    {"a blank in front", " http://example.invalid/1", false},
    {"inside", "/http", false},
    {"path", "/tmp/photo.jpg", false},
    {"empty", "", false},
};

TEST(CollectMessages, TakesMediaThatBeginWithHttp)
{
    for (const AddressRow& row : kAddresses) {
        SCOPED_TRACE(row.what);
        PRBackup backup;
        addSet(backup, 14, chatOf({{.media = row.text}}));
        EXPECT_EQ(
            collectedMedia(backup, {14}), row.collected ? QStringList(row.text) : QStringList());
    }
}

TEST(CollectMessages, TakesCheckedMessagesWhereAPartIsSelectedAndAllElsewhere)
{
    const std::vector<ChatMessage> messages{
        {.checked = false, .media = "http:1"}, {.checked = true, .media = "http:2"}};
    PRBackup backup;
    addSet(backup, 14, chatOf(messages, PartlySelected), chatOf(messages, Deleted | Locked));
    EXPECT_EQ(collectedMedia(backup, {14}), QStringList({"http:2", "http:1", "http:2"}));
}

TEST(CollectMessages, WalksTheSelectedChatsInOrderAndPassesOverOthers)
{
    PRBackup backup;
    addSet(backup, 14, chatOf({{.media = "http:a"}, {.media = "/path"}, {.media = "http:b"}}),
        chatOf({{.media = "http:unwanted"}}, 0, false), fileAt("http:file"), chatOf({}),
        chatOf({{.media = "http:c"}}));
    EXPECT_EQ(collectedMedia(backup, {15, 14}), QStringList({"http:a", "http:b", "http:c"}));
}

TEST(CollectMessages, AppendsToWhatIsThere)
{
    PRBackup backup;
    addSet(backup, 14, chatOf({{.media = "http:a"}}));
    CBackupExporter exporter;
    PRWhatsappMsg first;
    QList<PRWhatsappMsg*> messages{&first};
    (exporter.*access_to::getDownloadChatMsg())(messages, 14, &backup, {14});
    ASSERT_EQ(messages.size(), 2);
    EXPECT_EQ(messages.at(0), &first);
    EXPECT_EQ(messages.at(1)->media(), "http:a");
}

TEST(CollectMessages, TakesNothingOfATypeThatIsNotWantedNotThereOrNotSelected)
{
    PRBackup backup;
    addSet(backup, 14, chatOf({{.media = "http:a"}}));
    addSet(backup, 17, chatOf({{.media = "http:a"}}, 0, false));
    EXPECT_EQ(collectedMedia(backup, {}), QStringList());
    EXPECT_EQ(collectedMedia(backup, {15}), QStringList());
    EXPECT_EQ(collectedMedia(backup, {14, 15, 17}, 15), QStringList());
    EXPECT_EQ(collectedMedia(backup, {14, 15, 17}, 17), QStringList());
    EXPECT_EQ(collectedMedia(backup, {14, 15, 17}, 14), QStringList("http:a"));
}

TEST(CollectFiles, TakesPathsThatBeginWithHttp)
{
    for (const AddressRow& row : kAddresses) {
        SCOPED_TRACE(row.what);
        PRBackup backup;
        addSet(backup, 15, fileAt(row.text));
        EXPECT_EQ(
            collectedPaths(backup, {15}), row.collected ? QStringList(row.text) : QStringList());
    }
}

TEST(CollectFiles, WalksTheSelectedFilesInOrderAndPassesOverOthers)
{
    PRBackup backup;
    addSet(backup, 15, fileAt("http:a"), fileAt("http:unwanted", false),
        chatOf({{.media = "http:chat"}}), fileAt("/path"), fileAt("http:b"));
    EXPECT_EQ(collectedPaths(backup, {15}), QStringList({"http:a", "http:b"}));
}

TEST(CollectFiles, TakesNothingOfATypeThatIsNotWantedNotThereOrNotSelected)
{
    PRBackup backup;
    addSet(backup, 15, fileAt("http:a"));
    addSet(backup, 18, fileAt("http:a", false));
    EXPECT_EQ(collectedPaths(backup, {}), QStringList());
    EXPECT_EQ(collectedPaths(backup, {14}), QStringList());
    EXPECT_EQ(collectedPaths(backup, {14, 15, 18}, 14), QStringList());
    EXPECT_EQ(collectedPaths(backup, {14, 15, 18}, 18), QStringList());
    EXPECT_EQ(collectedPaths(backup, {14, 15, 18}, 15), QStringList("http:a"));
}

// --- the stage, as the host's progress sees it

class AttachmentStage : public DriverTest {
protected:
    AttachmentStage()
    {
        addSet(backup, 14, chatOf({{.media = kFirst}, {.media = kSecond}}), chatOf({}));
        addSet(backup, 15, fileAt(kFile), fileAt("/path"), fileAt("/path"));
        backup.add(plainSet(3, 1));
    }

    QStringList callsFor(const QVector<int>& types, int cancelAtStep = 0)
    {
        const support::LogMessages log;
        RecordingProgress progress(cancelAtStep);
        EXPECT_TRUE(
            CBackupExporter().exportBackup(&backup, root(), &progress, types, false, "Anna"));
        return progress.calls();
    }

    // Where the second scale begins, behind the categories; -1 without a stage.
    static int beginOf(const QStringList& calls)
    {
        const int begin = calls.indexOf("setAttachStage true") - 1;
        EXPECT_TRUE(begin < 0 || calls.at(begin).startsWith("initRange "));
        return std::max(begin, -1);
    }

    // The calls of the stage alone.
    QString stageFor(const QVector<int>& types)
    {
        const QStringList calls = callsFor(types);
        const int begin = beginOf(calls);
        return begin < 0 ? "none" : calls.mid(begin).join(", ");
    }

    PRBackup backup;
};

TEST_F(AttachmentStage, HasAScaleOfBothWeightsAndAHundredUnitsForEachAddress)
{
    EXPECT_EQ(stageFor({3, 14, 15}), "initRange 800, setAttachStage true, step 0" + kGivenUp
                                         + kGivenUp + ", step 0" + kGivenUp + ", finish");
}

TEST_F(AttachmentStage, OfTheChatsAloneHasNoFiles)
{
    EXPECT_EQ(stageFor({14}),
        "initRange 400, setAttachStage true, step 0" + kGivenUp + kGivenUp + ", step 0, finish");
}

TEST_F(AttachmentStage, OfTheFilesAloneHasNoChats)
{
    EXPECT_EQ(stageFor({15}),
        "initRange 400, setAttachStage true, step 0, step 0" + kGivenUp + ", finish");
}

TEST_F(AttachmentStage, DoesNotTakePlaceWithoutEither)
{
    EXPECT_EQ(callsFor({3}), QStringList({"initRange 100", "step 100", "step 0", "finish"}));
}

TEST_F(AttachmentStage, DoesNotTakePlaceWhenNoneOfEitherIsSelected)
{
    backup.add(plainSet(14, 0, 2));
    backup.add(plainSet(15, 0, 2));
    EXPECT_EQ(
        callsFor({3, 14, 15}), QStringList({"initRange 100", "step 100", "step 0", "finish"}));
}

TEST_F(AttachmentStage, TakesPlaceWithNothingToFetch)
{
    addSet(backup, 14, chatOf({}));
    EXPECT_EQ(stageFor({14}), "initRange 100, setAttachStage true, step 0, step 0, finish");
}

TEST_F(AttachmentStage, ACancelAtItsHeadEndsTheExportWithoutAFinish)
{
    const QStringList whole = callsFor({14});
    const QStringList before = whole.mid(0, beginOf(whole));
    const int headStep = before.filter("step ").size();
    ASSERT_EQ(before.last(), "step 0");
    EXPECT_EQ(callsFor({14}, headStep).join(", "), before.join(", "));
}

TEST_F(AttachmentStage, NeedsNoProgress)
{
    const support::LogMessages log;
    EXPECT_TRUE(CBackupExporter().exportBackup(&backup, root(), nullptr, {14, 15}, false, "Anna"));
    EXPECT_EQ(log.lines().filter("CBackupExporter").size(), 3) << "all were tried";
}

} // namespace

// SPDX-License-Identifier: MIT
#include "loading.h"
#include "model/PRCalendarItem.h"
#include "model/PRNoteItem.h"
#include "model/PRSMSItem.h"
#include "random_records.h"
#include "support/compare_records.h"

#include <QDateTime>
#include <QImage>

#include <gtest/gtest.h>

using support::firstDifference;
using support::TempTree;

namespace {

constexpr unsigned kSeeds = 150;

/// What stands in the file after a load and a save.
QByteArray savedAgain(const TempTree& tree, const QString& path)
{
    const auto loaded = recordset::load(path);
    EXPECT_TRUE(loaded.has_value()) << errorOf(loaded);
    if (!loaded.has_value()) {
        return {};
    }
    const auto done = recordset::save(loaded->records, loaded->owner, tree.path("again.json"));
    EXPECT_TRUE(done.has_value()) << errorOf(done);
    return tree.read("again.json");
}

PRBackup backupWith(std::unique_ptr<PRAbstractItem> item, int dataType)
{
    RecordList records;
    records.push_back(std::move(item));
    PRBackup backup;
    backup.add(std::make_unique<PRData>(dataType, std::move(records)));
    return backup;
}

} // namespace

TEST(RoundTrip, OfAnyRecordsChangesNothing)
{
    const TempTree tree;
    for (unsigned seed = 0; seed < kSeeds; ++seed) {
        SCOPED_TRACE(seed);
        const PRBackup backup = randomBackup(seed);
        const auto done = recordset::save(backup, "Anna", tree.path("saved.json"));
        ASSERT_TRUE(done.has_value()) << errorOf(done);
        const auto loaded = recordset::load(tree.path("saved.json"));
        ASSERT_TRUE(loaded.has_value()) << errorOf(loaded);
        ASSERT_EQ(loaded->owner, "Anna");
        ASSERT_EQ(firstDifference(backup, loaded->records).toStdString(), "");
    }
}

TEST(RoundTrip, OfAFileThatWasSavedGivesTheSameBytes)
{
    const TempTree tree;
    for (unsigned seed = 0; seed < kSeeds / 5; ++seed) {
        SCOPED_TRACE(seed);
        const auto done = recordset::save(randomBackup(seed), "", tree.path("saved.json"));
        ASSERT_TRUE(done.has_value()) << errorOf(done);
        ASSERT_EQ(savedAgain(tree, tree.path("saved.json")), tree.read("saved.json"));
    }
}

// The comparison above is worth what it sees.
TEST(RoundTrip, DifferencesAreSeenWithTheirPlace)
{
    const auto withText = [](const QString& content) {
        return backupWith(std::make_unique<PRSMSItem>(
                              Record{}, SmsConversation{.chats = {PRSMSChat(SmsMessage{}),
                                                            PRSMSChat({.content = content})}}),
            0);
    };
    EXPECT_EQ(firstDifference(withText("a"), withText("a")), "");
    EXPECT_EQ(firstDifference(withText("a"), withText("b")),
        "set 0, record 0, chat 1, content: \"a\" and \"b\"");
    const auto event = [](const QDateTime& start) {
        return backupWith(
            std::make_unique<PRCalendarItem>(Record{}, CalendarEvent{.start = start}), 29);
    };
    const QDateTime start = QDateTime::fromMSecsSinceEpoch(0, Qt::UTC);
    EXPECT_EQ(firstDifference(event(start), event(start.toLocalTime())), "");
    EXPECT_TRUE(firstDifference(event(start), event({})).startsWith("set 29, record 0, start: "));
    EXPECT_EQ(firstDifference(withText("a"), event({})), "set 0, is there: true and false");
    for (unsigned seed = 0; seed < 20; ++seed) {
        EXPECT_NE(firstDifference(randomBackup(seed), randomBackup(seed + 1)), "") << seed;
    }
}

TEST(RoundTrip, KeepsThePicturesOfNotes)
{
    const TempTree tree;
    QImage image(3, 2, QImage::Format_RGB32);
    image.fill(Qt::red);
    ASSERT_TRUE(image.save(tree.path("red.png")));
    const PRBackup backup =
        backupWith(std::make_unique<PRNoteItem>(Record{},
                       std::vector<PRNoteItem::NotePiece>{
                           {.kind = 1, .preview = image, .previewPath = tree.path("red.png")}}),
            27);
    ASSERT_TRUE(recordset::save(backup, "", tree.path("saved.json")).has_value());
    const auto loaded = recordset::load(tree.path("saved.json"));
    ASSERT_TRUE(loaded.has_value()) << errorOf(loaded);
    EXPECT_EQ(firstDifference(backup, loaded->records), "");
}

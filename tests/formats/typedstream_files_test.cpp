// SPDX-License-Identifier: MIT
#include "formats/sqlite.h"
#include "formats/typedstream.h"
#include "real_files.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace {

using formats::Database;
using formats::OpenMode;
using formats::parseTypedstream;
using formats::typedstreamText;

std::span<const unsigned char> spanOf(const QByteArray& bytes)
{
    return {reinterpret_cast<const unsigned char*>(bytes.constData()),
        static_cast<std::size_t>(bytes.size())};
}

QString decoded(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

int lengthOfRuns(const formats::AttributedText& text)
{
    int sum = 0;
    for (const formats::TextRun& run : text.runs) {
        sum += run.length;
    }
    return sum;
}

TEST(TypedstreamFiles, GiveTheTextThatIsKnown)
{
    const QDir files = realFiles("typedstream");
    const auto known = QJsonDocument::fromJson(contentsOf(files.filePath("expected-text.json")));
    if (!known.isObject()) {
        GTEST_SKIP() << "absent";
    }
    const QJsonObject texts = known.object();
    for (const QString& name : files.entryList(QDir::Files)) {
        if (!texts.contains(name)) {
            continue;
        }
        SCOPED_TRACE(name.toStdString());
        const QByteArray stream = contentsOf(files.filePath(name));
        const auto parsed = parseTypedstream(spanOf(stream));
        ASSERT_TRUE(parsed);
        EXPECT_EQ(parsed->text, texts.value(name).toString());
        EXPECT_EQ(lengthOfRuns(*parsed), parsed->text.size());
        const auto text = typedstreamText(spanOf(stream));
        ASSERT_TRUE(text);
        EXPECT_EQ(decoded(*text), parsed->text);
    }
}

TEST(TypedstreamFiles, HaveNoTextWhereItsLengthIsWrong)
{
    const QByteArray stream = contentsOf(realFiles("typedstream").filePath("ExtraData"));
    if (stream.isEmpty()) {
        GTEST_SKIP() << "absent";
    }
    EXPECT_FALSE(typedstreamText(spanOf(stream)));
    EXPECT_FALSE(parseTypedstream(spanOf(stream)));
}

struct Counts {
    int bodies = 0;
    int withText = 0;
};

// Compares both ways to the text, and both with the column beside.
Counts compareBodies(const Database& database)
{
    Counts counts;
    auto rows = database.prepare(
        "SELECT attributedBody, text FROM message WHERE length(attributedBody) > 0");
    while (rows && rows->next()) {
        SCOPED_TRACE(++counts.bodies);
        const auto parsed = parseTypedstream(rows->blobView(0));
        const auto text = typedstreamText(rows->blobView(0));
        EXPECT_TRUE(parsed && text);
        if (!parsed || !text) {
            continue;
        }
        EXPECT_EQ(decoded(*text), parsed->text);
        EXPECT_EQ(lengthOfRuns(*parsed), parsed->text.size());
        if (!rows->text(1).isEmpty()) { // newer releases leave it empty
            ++counts.withText;
            EXPECT_EQ(rows->text(1), parsed->text);
        }
    }
    return counts;
}

TEST(TypedstreamFiles, AgreeWithTheTextColumnOfEveryMessage)
{
    const QString path = realFiles("databases").filePath("ios12-sms.db");
    if (!QFile::exists(path)) {
        GTEST_SKIP() << "absent";
    }
    const auto database = Database::open(path, OpenMode::Immutable);
    ASSERT_TRUE(database);
    const Counts counts = compareBodies(*database);
    EXPECT_EQ(counts.bodies, 105);
    EXPECT_EQ(counts.withText, 105);
}

TEST(TypedstreamFiles, AreReadInNewerDatabases)
{
    int found = 0;
    for (const char* name : {"ios16-chat.db", "ios18-chat.db"}) {
        SCOPED_TRACE(name);
        const QString path = realFiles("databases").filePath(name);
        if (!QFile::exists(path)) {
            continue;
        }
        ++found;
        const auto database = Database::open(path, OpenMode::Immutable);
        ASSERT_TRUE(database);
        EXPECT_GT(compareBodies(*database).bodies, 0);
    }
    if (found == 0) {
        GTEST_SKIP() << "absent";
    }
}

TEST(TypedstreamFiles, HoldTheWordsOfANewMessage)
{
    const QString path = realFiles("databases").filePath("ios18-chat.db");
    if (!QFile::exists(path)) {
        GTEST_SKIP() << "absent";
    }
    const auto database = Database::open(path, OpenMode::Immutable);
    ASSERT_TRUE(database);
    auto rows = database->prepare("SELECT attributedBody FROM message");
    QStringList texts;
    while (rows && rows->next()) {
        const auto text = typedstreamText(rows->blobView(0));
        texts.append(text ? decoded(*text) : QString());
    }
    EXPECT_TRUE(texts.contains("Oh it translated what I sent!"));
    EXPECT_TRUE(texts.contains(QString::fromUtf8(
        "I\xE2\x80\x99m going to try to eat as quick as possible and then come over")));
}

} // namespace

// SPDX-License-Identifier: MIT
#include "loading.h"
#include "model/PRCalendarItem.h"
#include "model/PRFileItem.h"
#include "model/PRNoteItem.h"

#include <QDateTime>
#include <QImage>

#include <gtest/gtest.h>

using support::TempTree;

namespace {

PRFileItem& fileOf(const formats::Result<recordset::RecordSet>& result)
{
    return dynamic_cast<PRFileItem&>(*result->records.getPRData(4)->at(0, true));
}

PRNoteItem::NotePiece& pieceOf(const formats::Result<recordset::RecordSet>& result)
{
    return *dynamic_cast<PRNoteItem&>(*result->records.getPRData(27)->at(0, true))
                .notePieces()
                .at(0);
}

struct ErrorRow {
    const char* what;
    QByteArray json;
    const char* place;
    QString expectation;
};

void expectErrors(const TempTree& tree, const std::vector<ErrorRow>& rows)
{
    for (const ErrorRow& row : rows) {
        SCOPED_TRACE(row.what);
        const auto result = loadText(tree, row.json);
        ASSERT_FALSE(result.has_value());
        EXPECT_EQ(
            result.error().where, tree.path("records.json") + ": /sets/0/records/0" + row.place);
        EXPECT_EQ(result.error().what, row.expectation);
    }
}

} // namespace

TEST(PathForm, IsAbsoluteAfterLoading)
{
    struct Row {
        const char* text;
        QString path; ///< "<folder>" is that of the JSON
    };
    const Row rows[] = {
        {"", ""},
        {"photo.jpg", "<folder>/photo.jpg"},
        {"media/photo.jpg", "<folder>/media/photo.jpg"},
        {"./media//photo.jpg", "<folder>/media/photo.jpg"},
        {"media/../photo.jpg", "<folder>/photo.jpg"},
        {".", "<folder>"},
        {"~/photo.jpg", "<folder>/~/photo.jpg"},
        {":/photo.jpg", "<folder>/:/photo.jpg"},
        {"c:photo.jpg", "<folder>/c:photo.jpg"},
        {"/media/photo.jpg", "/media/photo.jpg"},
        {"/media/./x/..//photo.jpg/", "/media/photo.jpg"},
        {"/media/http://x", "/media/http:/x"},
        {"http://example.org/a/../b.jpg", "http://example.org/a/../b.jpg"},
        {"HTTPS://Example.org//b.jpg", "HTTPS://Example.org//b.jpg"},
        {"svn+ssh://x//y", "svn+ssh://x//y"},
        {"http:/x//y", "<folder>/http:/x/y"},
        {"://x", "<folder>/:/x"},
        {"9p://x", "<folder>/9p:/x"},
        {"a b://x", "<folder>/a b:/x"},
        {"Grüße/🌊.png", "<folder>/Grüße/🌊.png"},
    };
    const TempTree tree;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        const auto result =
            loadText(tree, setOf(4, QByteArray(R"({"path": ")") + row.text + "\"}"));
        ASSERT_TRUE(result.has_value()) << errorOf(result);
        EXPECT_EQ(fileOf(result).filePath(), QString(row.path).replace("<folder>", tree.path()));
    }
}

TEST(PathForm, IsRelativeToTheFolderOfTheFileHoweverTheFileIsNamed)
{
    const TempTree tree;
    tree.write("records.json", setOf(4, R"({"path": "photo.jpg"})"));
    const auto result =
        recordset::load(QDir::current().relativeFilePath(tree.path("records.json")));
    ASSERT_TRUE(result.has_value()) << errorOf(result);
    EXPECT_EQ(fileOf(result).filePath(), tree.path("photo.jpg"));
}

TEST(BytesForm, IsTextBase64OrAFile)
{
    const TempTree tree;
    const QByteArray allBytes("\x00\xFF\r\n\x1A", 5);
    tree.write("sub/bytes.bin", allBytes);
    tree.write("empty.bin", "");
    struct Row {
        QByteArray json;
        QByteArray bytes;
    };
    const Row rows[] = {
        {R"({"text": "Gr\u00fc\u00dfe\n\u0000"})", QByteArray("Gr\xC3\xBC\xC3\x9F"
                                                              "e\n\0",
                                                       9)},
        {R"({"text": ""})", ""},
        {R"({"text": "\ufeffa"})", "\xEF\xBB\xBF"
                                   "a"},
        {R"({"base64": "AP8NCho="})", allBytes},
        {R"({"base64": ""})", ""},
        {R"({"file": "sub/bytes.bin"})", allBytes},
        {R"({"file": ")" + tree.path("sub/bytes.bin").toUtf8() + "\"}", allBytes},
        {R"({"file": "empty.bin"})", ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.json.toStdString());
        const auto result = loadText(tree, setOf(4, R"({"data": )" + row.json + "}"));
        ASSERT_TRUE(result.has_value()) << errorOf(result);
        EXPECT_EQ(fileOf(result).fileData(), row.bytes);
    }
}

TEST(BytesForm, HasItsErrors)
{
    const TempTree tree;
    tree.makeDir("folder");
    expectErrors(tree,
        {
            {"no key", setOf(4, R"({"data": {}})"), "/data",
                "expected exactly one of the keys text, base64, file, found 0 keys"},
            {"two keys", setOf(4, R"({"data": {"text": "a", "base64": "YQ=="}})"), "/data",
                "expected exactly one of the keys text, base64, file, found 2 keys"},
            {"unknown key", setOf(4, R"({"data": {"hex": "00"}})"), "/data/hex",
                "unknown key, expected one of: text, base64, file"},
            {"text of another type", setOf(4, R"({"data": {"text": 1}})"), "/data/text",
                "expected a string, found 1"},
            {"base64 of another type", setOf(4, R"({"data": {"base64": null}})"), "/data/base64",
                "expected a string, found null"},
            {"base64 with a foreign character", setOf(4, R"({"data": {"base64": "AP8N*ho="}})"),
                "/data/base64", "expected base64, found \"AP8N*ho=\""},
            {"base64 with a line break", setOf(4, R"({"data": {"base64": "AP8N\nCho="}})"),
                "/data/base64", R"(expected base64, found "AP8N\nCho=")"},
            {"base64 that is cut off", setOf(4, R"({"data": {"base64": "AP8NC"}})"), "/data/base64",
                "expected base64, found \"AP8NC\""},
            {"base64 with padding inside", setOf(4, R"({"data": {"base64": "YQ==YQ=="}})"),
                "/data/base64", "expected base64, found \"YQ==YQ==\""},
            {"base64 without padding", setOf(4, R"({"data": {"base64": "AP8NCho"}})"),
                "/data/base64", "expected base64, found \"AP8NCho\""},
            {"file of another type", setOf(4, R"({"data": {"file": []}})"), "/data/file",
                "expected a string, found a list"},
            {"absent file", setOf(4, R"({"data": {"file": "none.bin"}})"), "/data/file",
                "expected a file that can be read (No such file or directory), found \"none.bin\""},
            {"address", setOf(4, R"({"data": {"file": "http://localhost/x"}})"), "/data/file",
                "expected a file that can be read (No such file or directory), "
                "found \"http://localhost/x\""},
        });
    const auto directory = loadText(tree, setOf(4, R"({"data": {"file": "folder"}})"));
    ASSERT_FALSE(directory.has_value());
    EXPECT_TRUE(directory.error().where.endsWith("/data/file"));
}

TEST(DateForm, IsReadIntoUtcAndTheEmptyTextIsAnInvalidDate)
{
    const TempTree tree;
    const auto result = loadText(
        tree, setOf(29, R"({"start": "2024-05-01T12:30:00.5+02:00", "end": "2024-05-01T12:30:00",
                      "recurrenceEnd": ""})"));
    ASSERT_TRUE(result.has_value()) << errorOf(result);
    const PRAbstractItem& item = *result->records.getPRData(29)->at(0, true);
    const QDateTime start = item.sortValue(2).toDateTime();
    EXPECT_EQ(start, QDateTime(QDate(2024, 5, 1), QTime(10, 30, 0, 500), Qt::UTC));
    EXPECT_EQ(start.timeSpec(), Qt::UTC);
    EXPECT_EQ(item.sortValue(3).toDateTime(),
        QDateTime(QDate(2024, 5, 1), QTime(10, 30), Qt::UTC)); // local time is two hours ahead
    EXPECT_EQ(item.sortValue(6).type(), QVariant::DateTime);
    EXPECT_FALSE(item.sortValue(6).toDateTime().isValid());
}

TEST(DateForm, RefusesATextThatIsNoDate)
{
    expectErrors(
        TempTree(), {{"date only", setOf(29, R"({"end": "2024-05-01"})"), "/end",
                        "expected a date and time of ISO 8601 such as 2024-05-01T12:30:00Z, "
                        "found \"2024-05-01\""}});
}

TEST(IntegerForm, GoesToItsLimits)
{
    const TempTree tree;
    const auto result =
        loadText(tree, setOf(29, R"({"allDay": -2147483648, "alarm": 2147483647})"));
    ASSERT_TRUE(result.has_value()) << errorOf(result);
    auto& item = dynamic_cast<PRCalendarItem&>(*result->records.getPRData(29)->at(0, true));
    EXPECT_EQ(item.getAllDay(), std::numeric_limits<int>::min());
    EXPECT_EQ(item.sortValue(9), std::numeric_limits<int>::max());
}

TEST(IntegerForm, RefusesWhatIsBeyond)
{
    const QString expectation = "expected a whole number from -2147483648 to 2147483647, found ";
    expectErrors(TempTree(),
        {
            {"above", setOf(29, R"({"alarm": 2147483648})"), "/alarm", expectation + "2147483648"},
            {"below", setOf(29, R"({"alarm": -2147483649})"), "/alarm",
                expectation + "-2147483649"},
            {"above 64 bits", setOf(29, R"({"alarm": 99999999999999999999})"), "/alarm",
                expectation + "1e+20"},
            {"32 bits off", setOf(29, R"({"alarm": 4294967296})"), "/alarm",
                expectation + "4294967296"},
            {"whole but written as a fraction", setOf(29, R"({"alarm": 1.0})"), "/alarm",
                expectation + "1.0"},
            {"true", setOf(29, R"({"alarm": true})"), "/alarm", expectation + "true"},
        });
}

TEST(TextForm, KeepsEveryCharacter)
{
    const TempTree tree;
    const auto result = loadText(
        tree, setOf(4, R"({"detailDate": "\ufeff\ufeffa\u0000\"\\\/\ud83c\udf0a\uffff"})"));
    ASSERT_TRUE(result.has_value()) << errorOf(result);
    const QChar mark(QChar::ByteOrderMark);
    EXPECT_EQ(fileOf(result).getDetailInfoDateTime(),
        QString(mark) + mark + "a" + QChar(0) + "\"\\/" + QString::fromUtf8("🌊") + QChar(0xFFFF));
}

TEST(MapForm, RefusesWhatIsNoTextInIt)
{
    expectErrors(TempTree(), {{"a number", setOf(0, R"({"addrIds": {"a": "b", "c/d": 1}})"),
                                 "/addrIds/c~1d", "expected a string, found 1"}});
}

TEST(NotePieces, HaveATextOrAPathForTheirContent)
{
    const TempTree tree;
    const auto text = loadText(tree, setOf(27, R"({"pieces": [{"content": "a.png"}]})"));
    ASSERT_TRUE(text.has_value()) << errorOf(text);
    EXPECT_EQ(pieceOf(text).content, "a.png");
    const auto picture =
        loadText(tree, setOf(27, R"({"pieces": [{"content": "a.png", "kind": 1}]})"));
    ASSERT_TRUE(picture.has_value()) << errorOf(picture);
    EXPECT_EQ(pieceOf(picture).content, tree.path("a.png"));
}

TEST(NotePieces, LoadTheirPreview)
{
    const TempTree tree;
    QImage image(3, 2, QImage::Format_RGB32);
    image.fill(Qt::red);
    ASSERT_TRUE(image.save(tree.path("red.png")));
    tree.write("broken.png", "no picture");
    const auto loaded = loadText(tree, setOf(27, R"({"pieces": [{"preview": "red.png"}]})"));
    ASSERT_TRUE(loaded.has_value()) << errorOf(loaded);
    EXPECT_EQ(pieceOf(loaded).preview, image);
    EXPECT_EQ(pieceOf(loaded).previewPath, tree.path("red.png"));
    for (const char* name : {"none.png", "broken.png"}) {
        SCOPED_TRACE(name);
        const auto result =
            loadText(tree, setOf(27, QByteArray(R"({"pieces": [{"preview": ")") + name + "\"}]}"));
        ASSERT_TRUE(result.has_value()) << errorOf(result);
        EXPECT_TRUE(pieceOf(result).preview.isNull());
        EXPECT_EQ(pieceOf(result).previewPath, tree.path(name));
    }
}

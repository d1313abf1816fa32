// SPDX-License-Identifier: MIT
// Every error of the document and of what all records have; the keys of the kinds are in
// fields_test.cpp, the forms of values in forms_test.cpp.
#include "loading.h"

#include <gtest/gtest.h>

using support::TempTree;

namespace {

struct Row {
    const char* what;
    QByteArray json;
    const char* place; ///< after the file's name
    const char* expectation;
};

void expectErrors(const TempTree& tree, const std::vector<Row>& rows)
{
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        const auto result = loadText(tree, row.json);
        ASSERT_FALSE(result.has_value());
        EXPECT_EQ(result.error().where, tree.path("records.json") + row.place);
        EXPECT_EQ(result.error().what, row.expectation);
    }
}

QByteArray sets(const QByteArray& list)
{
    return R"({"recordSet": 1, "sets": [)" + list + "]}";
}

// Only the start of what is said: the rest is the parser's.
struct SyntaxRow {
    const char* what;
    QByteArray json;
    const char* place;
    const char* expectation;
};

} // namespace

TEST(LoadErrors, OfTheDocument)
{
    expectErrors(TempTree(),
        {
            {"not an object", "[]", "", "expected an object, found a list"},
            {"no version", "{}", ": /recordSet", "expected 1, found no such key"},
            {"another version", R"({"recordSet": 2})", ": /recordSet", "expected 1, found 2"},
            {"a version that is no whole number", R"({"recordSet": 1.0})", ": /recordSet",
                "expected 1, found 1.0"},
            {"a version that is text", R"({"recordSet": "1"})", ": /recordSet",
                "expected 1, found \"1\""},
            {"unknown key", R"({"recordSet": 1, "sest": []})", ": /sest",
                "unknown key, expected one of: recordSet, owner, sets"},
            {"empty unknown key", R"({"recordSet": 1, "": []})", ": /",
                "unknown key, expected one of: recordSet, owner, sets"},
            {"owner", R"({"recordSet": 1, "owner": null})", ": /owner",
                "expected a string, found null"},
            {"sets", R"({"recordSet": 1, "sets": {}})", ": /sets",
                "expected a list, found an object"},
            {"the version is asked before all else", R"({"sets": {}, "x": 1, "recordSet": 7})",
                ": /recordSet", "expected 1, found 7"},
        });
}

TEST(LoadErrors, OfASet)
{
    expectErrors(TempTree(),
        {
            {"not an object", sets("7"), ": /sets/0", "expected an object, found 7"},
            {"no data type", sets(R"({"dataType": 1}, {})"), ": /sets/1/dataType",
                "expected a whole number from 0 to 35, found no such key"},
            {"data type too large", sets(R"({"dataType": 36})"), ": /sets/0/dataType",
                "expected a whole number from 0 to 35, found 36"},
            {"data type too small", sets(R"({"dataType": -1})"), ": /sets/0/dataType",
                "expected a whole number from 0 to 35, found -1"},
            {"data type not whole", sets(R"({"dataType": 2.0})"), ": /sets/0/dataType",
                "expected a whole number from 0 to 35, found 2.0"},
            {"second set of a data type",
                sets(R"({"dataType": 5}, {"dataType": 4}, {"dataType": 5})"), ": /sets/2/dataType",
                "expected at most one set for a data type, found 5"},
            {"unknown key", sets(R"({"dataType": 5, "type": 5})"), ": /sets/0/type",
                "unknown key, expected one of: dataType, columns, records"},
            {"columns", sets(R"({"dataType": 5, "columns": "Name"})"), ": /sets/0/columns",
                "expected a list, found \"Name\""},
            {"a column", sets(R"({"dataType": 5, "columns": ["Name", 2]})"), ": /sets/0/columns/1",
                "expected a string, found 2"},
            {"records", sets(R"({"dataType": 5, "records": {}})"), ": /sets/0/records",
                "expected a list, found an object"},
            {"records before the data type",
                sets(R"({"records": [{}, {"chats": []}], "dataType": 5})"),
                ": /sets/0/records/1/chats",
                "unknown key, expected one of: kind, values, flags, selected, parent, messages"},
            {"sets before the version",
                R"({"sets": [{"dataType": 3, "records": [{"values": 1}]}], "recordSet": 1})",
                ": /sets/0/records/0/values", "expected a list, found 1"},
        });
}

TEST(LoadErrors, OfWhatEveryRecordHas)
{
    const QByteArray longText = '"' + QByteArray(50, 'k') + '"';
    expectErrors(TempTree(),
        {
            {"not an object", setOf(3, "{}, []"), ": /sets/0/records/1",
                "expected an object, found a list"},
            {"unknown kind", setOf(3, R"({"kind": "SMS"})"), ": /sets/0/records/0/kind",
                "expected one of sms, contact, chat, chatContact, event, bookmark, note, file, "
                "plain, found \"SMS\""},
            {"long unknown kind", setOf(3, R"({"kind": )" + longText + "}"),
                ": /sets/0/records/0/kind",
                "expected one of sms, contact, chat, chatContact, event, bookmark, note, file, "
                "plain, found \"kkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkkk\"..."},
            {"kind that is no text", setOf(3, R"({"kind": 0})"), ": /sets/0/records/0/kind",
                "expected one of sms, contact, chat, chatContact, event, bookmark, note, file, "
                "plain, found 0"},
            {"a value", setOf(3, R"({"values": ["a", null]})"), ": /sets/0/records/0/values/1",
                "expected a string, found null"},
            {"flags", setOf(3, R"({"flags": 1})"), ": /sets/0/records/0/flags",
                "expected a list, found 1"},
            {"flag 4", setOf(3, R"({"flags": [1, 4]})"), ": /sets/0/records/0/flags/1",
                "expected 1, 2, 8 or 16, found 4"},
            {"flags or-ed", setOf(3, R"({"flags": [3]})"), ": /sets/0/records/0/flags/0",
                "expected 1, 2, 8 or 16, found 3"},
            {"flag that is no number", setOf(3, R"({"flags": [true]})"),
                ": /sets/0/records/0/flags/0",
                "expected a whole number from -2147483648 to 2147483647, found true"},
            {"parent that is a number", setOf(3, R"({"parent": 1})"), ": /sets/0/records/0/parent",
                "expected a string or null, found 1"},
            {"parent .", setOf(3, R"({"parent": "."})"), ": /sets/0/records/0/parent",
                R"(expected a name other than "." and "..", found ".")"},
            {"parent ..", setOf(3, R"({"parent": ".."})"), ": /sets/0/records/0/parent",
                R"(expected a name other than "." and "..", found "..")"},
            {"key of another kind", setOf(3, R"({"chats": []})"), ": /sets/0/records/0/chats",
                "unknown key, expected one of: kind, values, flags, selected, parent"},
        });
}

TEST(LoadErrors, OfAKeyThatStandsTwice)
{
    const char* expectation = "expected each key of an object once, found this one again";
    expectErrors(TempTree(),
        {
            {"in the document", R"({"recordSet": 1, "recordSet": 1})", ": /recordSet", expectation},
            {"in a set", sets(R"({"dataType": 1}, {"dataType": 3, "records": [], "dataType": 3})"),
                ": /sets/1/dataType", expectation},
            {"in a record", setOf(3, R"({}, {"values": [], "values": []})"),
                ": /sets/0/records/1/values", expectation},
            {"in a message", setOf(0, R"({"chats": [{}, {"content": "a", "content": "a"}]})"),
                ": /sets/0/records/0/chats/1/content", expectation},
            {"in a map", setOf(0, R"({"addrIds": {"a/b~": "1", "a\/b~": "2"}})"),
                ": /sets/0/records/0/addrIds/a~1b~0", expectation},
            {"in bytes", setOf(4, R"({"data": {"text": "a", "text": "a"}})"),
                ": /sets/0/records/0/data/text", expectation},
        });
}

TEST(LoadErrors, OfTextThatIsNoJsonHaveLineAndColumn)
{
    const TempTree tree;
    const SyntaxRow rows[] = {
        {"nothing", "", ": line 1, column 1", "unexpected end of input"},
        {"cut off", "{\"recordSet\": 1,\n\"sets\"", ": line 2, column 7", "expected ':'"},
        {"trailing text", "{\"recordSet\": 1}\n x", ": line 2, column 2", "expected end of input"},
        {"second document", "{\"recordSet\": 1} {}", ": line 1, column 18",
            "expected end of input"},
        {"trailing comma", "{\"recordSet\": 1,\n}", ": line 2, column 1",
            "expected string literal"},
        {"comment", "// set\n{\"recordSet\": 1}", ": line 1, column 1", "invalid literal"},
        {"columns count characters", "{\"owner\": \"\xC3\xA4\xC3\xB6\", ?", ": line 1, column 17",
            "expected string literal"},
        {"half of a surrogate pair", R"({"owner": "\ud83c"})", ": line 1, column 18", "surrogate"},
        {"bytes that are no UTF-8", "{\"owner\": \"\xFF\"}", ": line 1, column 12",
            "ill-formed UTF-8"},
        {"line break in a text", "{\"owner\": \"a\nb\"}", ": line 1, column 13",
            "control character"},
        {"number without end", R"({"recordSet": 1e999})", ": line 1, column 19", "1e999"},
        {"not a number", R"({"recordSet": NaN})", ": line 1, column 15", "invalid literal"},
        {"byte order mark", "\xEF\xBB\xBF{\"recordSet\": 1}", ": line 1, column 1",
            "expected UTF-8 without a byte order mark, found one"},
        {"UTF-16", QByteArray("\xFF\xFE{\0}\0", 6), ": line 1, column 1", "invalid literal"},
    };
    for (const SyntaxRow& row : rows) {
        SCOPED_TRACE(row.what);
        const auto result = loadText(tree, row.json);
        ASSERT_FALSE(result.has_value());
        EXPECT_EQ(result.error().where, tree.path("records.json") + row.place);
        EXPECT_TRUE(result.error().what.contains(row.expectation))
            << result.error().what.toStdString();
        EXPECT_FALSE(result.error().what.contains("json.exception"));
    }
}

TEST(LoadErrors, OfAFileThatCannotBeRead)
{
    const TempTree tree;
    const auto missing = recordset::load(tree.path("none.json"));
    ASSERT_FALSE(missing.has_value());
    EXPECT_EQ(missing.error().where, tree.path("none.json"));
    EXPECT_EQ(missing.error().what, "No such file or directory");
    const auto directory = recordset::load(tree.path());
    ASSERT_FALSE(directory.has_value());
    EXPECT_EQ(directory.error().where, tree.path());
}

TEST(LoadErrors, NameTheFileAsItWasNamed)
{
    const TempTree tree;
    tree.write("records.json", "[]");
    const QString relative = QDir::current().relativeFilePath(tree.path("records.json"));
    const auto result = recordset::load(relative);
    ASSERT_FALSE(result.has_value());
    EXPECT_EQ(result.error().where, relative);
}

TEST(LoadErrors, OfDeepNestingAreErrorsLikeAnyOther)
{
    const TempTree tree;
    const QByteArray deep = QByteArray(200'000, '[') + QByteArray(200'000, ']');
    const auto result = loadText(tree, R"({"recordSet": 1, "sets": )" + deep + "}");
    ASSERT_FALSE(result.has_value());
    EXPECT_EQ(result.error().where, tree.path("records.json") + ": /sets/0");
    EXPECT_EQ(result.error().what, "expected an object, found a list");
}

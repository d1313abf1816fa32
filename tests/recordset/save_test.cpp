// SPDX-License-Identifier: MIT
#include "loading.h"
#include "model/PRContactItem.h"
#include "model/PRFileItem.h"
#include "model/PRNoteItem.h"
#include "model/PRSMSItem.h"
#include "model/PRWhatsappItem.h"
#include "recordset/recordset.h"

#include <gtest/gtest.h>

using recordset::save;
using support::TempTree;

namespace {

template <typename Item, typename... Arguments>
std::unique_ptr<PRAbstractItem> make(Arguments&&... arguments)
{
    return std::make_unique<Item>(std::forward<Arguments>(arguments)...);
}

template <typename... Items> RecordList recordsOf(Items... items)
{
    RecordList records;
    (records.push_back(std::move(items)), ...);
    return records;
}

QByteArray saved(const TempTree& tree, const PRBackup& backup, const QString& owner = {})
{
    const auto done = save(backup, owner, tree.path("out.json"));
    EXPECT_TRUE(done.has_value()) << errorOf(done);
    return tree.read("out.json");
}

PRBackup filesWith(FileContent content)
{
    PRBackup backup;
    backup.add(
        std::make_unique<PRData>(21, recordsOf(make<PRFileItem>(Record{}, std::move(content)))));
    return backup;
}

PRBackup plainRecords(int count)
{
    RecordList records;
    for (int row = 0; row < count; ++row) {
        records.push_back(make<PRAbstractItem>(Record{.values = {QString::number(row)}}));
    }
    PRBackup backup;
    backup.add(std::make_unique<PRData>(3, std::move(records)));
    return backup;
}

/// Loads its conversation when it is asked for, as the records of a large store do.
class LazyConversation final : public PRSMSItem {
public:
    const PRSMSChatGroup* detailContent() const override
    {
        if (!m_loaded) {
            m_loaded = std::make_unique<PRSMSChatGroup>(
                SmsConversation{.chats = {PRSMSChat({.content = "late"})}});
        }
        return m_loaded.get();
    }

private:
    mutable std::unique_ptr<PRSMSChatGroup> m_loaded;
};

/// Looks its file up when it is asked for.
class LazyFile final : public PRFileItem {
public:
    QString filePath() const override { return "/late.png"; }
    QString thumbFilePath() const override { return "/thumb.png"; }
};

class LazyNote final : public PRNoteItem {
public:
    LazyNote() : PRNoteItem({.values = {"Note", ""}}) {}
    QString value(int column) const override { return column == 1 ? "late" : "Note"; }
    std::vector<NotePiece> contents() const override
    {
        return {{.kind = 1, .content = "/p.heic", .previewPath = "/p.png"}};
    }
};

/// Contacts of one store: the contents hold until those of another are asked for.
class LazyContact final : public PRContactItem {
public:
    LazyContact(QString name, std::unique_ptr<PRContactPrivate>& held)
        : m_name(std::move(name)), m_held(held)
    {
    }
    const PRContactPrivate* detailContent() const override
    {
        ContactContent content;
        content.firstName = m_name;
        content.propertyList.emplace_back(ContactProperty{.type = Email, .value = m_name + "@x"});
        m_held = std::make_unique<PRContactPrivate>(std::move(content));
        return m_held.get();
    }

private:
    QString m_name;
    std::unique_ptr<PRContactPrivate>& m_held;
};

} // namespace

TEST(Save, WritesOneMessageALine)
{
    const TempTree tree;
    PRBackup backup;
    backup.add(std::make_unique<PRSMSData>(recordsOf(
        make<PRSMSItem>(
            Record{.values = {"Ben", "+49"}, .flags = 17, .selected = false, .parent = ""},
            SmsConversation{.addrIds = {{"b", "Ben"}, {"a", "Anna"}},
                .chats = {PRSMSChat({.fromMe = true,
                              .normalSMS = false,
                              .content = "Hi",
                              .pieces = {PRSMSPiece({.type = "image/png", .path = "/a.png"}),
                                  PRSMSPiece({.data = "x"})}}),
                    PRSMSChat({.checked = false, .itemType = 1, .event = "left"})}}),
        make<PRAbstractItem>(Record{}))));
    backup.add(
        std::make_unique<PRData>(5, recordsOf(make<PRWhatsappItem>()), QStringList{"T", ""}));
    backup.add(std::make_unique<PRContactData>(RecordList{}, QStringList{}));
    EXPECT_EQ(saved(tree, backup, "Anna").toStdString(), R"({
  "recordSet": 1,
  "owner": "Anna",
  "sets": [
    {"dataType": 0, "records": [
      {"values": ["Ben", "+49"], "flags": [1, 16], "selected": false, "parent": "", "addrIds": {"a": "Anna", "b": "Ben"}, "chats": [
        {"fromMe": true, "normalSMS": false, "content": "Hi", "pieces": [{"type": "image/png", "path": "/a.png"}, {"data": {"text": "x"}}]},
        {"checked": false, "itemType": 1, "event": "left"}
      ]},
      {"kind": "plain"}
    ]},
    {"dataType": 2, "columns": []},
    {"dataType": 5, "columns": ["T", ""], "records": [
      {}
    ]}
  ]
}
)");
}

TEST(Save, WritesABackupThatHoldsNothing)
{
    const TempTree tree;
    EXPECT_EQ(saved(tree, PRBackup()), "{\n  \"recordSet\": 1,\n  \"sets\": []\n}\n");
}

TEST(Save, WritesBytesAsTextWhereTheyAreText)
{
    const TempTree tree;
    struct Row {
        QByteArray bytes;
        QByteArray written;
    };
    const Row rows[] = {
        {"Gr\xC3\xBC\xC3\x9F"
         "e\n",
            R"("data": {"text": "Grüße\n"})"},
        {"\xF0\x9F\x8C\x8A", R"("data": {"text": "🌊"})"},
        {QByteArray("\0", 1), R"("data": {"text": "\u0000"})"},
        {"\xEF\xBB\xBF"
         "a",
            "\"data\": {\"text\": \"\xEF\xBB\xBF"
            "a\"}"},
        {"\xFF", R"("data": {"base64": "/w=="})"}, {"a\xC3", R"("data": {"base64": "YcM="})"},
        {"\xC0\x80", R"("data": {"base64": "wIA="})"},              // overlong
        {"\xED\xA0\xBC", R"("data": {"base64": "7aC8"})"},          // a surrogate
        {"\xEF\xBF\xBD", "\"data\": {\"text\": \"\xEF\xBF\xBD\"}"}, // U+FFFD itself
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.written.toStdString());
        EXPECT_TRUE(saved(tree, filesWith({.data = row.bytes})).contains(row.written));
    }
}

TEST(Save, MakesRelativePathsAbsoluteAndLeavesAddresses)
{
    const TempTree tree;
    const QByteArray text = saved(tree,
        filesWith({.path = "a/../b.png", .thumbFile = "HTTP://x//y", .thumbnail = "/c/./d.png"}));
    EXPECT_TRUE(text.contains("\"path\": \"" + QDir::current().filePath("b.png").toUtf8() + '"'));
    EXPECT_TRUE(text.contains("\"thumbFile\": \"HTTP://x//y\""));
    EXPECT_TRUE(text.contains("\"thumbnail\": \"/c/d.png\""));
}

TEST(Save, ReplacesSurrogatesWithoutAPartnerAndKeepsKeysApart)
{
    const TempTree tree;
    const QString high(QChar(0xD83C));
    const QString low(QChar(0xDF0A));
    PRBackup backup;
    backup.add(std::make_unique<PRSMSData>(recordsOf(make<PRSMSItem>(Record{.values = {"a" + high}},
        SmsConversation{.addrIds = {{high, "1"}, {low, "2"}, {low + "x", "3"}}}))));
    saved(tree, backup, low);
    const auto loaded = recordset::load(tree.path("out.json"));
    ASSERT_TRUE(loaded.has_value()) << errorOf(loaded);
    const QString replaced = QChar(QChar::ReplacementCharacter);
    EXPECT_EQ(loaded->owner, replaced);
    auto& item = dynamic_cast<PRSMSItem&>(*loaded->records.getPRData(0)->at(0, true));
    EXPECT_EQ(item.value(0), "a" + replaced);
    EXPECT_EQ(
        item.detailContent()->addrIds(), (QMap<QString, QString>{{replaced, "1"},
                                             {replaced + replaced, "2"}, {replaced + "x", "3"}}));
}

TEST(Save, AsksRecordsForWhatTheyLoadLate)
{
    const TempTree tree;
    PRBackup backup;
    backup.add(std::make_unique<PRSMSData>(recordsOf(make<LazyConversation>(), make<LazyFile>())));
    const QByteArray text = saved(tree, backup);
    EXPECT_TRUE(text.contains(R"({"content": "late"})")) << text.toStdString();
    EXPECT_TRUE(
        text.contains(R"({"kind": "file", "path": "/late.png", "thumbFile": "/thumb.png"})"))
        << text.toStdString();
}

TEST(Save, WritesContactsThatHoldUntilTheNextOne)
{
    const TempTree tree;
    std::unique_ptr<PRContactPrivate> held;
    PRBackup backup;
    backup.add(std::make_unique<PRContactData>(
        recordsOf(make<LazyContact>("Mia", held), make<LazyContact>("Jo", held))));
    const QByteArray text = saved(tree, backup);
    for (const char* contact :
        {R"({"firstName": "Mia", "properties": [)", R"({"type": 4, "value": "Mia@x"})",
            R"({"firstName": "Jo", "properties": [)", R"({"type": 4, "value": "Jo@x"})"}) {
        EXPECT_TRUE(text.contains(contact)) << contact << '\n' << text.toStdString();
    }
}

TEST(Save, AsksNotesThatAreLoadedLate)
{
    const TempTree tree;
    PRBackup backup;
    backup.add(std::make_unique<PRData>(27, recordsOf(make<LazyNote>())));
    const QByteArray text = saved(tree, backup);
    EXPECT_TRUE(text.contains(R"({"values": ["Note", "late"], "pieces": [)")) << text.toStdString();
    EXPECT_TRUE(text.contains(R"({"kind": 1, "content": "/p.heic", "preview": "/p.png"})"))
        << text.toStdString();
}

TEST(Save, TellsTheNumberOfRecordsAfterEach)
{
    const TempTree tree;
    PRBackup backup = plainRecords(2);
    backup.add(std::make_unique<PRData>(13, recordsOf(make<PRAbstractItem>())));
    std::vector<qint64> told;
    const auto done = save(backup, "", tree.path("out.json"), [&](qint64 records) {
        told.push_back(records);
        return true;
    });
    ASSERT_TRUE(done.has_value()) << errorOf(done);
    EXPECT_EQ(told, (std::vector<qint64>{1, 2, 3}));
}

TEST(Save, LeavesWhatWasThereWhenItIsCancelled)
{
    const TempTree tree;
    tree.write("out.json", "before");
    const auto done = save(
        plainRecords(5), "", tree.path("out.json"), [](qint64 records) { return records < 3; });
    ASSERT_FALSE(done.has_value());
    EXPECT_EQ(done.error().where, tree.path("out.json"));
    EXPECT_EQ(done.error().what, "cancelled");
    EXPECT_EQ(tree.read("out.json"), "before");
    EXPECT_EQ(tree.list(), QStringList{"out.json"});
}

TEST(Save, RefusesAParentThatCouldNotBeReadBack)
{
    const TempTree tree;
    tree.write("out.json", "before");
    for (const char* name : {".", ".."}) {
        PRBackup backup = plainRecords(1);
        backup.add(std::make_unique<PRData>(
            21, recordsOf(make<PRFileItem>(), make<PRFileItem>(Record{.parent = QString(name)}))));
        const auto done = save(backup, "", tree.path("out.json"));
        ASSERT_FALSE(done.has_value());
        EXPECT_EQ(done.error().where, tree.path("out.json") + ": /sets/1/records/1/parent");
        EXPECT_EQ(done.error().what,
            QString("expected a name other than \".\" and \"..\", found \"%1\"").arg(name));
        EXPECT_EQ(tree.read("out.json"), "before");
    }
}

TEST(Save, FailsWhereTheFileCannotBeMade)
{
    const TempTree tree;
    const QString path = tree.path("none/out.json");
    const auto done = save(PRBackup(), "", path);
    ASSERT_FALSE(done.has_value());
    EXPECT_EQ(done.error().where, path);
    EXPECT_FALSE(done.error().what.isEmpty());
}

TEST(Save, FailsWhereAFolderHasTheName)
{
    const TempTree tree;
    tree.makeDir("out.json");
    const auto done = save(plainRecords(1), "", tree.path("out.json"));
    ASSERT_FALSE(done.has_value());
    EXPECT_EQ(done.error().where, tree.path("out.json"));
    EXPECT_EQ(tree.list(), QStringList{"out.json/"});
}

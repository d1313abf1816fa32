// SPDX-License-Identifier: MIT
// One row for each key of each kind: present, absent and of the wrong type.
#include "loading.h"
#include "model/PRCalendarItem.h"
#include "model/PRContactItem.h"
#include "model/PRFileItem.h"
#include "model/PRNoteItem.h"
#include "model/PRSMSItem.h"
#include "model/PRSafariBookmarkItem.h"
#include "model/PRWeichatContactItem.h"
#include "model/PRWhatsappItem.h"

#include <QDateTime>

#include <gtest/gtest.h>

#include <vector>

using support::TempTree;

namespace {

/// A form of values, with one that is not of it and what is said then.
struct Form {
    const char* present;
    const char* shown; ///< what `present` is in the model, as the rows below show it
    const char* wrong;
    const char* expectation;
};

const Form kFalse{"false", "false", R"("false")", R"(expected true or false, found "false")"};
const Form kTrue{"true", "true", "1", "expected true or false, found 1"};
const Form kInt{
    "-7", "-7", "1.5", "expected a whole number from -2147483648 to 2147483647, found 1.5"};
const Form kText{R"("Grüße")", "Grüße", "true", "expected a string, found true"};
const Form kPath{R"("sub/x.png")", "<folder>/sub/x.png", "[]", "expected a string, found a list"};
const Form kDate{
    R"("2024-05-01T12:30:00Z")", "2024-05-01T12:30:00Z", "5", "expected a string, found 5"};
const Form kBytes{R"({"text": "ab"})", "ab", R"("ab")", R"(expected an object, found "ab")"};
const Form kTexts{R"(["a", "b"])", "a|b", "{}", "expected a list, found an object"};
const Form kMap{R"({"k": "v"})", "k=v", "null", "expected an object, found null"};
const Form kList{"[{}, {}]", "2", "{}", "expected a list, found an object"};
const Form kObject{"{}", "0", "[]", "expected an object, found a list"};

QString shown(bool truth)
{
    return truth ? "true" : "false";
}
QString shown(int number)
{
    return QString::number(number);
}
QString shown(const QString& text)
{
    return text;
}
QString shown(const QByteArray& bytes)
{
    return QString::fromUtf8(bytes);
}
QString shown(const QDateTime& moment)
{
    return moment.toString(Qt::ISODate);
}
QString shown(const QVariant& value)
{
    return value.type() == QVariant::DateTime ? shown(value.toDateTime()) : value.toString();
}
QString shown(const QStringList& texts)
{
    return texts.join('|');
}
QString shown(const QMap<QString, QString>& texts)
{
    QStringList pairs;
    for (auto text = texts.cbegin(); text != texts.cend(); ++text) {
        pairs.append(text.key() + '=' + text.value());
    }
    return pairs.join('|');
}

struct Row {
    const char* key;
    const Form& form;
    const char* absent; ///< what the model says without the key
    QString (*answer)(PRAbstractItem& item);
};

/// Keys that stand in one object.
struct Group {
    const char* kind;
    const char* open; ///< of the record, up to the object
    const char* close;
    const char* pointer; ///< of the object, below the record
    std::vector<Row> rows;
};

template <typename Item> Item& as(PRAbstractItem& item)
{
    return dynamic_cast<Item&>(item);
}

// The subject of each group.

PRSMSChat& message(PRAbstractItem& item)
{
    return *as<PRSMSItem>(item).detailContent()->chats().at(0);
}

PRSMSPiece& piece(PRAbstractItem& item)
{
    return *message(item).pieces().at(0);
}

const PRContactPrivate& contact(PRAbstractItem& item)
{
    return *as<PRContactItem>(item).detailContent();
}

PRContactProperty& property(PRAbstractItem& item)
{
    return *contact(item).properties().at(0);
}

PRWhatsappMsg& chatMessage(PRAbstractItem& item)
{
    return *as<PRWhatsappItem>(item).detailContent()->messages().at(0);
}

PRWeiChatContact& chatContact(PRAbstractItem& item)
{
    return *as<PRWeichatContactItem>(item).detailContent();
}

PRWeiChatContact::MemberContact roomMember(PRAbstractItem& item)
{
    return chatContact(item).members().at(0);
}

PRNoteItem::NotePiece& notePiece(PRAbstractItem& item)
{
    return *as<PRNoteItem>(item).notePieces().at(0);
}

PRFileItem& file(PRAbstractItem& item)
{
    return as<PRFileItem>(item);
}

// The tables, in the order of the documentation.
// clang-format off

Group everyRecord()
{
    return {"plain", "", "", "", {
        {"values", kTexts, "", [](auto& item) { return shown(item.record().values); }},
        {"selected", kFalse, "true", [](auto& item) { return shown(item.isSelected()); }},
    }};
}

Group smsRecord()
{
    return {"sms", "", "", "", {
        {"addrIds", kMap, "", [](auto& item) { return shown(as<PRSMSItem>(item).detailContent()->addrIds()); }},
        {"chats", kList, "0", [](auto& item) { return shown(as<PRSMSItem>(item).detailContent()->chats().size()); }},
    }};
}

Group smsMessage()
{
    return {"sms", R"("chats": [{)", "}]", "/chats/0", {
        {"checked", kFalse, "true", [](auto& item) { return shown(message(item).isChecked()); }},
        {"fromMe", kTrue, "false", [](auto& item) { return shown(message(item).isFromMe()); }},
        {"sentDone", kFalse, "true", [](auto& item) { return shown(message(item).isSentDone()); }},
        {"normalSMS", kFalse, "true", [](auto& item) { return shown(message(item).isNormalSMS()); }},
        {"date", kDate, "", [](auto& item) { return shown(message(item).msgDate()); }},
        {"itemType", kInt, "0", [](auto& item) { return shown(message(item).itemType()); }},
        {"event", kText, "", [](auto& item) { return shown(message(item).msgForEvent({})); }},
        {"subject", kText, "", [](auto& item) { return shown(message(item).subject()); }},
        {"content", kText, "", [](auto& item) { return shown(message(item).content()); }},
        {"addr", kText, "", [](auto& item) { return shown(message(item).addr()); }},
        {"pieces", kList, "0", [](auto& item) { return shown(message(item).pieces().size()); }},
    }};
}

Group smsPiece()
{
    return {"sms", R"("chats": [{"pieces": [{)", "}]}]", "/chats/0/pieces/0", {
        {"type", kText, "", [](auto& item) { return shown(piece(item).pieceType()); }},
        {"location", kTrue, "false", [](auto& item) { return shown(piece(item).isLocation()); }},
        {"data", kBytes, "", [](auto& item) { return shown(piece(item).pieceData()); }},
        {"path", kPath, "", [](auto& item) { return shown(piece(item).pieceLocation()); }},
        {"preview", kPath, "", [](auto& item) { return shown(piece(item).piecePreviewFile()); }},
        {"info", kText, "", [](auto& item) { return shown(piece(item).pieceInfo()); }},
    }};
}

Group contactNames()
{
    return {"contact", "", "", "", {
        {"namePrefix", kText, "", [](auto& item) { return contact(item).namePrefix; }},
        {"firstName", kText, "", [](auto& item) { return contact(item).firstName; }},
        {"middleName", kText, "", [](auto& item) { return contact(item).middleName; }},
        {"lastName", kText, "", [](auto& item) { return contact(item).lastName; }},
        {"nameSuffix", kText, "", [](auto& item) { return contact(item).nameSuffix; }},
        {"firstPhonetic", kText, "", [](auto& item) { return contact(item).firstPhonetic; }},
        {"lastPhonetic", kText, "", [](auto& item) { return contact(item).lastPhonetic; }},
        {"middlePhonetic", kText, "", [](auto& item) { return contact(item).middlePhonetic; }},
        {"organizationPhonetic", kText, "", [](auto& item) { return contact(item).organizationPhonetic; }},
        {"firstPronunciation", kText, "", [](auto& item) { return contact(item).firstPronunciation; }},
        {"lastPronunciation", kText, "", [](auto& item) { return contact(item).lastPronunciation; }},
        {"middlePronunciation", kText, "", [](auto& item) { return contact(item).middlePronunciation; }},
        {"organizationPronunciation", kText, "", [](auto& item) { return contact(item).organizationPronunciation; }},
        {"previousFamilyName", kText, "", [](auto& item) { return contact(item).previousFamilyName; }},
        {"nickname", kText, "", [](auto& item) { return contact(item).nickname; }},
    }};
}

Group contactRest()
{
    return {"contact", "", "", "", {
        {"jobTitle", kText, "", [](auto& item) { return contact(item).jobTitle; }},
        {"department", kText, "", [](auto& item) { return contact(item).department; }},
        {"organization", kText, "", [](auto& item) { return contact(item).organization; }},
        {"birthday", kText, "", [](auto& item) { return contact(item).birthday; }},
        {"note", kText, "", [](auto& item) { return contact(item).note; }},
        {"photo", kBytes, "", [](auto& item) { return shown(contact(item).photo); }},
        {"altBirthday", kObject, "0", [](auto& item) { return shown(contact(item).getAltBirthdayType()); }},
        {"properties", kList, "0", [](auto& item) { return shown(contact(item).properties().size()); }},
    }};
}

Group altBirthday()
{
    return {"contact", R"("altBirthday": {)", "}", "/altBirthday", {
        {"type", kInt, "0", [](auto& item) { return shown(contact(item).getAltBirthdayType()); }},
        {"label", kText, "", [](auto& item) { return contact(item).getAltBirthdayLabel(); }},
        {"desc", kText, "", [](auto& item) { return contact(item).getAltBirthdayDesc(); }},
    }};
}

Group contactProperty()
{
    return {"contact", R"("properties": [{)", "}]", "/properties/0", {
        {"type", kInt, "0", [](auto& item) { return shown(property(item).propType()); }},
        {"label", kText, "", [](auto& item) { return property(item).propLabel(); }},
        {"value", kText, "", [](auto& item) { return property(item).propValue(); }},
        {"entry", kMap, "", [](auto& item) { return shown(property(item).propValueEntry()); }},
    }};
}

Group chatRecord()
{
    return {"chat", "", "", "", {
        {"messages", kList, "0", [](auto& item) { return shown(as<PRWhatsappItem>(item).detailContent()->messages().size()); }},
    }};
}

Group chatMessages()
{
    return {"chat", R"("messages": [{)", "}]", "/messages/0", {
        {"checked", kFalse, "true", [](auto& item) { return shown(chatMessage(item).isChecked()); }},
        {"type", kInt, "0", [](auto& item) { return shown(static_cast<int>(chatMessage(item).type())); }},
        {"fromMe", kTrue, "false", [](auto& item) { return shown(chatMessage(item).isFromMe()); }},
        {"sentDone", kFalse, "true", [](auto& item) { return shown(chatMessage(item).isSentDone()); }},
        {"date", kDate, "", [](auto& item) { return shown(chatMessage(item).msgDate()); }},
        {"content", kText, "", [](auto& item) { return chatMessage(item).content(); }},
        {"member", kText, "", [](auto& item) { return chatMessage(item).member(); }},
        {"media", kPath, "", [](auto& item) { return chatMessage(item).media(); }},
        {"thumbData", kTrue, "false", [](auto& item) { return shown(chatMessage(item).isReadThumbFileData()); }},
        {"broadcast", kTrue, "false", [](auto& item) { return shown(chatMessage(item).isBroadcast()); }},
        {"drawLike", kTrue, "false", [](auto& item) { return shown(chatMessage(item).isDrawLike()); }},
        {"likeType", kInt, "0", [](auto& item) { return shown(chatMessage(item).getLikeType()); }},
        {"likeCount", kInt, "0", [](auto& item) { return shown(chatMessage(item).getLikeCount()); }},
    }};
}

Group chatContactRecord()
{
    return {"chatContact", "", "", "", {
        {"name", kText, "", [](auto& item) { return chatContact(item).name(); }},
        {"nickName", kText, "", [](auto& item) { return chatContact(item).nickName(); }},
        {"wxNameId", kText, "", [](auto& item) { return chatContact(item).wxNameId(); }},
        {"nameID", kText, "", [](auto& item) { return chatContact(item).nameID(); }},
        {"country", kText, "", [](auto& item) { return chatContact(item).country(); }},
        {"city", kText, "", [](auto& item) { return chatContact(item).city(); }},
        {"sign", kText, "", [](auto& item) { return chatContact(item).sign(); }},
        {"phones", kTexts, "", [](auto& item) { return shown(chatContact(item).phones()); }},
        {"room", kTrue, "false", [](auto& item) { return shown(chatContact(item).isRoom()); }},
        {"headImage", kPath, "", [](auto& item) { return chatContact(item).HeadImage(); }},
        {"members", kList, "0", [](auto& item) { return shown(chatContact(item).members().size()); }},
    }};
}

Group roomMembers()
{
    return {"chatContact", R"("members": [{)", "}]", "/members/0", {
        {"alias", kText, "", [](auto& item) { return roomMember(item).alias; }},
        {"name", kText, "", [](auto& item) { return roomMember(item).name; }},
        {"nameId", kText, "", [](auto& item) { return roomMember(item).nameId; }},
        {"wxId", kText, "", [](auto& item) { return roomMember(item).wxId; }},
    }};
}

Group event()
{
    return {"event", "", "", "", {
        {"allDay", kInt, "0", [](auto& item) { return shown(as<PRCalendarItem>(item).getAllDay()); }},
        {"start", kDate, "", [](auto& item) { return shown(item.sortValue(2)); }},
        {"end", kDate, "", [](auto& item) { return shown(item.sortValue(3)); }},
        {"recurrence", kText, "", [](auto& item) { return shown(item.sortValue(5)); }},
        {"recurrenceEnd", kDate, "", [](auto& item) { return shown(item.sortValue(6)); }},
        {"alarm", kInt, "0", [](auto& item) { return shown(item.sortValue(9)); }},
    }};
}

Group bookmark()
{
    return {"bookmark", "", "", "", {
        {"group", kText, "", [](auto& item) { return as<PRSafariBookmarkItem>(item).bookmarkGroup(); }},
    }};
}

Group note()
{
    return {"note", "", "", "", {
        {"pieces", kList, "0", [](auto& item) { return shown(as<PRNoteItem>(item).notePieces().size()); }},
    }};
}

Group notePieces()
{
    return {"note", R"("pieces": [{)", "}]", "/pieces/0", {
        {"kind", kInt, "0", [](auto& item) { return shown(notePiece(item).kind); }},
        {"content", kText, "", [](auto& item) { return notePiece(item).content; }},
        {"label", kText, "", [](auto& item) { return notePiece(item).label; }},
        {"sourcePath", kPath, "", [](auto& item) { return notePiece(item).sourcePath; }},
        {"preview", kPath, "", [](auto& item) { return notePiece(item).previewPath; }},
    }};
}

Group fileRecord()
{
    return {"file", "", "", "", {
        {"data", kBytes, "", [](auto& item) { return shown(file(item).fileData()); }},
        {"path", kPath, "", [](auto& item) { return file(item).filePath(); }},
        {"thumbFile", kPath, "", [](auto& item) { return file(item).thumbFilePath(); }},
        {"thumbnail", kPath, "", [](auto& item) { return file(item).thumbnail(); }},
        {"thumbToMedia", kTrue, "false", [](auto& item) { return shown(file(item).isThumbToMedia()); }},
        {"detailDate", kText, "", [](auto& item) { return file(item).getDetailInfoDateTime(); }},
    }};
}

// clang-format on

std::vector<Group> groups()
{
    return {everyRecord(), smsRecord(), smsMessage(), smsPiece(), contactNames(), contactRest(),
        altBirthday(), contactProperty(), chatRecord(), chatMessages(), chatContactRecord(),
        roomMembers(), event(), bookmark(), note(), notePieces(), fileRecord()};
}

QByteArray recordWith(const Group& group, const QByteArray& member)
{
    QByteArray record = QByteArray(R"({"kind": ")") + group.kind + '"';
    const QByteArray rest = group.open + member + group.close;
    if (!rest.isEmpty()) {
        record += ", " + rest;
    }
    return record + "}";
}

QByteArray member(const Row& row, const char* value)
{
    return QByteArray("\"") + row.key + "\": " + value;
}

template <typename Check> void forEachRow(const Check& check)
{
    for (const Group& group : groups()) {
        for (const Row& row : group.rows) {
            SCOPED_TRACE(std::string(group.kind) + group.pointer + "/" + row.key);
            check(group, row);
        }
    }
}

} // namespace

TEST(Fields, AreReadWhereTheyAre)
{
    const TempTree tree;
    forEachRow([&](const Group& group, const Row& row) {
        const auto result =
            loadText(tree, setOf(3, recordWith(group, member(row, row.form.present))));
        ASSERT_TRUE(result.has_value()) << errorOf(result);
        const QString expected = QString(row.form.shown).replace("<folder>", tree.path());
        EXPECT_EQ(row.answer(*result->records.getPRData(3)->at(0, true)), expected);
    });
}

TEST(Fields, HaveTheirDefaultsWhereTheyAreNot)
{
    const TempTree tree;
    forEachRow([&](const Group& group, const Row& row) {
        const auto result = loadText(tree, setOf(3, recordWith(group, "")));
        ASSERT_TRUE(result.has_value()) << errorOf(result);
        EXPECT_EQ(row.answer(*result->records.getPRData(3)->at(0, true)), row.absent);
    });
}

TEST(Fields, AreErrorsInTheirPlaceWhereTheyAreOfTheWrongType)
{
    const TempTree tree;
    forEachRow([&](const Group& group, const Row& row) {
        const auto result =
            loadText(tree, setOf(3, recordWith(group, member(row, row.form.wrong))));
        ASSERT_FALSE(result.has_value());
        EXPECT_EQ(result.error().where,
            tree.path("records.json") + ": /sets/0/records/0" + group.pointer + "/" + row.key);
        EXPECT_EQ(result.error().what, row.form.expectation);
    });
}

TEST(Fields, OfOneObjectAreNotThoseOfAnother)
{
    const TempTree tree;
    for (const Group& group : groups()) {
        SCOPED_TRACE(std::string(group.kind) + group.pointer);
        const auto result = loadText(tree, setOf(3, recordWith(group, R"("no/such~key": 1)")));
        ASSERT_FALSE(result.has_value());
        EXPECT_EQ(result.error().where,
            tree.path("records.json") + ": /sets/0/records/0" + group.pointer + "/no~1such~0key");
        EXPECT_TRUE(result.error().what.startsWith("unknown key, expected one of: "))
            << result.error().what.toStdString();
        for (const Row& row : group.rows) {
            EXPECT_TRUE(result.error().what.contains(row.key)) << row.key;
        }
    }
}

// SPDX-License-Identifier: MIT
// The sample record set shows the whole form.
#include "loading.h"
#include "model/PRFileItem.h"
#include "model/PRNoteItem.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <fstream>
#include <map>
#include <set>

using Json = nlohmann::json;

namespace {

constexpr const char* kSample = DATAEXPORT_SOURCE_DIR "/samples/records/every-kind.json";

using Keys = std::set<std::string>;

// By the kind of the record; the keys of objects in it as "chats.date".
const std::map<std::string, Keys> kEveryKey{
    {"sms",
        {"addrIds", "chats", "chats.checked", "chats.fromMe", "chats.sentDone", "chats.normalSMS",
            "chats.date", "chats.itemType", "chats.event", "chats.subject", "chats.content",
            "chats.addr", "chats.pieces", "chats.pieces.type", "chats.pieces.location",
            "chats.pieces.data", "chats.pieces.path", "chats.pieces.preview", "chats.pieces.info"}},
    {"contact", {"namePrefix", "firstName", "middleName", "lastName", "nameSuffix", "firstPhonetic",
                    "lastPhonetic", "middlePhonetic", "organizationPhonetic", "firstPronunciation",
                    "lastPronunciation", "middlePronunciation", "organizationPronunciation",
                    "previousFamilyName", "nickname", "jobTitle", "department", "organization",
                    "birthday", "note", "photo", "altBirthday", "altBirthday.type",
                    "altBirthday.label", "altBirthday.desc", "properties", "properties.type",
                    "properties.label", "properties.value", "properties.entry"}},
    {"chat", {"messages", "messages.checked", "messages.type", "messages.fromMe",
                 "messages.sentDone", "messages.date", "messages.content", "messages.member",
                 "messages.media", "messages.thumbData", "messages.broadcast", "messages.drawLike",
                 "messages.likeType", "messages.likeCount"}},
    {"chatContact", {"name", "nickName", "wxNameId", "nameID", "country", "city", "sign", "phones",
                        "room", "headImage", "members", "members.alias", "members.name",
                        "members.nameId", "members.wxId"}},
    {"event", {"allDay", "start", "end", "recurrence", "recurrenceEnd", "alarm"}},
    {"bookmark", {"group"}},
    {"note", {"pieces", "pieces.kind", "pieces.content", "pieces.label", "pieces.sourcePath",
                 "pieces.preview"}},
    {"file", {"data", "path", "thumbFile", "thumbnail", "thumbToMedia", "detailDate"}},
    {"plain", {}},
};
const Keys kKeysOfAll{"kind", "values", "flags", "selected", "parent"};
const Keys kFormsOfBytes{"text", "base64", "file"};

// Objects whose keys are free, or a form of value.
bool isClosed(const std::string& key)
{
    return key == "addrIds" || key == "entry" || key == "data" || key == "photo";
}

void collect(const Json& value, const std::string& prefix, Keys& keys)
{
    if (value.is_array()) {
        for (const Json& element : value) {
            collect(element, prefix, keys);
        }
    } else if (value.is_object()) {
        for (const auto& [key, member] : value.items()) {
            keys.insert(prefix + key);
            collect(isClosed(key) ? Json() : member, prefix + key + '.', keys);
        }
    }
}

void collectFormsOfBytes(const Json& value, Keys& forms)
{
    if (!value.is_structured()) {
        return;
    }
    for (const auto& [key, member] : value.items()) {
        if (value.is_object() && (key == "data" || key == "photo")) {
            forms.insert(member.begin().key());
        }
        collectFormsOfBytes(member, forms);
    }
}

} // namespace

TEST(Sample, Loads)
{
    const auto result = recordset::load(kSample);
    ASSERT_TRUE(result.has_value()) << errorOf(result);
    EXPECT_EQ(result->owner, "Anna Berg");
    auto& note = dynamic_cast<PRNoteItem&>(*result->records.getPRData(27)->at(0, true));
    EXPECT_EQ(note.notePieces().at(1)->preview.size(), QSize(64, 48));
    auto& picture = dynamic_cast<PRFileItem&>(*result->records.getPRData(21)->at(0, true));
    EXPECT_TRUE(QFileInfo::exists(picture.filePath()));
}

TEST(Sample, HasEveryKeyOfEveryKind)
{
    std::ifstream stream(kSample);
    const Json document = Json::parse(stream);
    std::map<std::string, Keys> seen;
    Keys seenOfAny;
    for (const Json& set : document.at("sets")) {
        for (const Json& record : set.at("records")) {
            Keys& keys = seen[record.value("kind", "by data type")];
            collect(record, "", keys);
            seenOfAny.insert(keys.begin(), keys.end());
        }
    }
    for (const auto& [kind, keys] : kEveryKey) {
        for (const std::string& key : keys) {
            EXPECT_TRUE(seen[kind].contains(key)) << kind << ": " << key;
        }
    }
    for (const std::string& key : kKeysOfAll) {
        EXPECT_TRUE(seenOfAny.contains(key)) << key;
    }
}

TEST(Sample, HasEveryFormOfBytes)
{
    std::ifstream stream(kSample);
    Keys forms;
    collectFormsOfBytes(Json::parse(stream), forms);
    EXPECT_EQ(forms, kFormsOfBytes);
}

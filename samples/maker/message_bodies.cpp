// SPDX-License-Identifier: MIT
#include "message_bodies.h"

#include "common.h"
#include "plist_writer.h"

#include <QJsonArray>

#include <algorithm>
#include <array>

namespace sample {

namespace {

const QChar kFileMark(0xFFFC);

constexpr char kPart[] = "__kIMMessagePartAttributeName";
constexpr char kTransfer[] = "__kIMFileTransferGUIDAttributeName";
constexpr char kFileName[] = "__kIMFilenameAttributeName";
constexpr char kLink[] = "__kIMLinkAttributeName";
constexpr char kMention[] = "__kIMMentionConfirmedMention";

struct Tapback {
    const char* name;
    int type;
    const char* words;
    const char* undoneWords;
};
// clang-format off
constexpr std::array kTapbacks{
    Tapback{"loved",      2000, "Loved %1",         "Removed a heart from %1"},
    Tapback{"liked",      2001, "Liked %1",         "Removed a like from %1"},
    Tapback{"disliked",   2002, "Disliked %1",      "Removed a dislike from %1"},
    Tapback{"laughed",    2003, "Laughed at %1",    "Removed a laugh from %1"},
    Tapback{"emphasised", 2004, "Emphasized %1",    "Removed an exclamation from %1"},
    Tapback{"questioned", 2005, "Questioned %1",    "Removed a question mark from %1"},
};
// clang-format on
constexpr int kEmojiTapback = 2006;
constexpr int kTakenBack = 1000; // more than the tapback itself

const Tapback* namedTapback(const QString& name)
{
    const auto* const found = std::ranges::find_if(
        kTapbacks, [&](const Tapback& tapback) { return name == tapback.name; });
    return found != kTapbacks.end() ? found : nullptr;
}

// A message with a file is called by the kind of the file, any other one by its text.
QString wordsFor(const Message& message)
{
    const QString name =
        message.source["files"].toArray().first().toObject()["name"].toString().toLower();
    if (name.isEmpty()) {
        return QString::fromUtf8("“%1”").arg(originalText(message));
    }
    return name.endsWith(".mov") ? "a movie" : "an image";
}

QString tapbackWords(const Message& message, const Message& target)
{
    const bool undone = message.has("takenBack");
    const QString emoji = message.value("tapback");
    const Tapback* named = namedTapback(emoji);
    const QString what = wordsFor(target);
    if (named == nullptr) {
        return (undone ? "Removed a reaction %1 from %2" : QString("Reacted %1 to %2"))
            .arg(emoji, what);
    }
    return QString(undone ? named->undoneWords : named->words).arg(what);
}

// A stretch of text without files. The link or the mention in it has a run of its own.
void addText(AttributedText& body, const Message& message, const QString& text, int part)
{
    const QString mention = message.value("mention");
    const QString url = message.source["link"].toObject()["url"].toString();
    const QString marked = !url.isEmpty() ? url : mention;
    const int at = marked.isEmpty() ? -1 : text.indexOf(marked);
    const AttributedText::Attributes plain{{kPart, part}};
    if (at < 0) {
        body.runs.push_back({.length = text.size(), .attributes = plain});
        return;
    }
    AttributedText::Attributes special = plain;
    if (!url.isEmpty()) {
        special.emplace_back(kLink, QUrl(url));
    } else {
        special.emplace_back(kMention, message.value("mentioned"));
    }
    const int rest = text.size() - at - marked.size();
    if (at > 0) {
        body.runs.push_back({.length = at, .attributes = plain});
    }
    body.runs.push_back({.length = marked.size(), .attributes = special});
    if (rest > 0) {
        body.runs.push_back({.length = rest, .attributes = plain});
    }
}

QVariantMap versionOf(const Message& message, const QString& text, qint64 seconds)
{
    return {{"t", typedstream(bodyOf(message, text))}, {"d", static_cast<double>(seconds)},
        {"bcg", uuidFor(message.guid + " " + text)}};
}

} // namespace

QString originalText(const Message& message)
{
    QString text = message.value("text");
    const int files = message.source["files"].toArray().size();
    return text.contains(kFileMark) ? text : QString(files, kFileMark) + text;
}

QString currentText(const Message& message, const Conversations& all)
{
    if (message.has("tapback")) {
        return tapbackWords(message, all.message(message.value("on")));
    }
    const QJsonArray edits = message.source["edits"].toArray();
    return edits.isEmpty() ? originalText(message) : edits.last().toObject()["text"].toString();
}

int tapbackType(const Message& message)
{
    const Tapback* named = namedTapback(message.value("tapback"));
    const int type = named != nullptr ? named->type : kEmojiTapback;
    return message.has("takenBack") ? type + kTakenBack : type;
}

// Each file is a part, and so is each stretch of text between files.
std::vector<MessageFile> filesOf(const Message& message)
{
    std::vector<MessageFile> files;
    const QString text = originalText(message);
    int part = 0;
    bool inText = false;
    for (const QChar unit : text) {
        if (unit != kFileMark) {
            inText = true;
            continue;
        }
        part += inText ? 1 : 0;
        inText = false;
        const QJsonObject file =
            message.source["files"].toArray()[static_cast<int>(files.size())].toObject();
        const QString guid = message.service == "SMS"
                                 ? uuidFor(QString("%1 file %2").arg(message.guid).arg(part))
                                 : QString("at_%1_%2").arg(part).arg(message.guid);
        files.push_back({.guid = guid, .name = file["name"].toString(), .part = part++});
    }
    return files;
}

AttributedText bodyOf(const Message& message, const QString& text)
{
    AttributedText body{.text = text};
    const std::vector<MessageFile> files = filesOf(message);
    int part = 0;
    std::size_t file = 0;
    const QStringList stretches = text.split(kFileMark);
    for (int stretch = 0; stretch < stretches.size(); ++stretch) {
        if (stretch > 0) {
            const MessageFile& there = files.at(file++);
            body.runs.push_back({.length = 1,
                .attributes = {{kPart, part++}, {kTransfer, there.guid}, {kFileName, there.name}}});
        }
        if (!stretches[stretch].isEmpty()) {
            addText(body, message, stretches[stretch], part++);
        }
    }
    return body;
}

// otr: where each part stood in the text as it was sent. ec: versions of each part, the last one is
// the current. ep, rp: edited and unsent parts.
QByteArray summaryOf(const Message& message)
{
    const QJsonArray edits = message.source["edits"].toArray();
    if (edits.isEmpty() && !message.has("unsent")) {
        return {};
    }
    const QString original = originalText(message);
    QVariantMap summary{{"amc", 0}, {"ust", true},
        {"otr", QVariantMap{{"0", QVariantMap{{"lo", 0}, {"le", original.size()}}}}}};
    if (message.has("unsent")) {
        summary["rp"] = QVariantList{0};
        return binaryPlist(summary);
    }
    QVariantList versions{versionOf(message, original, message.seconds)};
    for (const QJsonValue& edit : edits) {
        const QJsonObject change = edit.toObject();
        versions.append(QVariant(versionOf(
            message, change["text"].toString(), secondsSince2001(change["at"].toString()))));
    }
    summary["ec"] = QVariantMap{{"0", versions}};
    summary["ep"] = QVariantList{0};
    return binaryPlist(summary);
}

QByteArray linkPreviewOf(const Message& message)
{
    const QJsonObject link = message.source["link"].toObject();
    if (link.isEmpty()) {
        return {};
    }
    enum Object {
        Nothing,
        Root,
        Metadata,
        Url,
        Address,
        Title,
        Summary,
        Site,
        ClassUrl,
        ClassLink,
        ClassRoot
    };
    return keyedArchive({
        QVariantMap{{"richLinkIsPlaceholder", false}, {"richLinkMetadata", uid(Metadata)},
            {"$class", uid(ClassRoot)}},
        QVariantMap{{"version", 1}, {"originalURL", uid(Url)}, {"URL", uid(Url)},
            {"title", uid(Title)}, {"summary", uid(Summary)}, {"siteName", uid(Site)},
            {"$class", uid(ClassLink)}},
        QVariantMap{
            {"NS.base", uid(Nothing)}, {"NS.relative", uid(Address)}, {"$class", uid(ClassUrl)}},
        link["url"].toString(),
        link["title"].toString(),
        link["summary"].toString(),
        link["site"].toString(),
        keyedClass({"NSURL", "NSObject"}),
        keyedClass({"LPLinkMetadata", "NSObject"}),
        keyedClass({"RichLink", "NSObject"}),
    });
}

} // namespace sample

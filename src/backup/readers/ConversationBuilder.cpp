// SPDX-License-Identifier: MIT
#include "backup/readers/ConversationBuilder.h"

#include "backup/readers/event_text.h"
#include "backup/readers/message_text.h"
#include "formats/typedstream.h"
#include "platform/literals.h"

#include <QCoreApplication>

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

namespace backup {

namespace {

constexpr qint64 kStartOf2001Ms = 978'307'200'000;
constexpr std::int64_t kNanosecondsPerMs = 1'000'000;
constexpr int kFirstTakenBack = 3000; // 3000 to 3007 take 2000 to 2007 back
constexpr int kLastTakenBack = 3999;
constexpr int kEmojiReaction = 2006;

// The rest of a row, of messages that need more than the scan reads.
enum DetailColumn : int {
    ItemType,
    Action,
    GroupTitle,
    ShareStatus,
    OtherHandle,
    SystemMessage,
    ServiceMessage,
    DateEdited,
    DateRetracted,
    SummaryInfo,
    Bundle,
    Payload,
    BodyBlob,
};

QDateTime momentOf(std::int64_t date)
{
    if (date == 0) {
        return {}; // not set
    }
    std::int64_t ms = date / kNanosecondsPerMs;
    ms -= date % kNanosecondsPerMs < 0 ? 1 : 0;
    return QDateTime::fromMSecsSinceEpoch(kStartOf2001Ms + ms, Qt::UTC);
}

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

// "p:0/GUID" (a part of a message), "bp:GUID" (an app's message) or the bare guid
struct ReactionTarget {
    QString part;
    QString guid;
};

ReactionTarget parseTarget(std::string_view stored)
{
    const QString text = QString::fromUtf8(stored.data(), static_cast<int>(stored.size()));
    const int slash = text.indexOf(QChar(u'/'));
    if (slash >= 0) {
        return {text.left(slash), text.mid(slash + 1)};
    }
    const int colon = text.indexOf(QChar(u':'));
    return {text.left(colon + 1), text.mid(colon + 1)};
}

} // namespace

/// Walks the rows of one conversation once; what reactions need of other rows is looked up by id.
class ConversationBuilder::Run {
public:
    Run(ConversationBuilder& owner, const Conversation& conversation, const ConversationRows& rows)
        : m_owner(owner), m_conversation(conversation), m_rows(rows)
    {
    }

    SmsConversation build()
    {
        chooseReactions();
        m_result.chats.reserve(m_rows.rows.size());
        for (const MessageRow& row : m_rows.rows) {
            addRow(row);
        }
        fillAddresses();
        return std::move(m_result);
    }

private:
    std::string_view textView(const MessageRow& row) const
    {
        return std::string_view(m_rows.text).substr(row.textStart + row.subjectSize, row.textSize);
    }

    QString subject(const MessageRow& row) const
    {
        return QString::fromUtf8(
            m_rows.text.data() + row.textStart, static_cast<int>(row.subjectSize));
    }

    QString actor(const MessageRow& row) const
    {
        return (row.bits & FromMe) != 0 ? tr("You") : nameOf(row.handle);
    }

    QString nameOf(std::int64_t handle) const
    {
        const QString& name = m_owner.m_handles.at(handle).name;
        return name.isEmpty() ? tr("Someone") : name;
    }

    // A message as its row has it, without text.
    SmsMessage shell(const MessageRow& row)
    {
        SmsMessage message{
            .fromMe = (row.bits & FromMe) != 0,
            .sentDone = (row.bits & SentDone) != 0,
            .normalSMS = (row.bits & IMessage) == 0,
            .date = momentOf(row.date),
        };
        if (!message.fromMe) {
            message.addr = m_owner.m_handles.at(row.handle).address;
            if (row.handle != m_lastSender) {
                m_senders.insert(row.handle);
                m_lastSender = row.handle;
            }
        }
        return message;
    }

    void addEvent(const MessageRow& row, int kind, const QString& sentence)
    {
        SmsMessage message = shell(row);
        message.itemType = kind;
        message.event = sentence;
        m_result.chats.emplace_back(std::move(message));
    }

    void addRow(const MessageRow& row)
    {
        if (std::ranges::binary_search(m_conversation.partIds, row.id)) {
            addDeletedParts(row);
        } else if (row.reaction != 0) {
            addReaction(row);
        } else if ((row.bits & NeedsDetails) != 0) {
            addWithDetails(row);
        } else {
            addMessage(row, shownText(textView(row)));
        }
    }

    void addMessage(const MessageRow& row, const QString& content)
    {
        SmsMessage message = shell(row);
        message.subject = row.subjectSize > 0 ? subject(row) : QString();
        message.content = content;
        if ((row.bits & HasAttachments) != 0) {
            addPieces(row, message);
        }
        m_result.chats.emplace_back(std::move(message));
    }

    // In the order of their places in the text, where there is more than one.
    void addPieces(const MessageRow& row, SmsMessage& message)
    {
        std::vector<AttachmentRow> attachments = m_owner.m_files.of(row.id);
        if (attachments.size() > 1) {
            orderByText(row, attachments);
        }
        for (const AttachmentRow& attachment : attachments) {
            message.pieces.push_back(m_owner.m_files.piece(attachment));
        }
    }

    void orderByText(const MessageRow& row, std::vector<AttachmentRow>& attachments)
    {
        formats::Statement& details = detailsOf(row);
        if (!details.next()) {
            return;
        }
        const auto body = formats::parseTypedstream(details.blobView(BodyBlob));
        if (!body) {
            return;
        }
        std::map<QString, int> placeOfGuid;
        for (const formats::TextRun& run : body->runs) {
            const QString guid =
                run.attributes.value("__kIMFileTransferGUIDAttributeName"_L1).toString();
            placeOfGuid.try_emplace(guid, run.start);
        }
        // Those that the text does not name stay behind the others, in their own order.
        std::ranges::stable_sort(attachments, {}, [&](const AttachmentRow& attachment) {
            const auto place = placeOfGuid.find(attachment.guid);
            return place != placeOfGuid.end() ? place->second : INT32_MAX;
        });
    }

    formats::Statement& detailsOf(const MessageRow& row)
    {
        m_owner.m_details.reset();
        m_owner.m_details.bind(1, static_cast<qint64>(row.id));
        return m_owner.m_details;
    }

    void addWithDetails(const MessageRow& row)
    {
        formats::Statement& details = detailsOf(row);
        const QString text = shownText(textView(row));
        if (!details.next()) {
            addMessage(row, text);
            return;
        }
        if (details.integer(ItemType) != 0) {
            addEvent(row, static_cast<int>(details.integer(ItemType)), eventOf(row, details, text));
        } else if (details.integer(SystemMessage) != 0 || details.integer(ServiceMessage) != 0) {
            addEvent(row, SystemLine,
                eventSentence({.itemType = SystemLine, .actor = actor(row), .text = text}));
        } else if (details.integer(DateEdited) != 0 || details.integer(DateRetracted) != 0) {
            addEdited(row, details, text);
        } else {
            addMessage(row, text.isEmpty()
                                ? appMessageText(details.text(Bundle), details.blob(Payload))
                                : text);
        }
    }

    QString eventOf(
        const MessageRow& row, const formats::Statement& details, const QString& text) const
    {
        const std::int64_t other = details.integer(OtherHandle);
        return eventSentence({
            .itemType = static_cast<int>(details.integer(ItemType)),
            .action = static_cast<int>(details.integer(Action)),
            .shareStatus = static_cast<int>(details.integer(ShareStatus)),
            .actor = actor(row),
            .other = other == 0 ? tr("you") : nameOf(other),
            .aboutActor = other != 0 && other == row.handle && (row.bits & FromMe) == 0,
            .groupTitle = details.text(GroupTitle),
            .text = text,
        });
    }

    // The current text as a message, what it was before as a line under it. A message that was
    // unsent as a whole is a line alone.
    void addEdited(const MessageRow& row, const formats::Statement& details, const QString& text)
    {
        const bool retracted = details.integer(DateRetracted) != 0;
        const EditHistory history = readEditHistory(details.blob(SummaryInfo));
        const QString current = text.isEmpty() ? history.current : text;
        const bool hasFiles = (row.bits & HasAttachments) != 0;
        if (text.isEmpty() && !hasFiles && (retracted || history.partsUnsent)) {
            addEvent(row, Unsent, eventSentence({.itemType = Unsent, .actor = actor(row)}));
        } else {
            addMessage(row, current);
        }
        QStringList earlier;
        for (const QString& version : history.earlier) {
            earlier.append(quotedSnippet(version));
        }
        if (!earlier.isEmpty()) {
            addEvent(row, Edited,
                tr("%1 edited the message. Before: %2").arg(actor(row), earlier.join(", "_L1)));
        }
    }

    // The parts of a message that were deleted; the rest of it is live.
    void addDeletedParts(const MessageRow& row)
    {
        formats::Statement& parts = m_owner.m_deletedPart;
        parts.reset();
        parts.bind(1, static_cast<qint64>(row.id));
        while (parts.next()) {
            const auto text = formats::typedstreamText(parts.blobView(0));
            const QString shown = text ? shownText(*text) : QString();
            if (!shown.isEmpty()) {
                SmsMessage message = shell(row);
                message.content = shown;
                m_result.chats.emplace_back(std::move(message));
            }
        }
    }

    // Of the reactions of one person to one part of a message the newest one holds.
    void chooseReactions()
    {
        std::map<std::tuple<QString, QString, std::int32_t>, std::int64_t> newest;
        for (const MessageRow& row : m_rows.rows) {
            if (row.reaction < 2000 || row.reaction > kLastTakenBack) {
                continue; // stickers and votes do not replace each other
            }
            const ReactionTarget target = parseTarget(textView(row));
            const std::int32_t sender = (row.bits & FromMe) != 0 ? -1 : row.handle;
            const auto [known, isNew] =
                newest.try_emplace({target.guid, target.part, sender}, row.id);
            if (!isNew) {
                m_superseded.insert(known->second);
                known->second = row.id;
            }
        }
    }

    void addReaction(const MessageRow& row)
    {
        const bool takenBack = row.reaction >= kFirstTakenBack && row.reaction <= kLastTakenBack;
        if (takenBack || m_superseded.contains(row.id)) {
            return;
        }
        QString emoji;
        if (row.reaction == kEmojiReaction) {
            m_owner.m_emoji.reset();
            m_owner.m_emoji.bind(1, static_cast<qint64>(row.id));
            emoji = m_owner.m_emoji.next() ? m_owner.m_emoji.text(0) : QString();
        }
        addEvent(row, ReactionLine,
            reactionSentence(row.reaction, actor(row), emoji, targetText(textView(row))));
    }

    // What a reaction is about, ready to show.
    QString targetText(std::string_view stored)
    {
        formats::Statement& query = m_owner.m_idOfGuid;
        query.reset();
        query.bind(1, parseTarget(stored).guid);
        if (!query.next()) {
            return tr("a message");
        }
        const MessageRow* target = rowOf(query.integer(0));
        if (target == nullptr) {
            return tr("a message");
        }
        const QString text = shownText(textView(*target));
        if (!text.isEmpty()) {
            return quotedSnippet(text);
        }
        return (target->bits & HasAttachments) != 0 ? tr("an attachment") : tr("a message");
    }

    const MessageRow* rowOf(std::int64_t id)
    {
        if (m_byId.empty()) {
            for (const MessageRow& row : m_rows.rows) {
                m_byId.push_back(&row);
            }
            std::ranges::sort(m_byId, {}, &MessageRow::id);
        }
        const auto found = std::ranges::lower_bound(m_byId, id, {}, &MessageRow::id);
        return found != m_byId.end() && (*found)->id == id ? *found : nullptr;
    }

    // Who writes here: the members, and in a group those who have left it as well.
    void fillAddresses()
    {
        const auto add = [this](std::int64_t handleId) {
            const Handle& handle = m_owner.m_handles.at(handleId);
            if (!handle.address.isEmpty()) {
                m_result.addrIds.insert(handle.address, handle.name);
            }
        };
        std::ranges::for_each(m_conversation.memberIds, add);
        if (m_conversation.group) {
            std::ranges::for_each(m_senders, add);
        }
    }

    ConversationBuilder& m_owner;
    const Conversation& m_conversation;
    const ConversationRows& m_rows;
    SmsConversation m_result;
    std::set<std::int32_t> m_senders;
    std::int32_t m_lastSender = 0;
    std::set<std::int64_t> m_superseded;   // reactions that a newer one replaces
    std::vector<const MessageRow*> m_byId; // filled when first wanted
};

ConversationBuilder::ConversationBuilder(
    const formats::Database& database, const Handles& handles, const FileLocator& files)
    : m_handles(handles), m_files(database, files)
{
    const auto prepare = [&](formats::Statement& statement, const QString& sql) {
        auto prepared = database.prepare(sql);
        if (prepared) { // a release without these columns has no such rows
            statement = std::move(*prepared);
        }
    };
    const MessageTable table(database);
    QStringList columns;
    for (const QLatin1String name : {"item_type"_L1, "group_action_type"_L1, "group_title"_L1,
             "share_status"_L1, "other_handle"_L1, "is_system_message"_L1, "is_service_message"_L1,
             "date_edited"_L1, "date_retracted"_L1, "message_summary_info"_L1,
             "balloon_bundle_id"_L1, "payload_data"_L1, "attributedBody"_L1}) {
        columns.append(table.column(name));
    }
    prepare(m_details,
        "SELECT "_L1 + columns.join(QChar(u',')) + " FROM message m WHERE m.ROWID = ?"_L1);
    prepare(m_idOfGuid, "SELECT ROWID FROM message WHERE guid = ?"_L1);
    prepare(m_emoji, "SELECT associated_message_emoji FROM message WHERE ROWID = ?"_L1);
    prepare(m_deletedPart, "SELECT part_text FROM recoverable_message_part WHERE message_id = ?"
                           " ORDER BY part_index"_L1);
}

SmsConversation ConversationBuilder::build(
    const Conversation& conversation, const ConversationRows& rows)
{
    return Run(*this, conversation, rows).build();
}

} // namespace backup

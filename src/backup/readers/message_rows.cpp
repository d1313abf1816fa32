// SPDX-License-Identifier: MIT
#include "backup/readers/message_rows.h"

#include "formats/typedstream.h"
#include "platform/literals.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace backup {

namespace {

// The columns of the scan, in the order of `select`.
enum Column : int {
    Id,
    StoredDate,
    Handle,
    IsFromMe,
    IsSent,
    ErrorCode,
    Service,
    Text,
    Body,
    Subject,
    Reaction,
    ReactionTarget,
    Details,
    Balloon,
};

// Above this a date counts nanoseconds: as seconds it would lie 30 million years ahead.
constexpr std::int64_t kLargestSecond = 1'000'000'000'000'000;
constexpr std::int64_t kNanosecond = 1'000'000'000;

// Columns that are 0 or NULL in a message of the plain kind.
constexpr std::array kDetailColumns{"item_type"_L1, "date_edited"_L1, "date_retracted"_L1,
    "is_system_message"_L1, "is_service_message"_L1};

// Whether nothing is shown of a text: blanks, and U+FFFC and U+FFFD in the places of attachments
// and of an app's message.
bool isBlank(std::string_view text)
{
    for (std::size_t at = 0; at < text.size(); ++at) {
        const std::string_view rest = text.substr(at);
        if (rest.starts_with("\xEF\xBF\xBC") || rest.starts_with("\xEF\xBF\xBD")) {
            at += 2;
        } else if (std::string_view(" \t\r\n").find(rest.front()) == std::string_view::npos) {
            return false;
        }
    }
    return true;
}

// Reactions are 1000 and up; 2 and 3 are updates of an app's message.
bool isReaction(std::int64_t associatedType)
{
    return associatedType >= 1000;
}

std::string_view bodyText(const formats::Statement& query)
{
    return formats::typedstreamText(query.blobView(Body)).value_or(std::string_view());
}

} // namespace

std::int64_t normalizedDate(std::int64_t stored)
{
    // Both units occur in one store after an upgrade.
    if (stored > kLargestSecond || stored < -kLargestSecond) {
        return stored;
    }
    constexpr std::int64_t kFarthest = INT64_MAX / kNanosecond;
    return std::clamp(stored, -kFarthest, kFarthest) * kNanosecond;
}

MessageTable::MessageTable(const formats::Database& database)
    : m_columns(database.columns("message"_L1))
{
}

QString MessageTable::column(const QString& name) const
{
    return m_columns.contains(name) ? "m."_L1 + name : QStringLiteral("NULL");
}

QString MessageTable::select(const QString& fromAndWhere) const
{
    QStringList details;
    for (const QLatin1String name : kDetailColumns) {
        if (m_columns.contains(name)) {
            details.append("ifnull(m."_L1 + name + ",0)<>0"_L1);
        }
    }
    const QStringList columns{
        "m.ROWID"_L1,
        column("date"_L1),
        column("handle_id"_L1),
        column("is_from_me"_L1),
        column("is_sent"_L1),
        column("error"_L1),
        column("service"_L1),
        column("text"_L1),
        // The body repeats the text; where there is a text it need not be read.
        m_columns.contains("attributedBody"_L1)
            ? "CASE WHEN m.text IS NULL OR m.text='' THEN m.attributedBody END"_L1
            : "NULL"_L1,
        column("subject"_L1),
        column("associated_message_type"_L1),
        column("associated_message_guid"_L1),
        details.isEmpty() ? QStringLiteral("0") : details.join(" OR "_L1),
        m_columns.contains("balloon_bundle_id"_L1) ? "m.balloon_bundle_id IS NOT NULL"_L1 : "0"_L1,
    };
    return "SELECT "_L1 + columns.join(QChar(u',')) + " FROM "_L1 + fromAndWhere;
}

void MessageTable::append(const formats::Statement& query, ConversationRows& conversation)
{
    MessageRow row{
        .id = query.integer(Id),
        .date = normalizedDate(query.integer(StoredDate)),
        .textStart = static_cast<std::uint32_t>(conversation.text.size()),
        .handle = static_cast<std::int32_t>(query.integer(Handle)),
    };
    const bool fromMe = query.integer(IsFromMe) != 0;
    const bool sentDone = !fromMe || (query.integer(ErrorCode) == 0 && query.integer(IsSent) != 0);
    row.bits =
        static_cast<std::uint8_t>((fromMe ? FromMe : 0) | (sentDone ? SentDone : 0)
                                  | (query.textView(Service).starts_with("iMessage") ? IMessage : 0)
                                  | (query.integer(Details) != 0 ? NeedsDetails : 0));

    const std::string_view subject = query.textView(Subject);
    row.subjectSize = static_cast<std::uint32_t>(subject.size());
    conversation.text.append(subject);

    if (const std::int64_t type = query.integer(Reaction); isReaction(type)) {
        row.reaction = static_cast<std::int16_t>(std::min<std::int64_t>(type, INT16_MAX));
        const std::string_view target = query.textView(ReactionTarget);
        row.textSize = static_cast<std::uint32_t>(target.size());
        conversation.text.append(target);
        conversation.rows.push_back(row);
        return;
    }
    std::string_view text = query.textView(Text);
    if (isBlank(text)) {
        text = bodyText(query);
    }
    if (isBlank(text) && query.integer(Balloon) != 0) {
        row.bits |= NeedsDetails; // its text stands in the app's own data
    }
    row.textSize = static_cast<std::uint32_t>(text.size());
    conversation.text.append(text);
    conversation.rows.push_back(row);
}

} // namespace backup

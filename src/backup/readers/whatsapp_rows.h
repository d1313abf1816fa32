// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/table_reader.h"
#include "formats/sqlite.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace backup {

/// Columns of a message's row as `WhatsAppRows` gives it. What a release lacks is NULL.
enum WhatsAppColumn : int {
    MessageFromMe,
    MessageType,
    MessageEvent,
    MessageDate,
    MessageSort,
    MessageText,
    MessageFlags,
    MessageStatus,
    MessageMember,
    MessageSender,
    MessageReceiver,
    MessageChosenName,
    MessageStanza,
    MediaId,
    MediaPath,
    MediaThumbnail,
    MediaTitle,
    MediaCardNames,
    MediaCards,
    MediaLatitude,
    MediaLongitude,
    MediaUrl,
    MediaMetadata,
    MessageReceipts,
};

/// The messages of a store, chat by chat, each row with what other tables hold of it.
class WhatsAppRows {
public:
    /// Messages of no chat are those of this one.
    static constexpr qint64 kNoChat = -1;

    /// Both outlive the object.
    WhatsAppRows(const formats::Database& database, const TableReader& reader);

    /// How many messages each chat has.
    std::map<qint64, qint64> counts();

    using Take = std::function<void(const formats::Statement&)>;

    /// Gives each row of a chat to `take`, in no order. Around a damaged page they come once more:
    /// then `again` is called before the first one.
    void read(qint64 chat, const Take& take, const std::function<void()>& again);

private:
    enum class Joins { All, None };

    QString select(Joins joins, const QString& condition) const;
    std::optional<formats::Statement> prepare(Joins joins, const QString& condition) const;
    bool hasIndex() const;
    bool readByIndex(qint64 chat, const Take& take);
    void readByIds(qint64 chat, const Take& take);
    void listIds();

    struct Place {
        qint64 chat = 0;
        qint64 id = 0;

        auto operator<=>(const Place&) const = default;
    };

    const formats::Database& m_database;
    const TableReader& m_reader;
    bool m_byIndex = false; // for want of one, or for its damage, by the ids of all messages
    std::optional<formats::Statement> m_ofChat;
    std::optional<formats::Statement> m_ofNoChat;
    std::vector<Place> m_ids; // ascending
    std::optional<formats::Statement> m_ofId;
    std::optional<formats::Statement> m_ofIdAlone; // where another table's page is damaged
};

} // namespace backup

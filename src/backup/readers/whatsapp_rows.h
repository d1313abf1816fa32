// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/PackedRows.h"
#include "backup/readers/table_reader.h"
#include "backup/readers/whatsapp_row.h"
#include "formats/sqlite.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace backup {

/// The messages of a store, chat by chat. Those of one chat lie scattered over their table: who
/// walks the chats in order is served by one scan of it, however often they walk; who asks here and
/// there, by the index of each.
class WhatsAppRows {
public:
    /// Messages of no chat are those of this one.
    static constexpr qint64 kNoChat = -1;

    /// Both outlive the object. `batchRows`: more than that many are put aside on disk.
    WhatsAppRows(const formats::Database& database, const TableReader& reader,
        std::size_t batchRows = PackedRows::kBatchRows);

    /// How many messages each chat has.
    const std::map<qint64, qint64>& counts();
    /// In which order they will be walked.
    void setOrder(const std::vector<qint64>& chats);

    using Take = std::function<void(const WhatsAppRow&)>;

    /// Gives each row of a chat to `take`, in no order. Around a damaged page they come once more:
    /// then `again` is called before the first one.
    void read(qint64 chat, const Take& take, const std::function<void()>& again);

private:
    enum class Joins { All, None };

    QString select(Joins joins, const QString& condition) const;
    std::optional<formats::Statement> prepare(Joins joins, const QString& condition) const;
    bool hasIndex() const;
    bool readByScan(qint64 chat, const Take& take);
    bool scan();
    bool readByIndex(qint64 chat, const Take& take);
    void readByIds(qint64 chat, const Take& take);
    bool readById(formats::Statement& query, qint64 id, const Take& take);
    void listIds();

    struct Place {
        qint64 chat = 0;
        qint64 id = 0;

        std::pair<qint64, qint64> key() const { return {chat, id}; }
    };

    const formats::Database& m_database;
    const TableReader& m_reader;
    std::size_t m_batchRows;
    std::map<qint64, qint64> m_counts;
    std::map<qint64, std::size_t> m_places; // in the order of the walk
    std::size_t m_next = 0;                 // the one after the last asked for
    int m_steps = 0;                        // in that order, without a jump
    bool m_mayScan = true;
    std::optional<PackedRows> m_packed; // once the table is scanned

    bool m_byIndex = false; // for want of one, or for its damage, by the ids of all messages
    std::optional<formats::Statement> m_ofChat;
    std::optional<formats::Statement> m_ofNoChat;
    std::vector<Place> m_ids; // ascending
    std::optional<formats::Statement> m_ofId;
    std::optional<formats::Statement> m_ofIdAlone; // where another table's page is damaged
};

} // namespace backup

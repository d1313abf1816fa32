// SPDX-License-Identifier: MIT
//   ZWAMESSAGE m      ZCHATSESSION -> ZWACHATSESSION.Z_PK, indexed; its rows lie scattered
//   ZWAMEDIAITEM i    m.ZMEDIAITEM = i.Z_PK, and i.ZMESSAGE = m.Z_PK
//   ZWAMESSAGEINFO r  m.ZMESSAGEINFO = r.Z_PK, and r.ZMESSAGE = m.Z_PK
#include "backup/readers/whatsapp_rows.h"

#include "platform/literals.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace backup {

namespace {

// Who has asked for this many chats in a row will ask for the rest as well.
constexpr int kStepsBeforeScan = 3;

constexpr QLatin1String kMessages = "ZWAMESSAGE"_L1;

struct JoinRow {
    char table = 'i';
    QLatin1String name;
    QLatin1String key; ///< of the message; a store without it is joined by the other side's
};
constexpr std::array kJoins{
    JoinRow{'i', "ZWAMEDIAITEM"_L1, "ZMEDIAITEM"_L1},
    JoinRow{'r', "ZWAMESSAGEINFO"_L1, "ZMESSAGEINFO"_L1},
};

QString columnName(char table, const QString& name)
{
    return QChar::fromLatin1(table) + "."_L1 + name;
}

} // namespace

WhatsAppRows::WhatsAppRows(
    const formats::Database& database, const TableReader& reader, std::size_t batchRows)
    : m_database(database), m_reader(reader), m_batchRows(batchRows), m_byIndex(hasIndex())
{
}

bool WhatsAppRows::hasIndex() const
{
    auto query = m_database.prepare(
        "SELECT 1 FROM pragma_index_list('ZWAMESSAGE') l JOIN pragma_index_info(l.name) c"
        " WHERE l.partial = 0 AND c.seqno = 0 AND c.name = 'ZCHATSESSION'"_L1);
    return query && query->next();
}

QString WhatsAppRows::select(Joins joins, const QString& condition) const
{
    std::map<char, QStringList> available{{'m', m_database.columns(kMessages)}};
    QString from = " FROM ZWAMESSAGE m"_L1;
    for (const JoinRow& join : kJoins) {
        const QStringList columns =
            joins == Joins::All ? m_database.columns(join.name) : QStringList();
        const bool byMessage = available['m'].contains(join.key);
        if (columns.isEmpty() || !(byMessage || columns.contains("ZMESSAGE"_L1))) {
            continue;
        }
        available[join.table] = columns;
        from += " LEFT JOIN "_L1 + join.name + QChar(u' ') + QChar::fromLatin1(join.table)
                + " ON "_L1
                + (byMessage ? columnName(join.table, "Z_PK"_L1) + "=m."_L1 + join.key
                             : columnName(join.table, "ZMESSAGE"_L1) + "=m.Z_PK"_L1);
    }
    QStringList selected;
    for (const WhatsAppColumn& column : whatsAppColumns()) {
        const QString name = QString::fromLatin1(column.name);
        selected.append(available[column.table].contains(name) ? columnName(column.table, name)
                                                               : QStringLiteral("NULL"));
    }
    return "SELECT "_L1 + selected.join(QChar(u',')) + from
           + (condition.isEmpty() ? QString() : " WHERE "_L1 + condition);
}

std::optional<formats::Statement> WhatsAppRows::prepare(Joins joins, const QString& condition) const
{
    auto query = m_database.prepare(select(joins, condition));
    if (!query) {
        return formats::Statement();
    }
    return std::move(*query);
}

const std::map<qint64, qint64>& WhatsAppRows::counts()
{
    if (m_byIndex) {
        auto query = m_database.prepare("SELECT ifnull(ZCHATSESSION,-1),count(*) FROM ZWAMESSAGE"
                                        " GROUP BY ZCHATSESSION"_L1);
        while (query && query->next()) {
            m_counts[query->integer(0)] += query->integer(1);
        }
        m_byIndex = query && !query->failed();
    }
    if (!m_byIndex) {
        listIds();
        m_counts.clear();
        for (const Place& place : m_ids) {
            ++m_counts[place.chat];
        }
    }
    return m_counts;
}

void WhatsAppRows::setOrder(const std::vector<qint64>& chats)
{
    for (const qint64 chat : chats) {
        m_places.emplace(chat, m_places.size());
    }
}

void WhatsAppRows::read(qint64 chat, const Take& take, const std::function<void()>& again)
{
    if (readByScan(chat, take)) {
        return;
    }
    if (m_byIndex && readByIndex(chat, take)) {
        return;
    }
    if (m_byIndex) {
        m_byIndex = false;
        m_reader.noteDamage();
        again();
    }
    readByIds(chat, take);
}

bool WhatsAppRows::readByScan(qint64 chat, const Take& take)
{
    const auto place = m_places.find(chat);
    if (place == m_places.end()) {
        return false;
    }
    m_steps = place->second == m_next ? m_steps + 1 : 0;
    m_next = place->second + 1;
    if (!m_packed && m_mayScan && m_steps >= kStepsBeforeScan) {
        m_mayScan = scan();
    }
    return m_packed
           && m_packed->read(place->second, [&](std::string_view bytes) { take(unpacked(bytes)); });
}

// False where the table is damaged or the disk is full: then each chat is read for itself.
bool WhatsAppRows::scan()
{
    std::vector<std::size_t> counts(m_places.size());
    for (const auto& [chat, place] : m_places) {
        counts[place] = static_cast<std::size_t>(m_counts[chat]);
    }
    auto query = prepare(Joins::All, QString());
    m_packed.emplace(counts, m_batchRows);
    std::string bytes;
    while (query->next()) {
        const WhatsAppRow row = whatsAppRow(*query);
        if (const auto place = m_places.find(row.numbers.chat); place != m_places.end()) {
            bytes.clear();
            pack(row, bytes);
            m_packed->add(place->second, bytes);
        }
    }
    const bool isComplete = query->handle() != nullptr && !query->failed() && m_packed->finish();
    if (!isComplete) {
        m_packed.reset();
    }
    return isComplete;
}

bool WhatsAppRows::readByIndex(qint64 chat, const Take& take)
{
    if (!m_ofChat) {
        m_ofChat = prepare(Joins::All, "m.ZCHATSESSION=?"_L1);
        m_ofNoChat = prepare(Joins::All, "(m.ZCHATSESSION IS NULL OR m.ZCHATSESSION=-1)"_L1);
    }
    formats::Statement& query = chat == kNoChat ? *m_ofNoChat : *m_ofChat;
    if (query.handle() == nullptr) {
        return false;
    }
    query.reset();
    if (chat != kNoChat) {
        query.bind(1, chat);
    }
    while (query.next()) {
        take(whatsAppRow(query));
    }
    return !query.failed();
}

void WhatsAppRows::listIds()
{
    static const std::array columns{WantedColumn{.name = "ZCHATSESSION"_L1}};
    if (!m_ids.empty()) {
        return;
    }
    m_reader.read(kMessages, columns, [this](const formats::Statement& row) {
        m_ids.push_back({.chat = row.isNull(0) ? kNoChat : row.integer(0), .id = row.integer(1)});
    });
    std::ranges::sort(m_ids, {}, &Place::key);
}

void WhatsAppRows::readByIds(qint64 chat, const Take& take)
{
    listIds();
    if (!m_ofId) {
        m_ofId = prepare(Joins::All, "m.Z_PK=?"_L1);
        m_ofIdAlone = prepare(Joins::None, "m.Z_PK=?"_L1);
    }
    const auto first = std::ranges::lower_bound(m_ids, chat, {}, &Place::chat);
    for (auto place = first; place != m_ids.end() && place->chat == chat; ++place) {
        if (!readById(*m_ofId, place->id, take)) {
            readById(*m_ofIdAlone, place->id, take);
        }
    }
}

bool WhatsAppRows::readById(formats::Statement& query, qint64 id, const Take& take)
{
    query.reset();
    const bool isThere = query.bind(1, id).next();
    if (isThere) {
        take(whatsAppRow(query));
    } else if (query.failed()) {
        m_reader.noteDamage();
    }
    return isThere;
}

} // namespace backup

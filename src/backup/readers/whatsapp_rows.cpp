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

struct ColumnRow {
    char table = 'm';
    QLatin1String name;
};

// In the order of WhatsAppColumn.
constexpr std::array kColumns{
    ColumnRow{'m', "ZISFROMME"_L1},
    ColumnRow{'m', "ZMESSAGETYPE"_L1},
    ColumnRow{'m', "ZGROUPEVENTTYPE"_L1},
    ColumnRow{'m', "ZMESSAGEDATE"_L1},
    ColumnRow{'m', "ZSORT"_L1},
    ColumnRow{'m', "ZTEXT"_L1},
    ColumnRow{'m', "ZFLAGS"_L1},
    ColumnRow{'m', "ZMESSAGESTATUS"_L1},
    ColumnRow{'m', "ZGROUPMEMBER"_L1},
    ColumnRow{'m', "ZFROMJID"_L1},
    ColumnRow{'m', "ZTOJID"_L1},
    ColumnRow{'m', "ZPUSHNAME"_L1},
    ColumnRow{'m', "ZSTANZAID"_L1},
    ColumnRow{'i', "Z_PK"_L1},
    ColumnRow{'i', "ZMEDIALOCALPATH"_L1},
    ColumnRow{'i', "ZXMPPTHUMBPATH"_L1},
    ColumnRow{'i', "ZTITLE"_L1},
    ColumnRow{'i', "ZVCARDNAME"_L1},
    ColumnRow{'i', "ZVCARDSTRING"_L1},
    ColumnRow{'i', "ZLATITUDE"_L1},
    ColumnRow{'i', "ZLONGITUDE"_L1},
    ColumnRow{'i', "ZMEDIAURL"_L1},
    ColumnRow{'i', "ZMETADATA"_L1},
    ColumnRow{'r', "ZRECEIPTINFO"_L1},
};
static_assert(kColumns.size() == MessageReceipts + 1);

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

QString columnName(char table, QLatin1String name)
{
    return QChar::fromLatin1(table) + "."_L1 + name;
}

} // namespace

WhatsAppRows::WhatsAppRows(const formats::Database& database, const TableReader& reader)
    : m_database(database), m_reader(reader), m_byIndex(hasIndex())
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
    for (const ColumnRow& column : kColumns) {
        selected.append(available[column.table].contains(column.name)
                            ? columnName(column.table, column.name)
                            : QStringLiteral("NULL"));
    }
    return "SELECT "_L1 + selected.join(QChar(u',')) + from + " WHERE "_L1 + condition;
}

std::optional<formats::Statement> WhatsAppRows::prepare(Joins joins, const QString& condition) const
{
    auto query = m_database.prepare(select(joins, condition));
    if (!query) {
        return formats::Statement();
    }
    return std::move(*query);
}

std::map<qint64, qint64> WhatsAppRows::counts()
{
    std::map<qint64, qint64> found;
    if (m_byIndex) {
        auto query = m_database.prepare("SELECT ifnull(ZCHATSESSION,-1),count(*) FROM ZWAMESSAGE"
                                        " GROUP BY ZCHATSESSION"_L1);
        while (query && query->next()) {
            found[query->integer(0)] += query->integer(1);
        }
        m_byIndex = query && !query->failed();
    }
    if (!m_byIndex) {
        listIds();
        found.clear();
        for (const Place& place : m_ids) {
            ++found[place.chat];
        }
    }
    return found;
}

void WhatsAppRows::read(qint64 chat, const Take& take, const std::function<void()>& again)
{
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

bool WhatsAppRows::readByIndex(qint64 chat, const Take& take)
{
    if (!m_ofChat) {
        m_ofChat = prepare(Joins::All, "m.ZCHATSESSION=?"_L1);
        m_ofNoChat = prepare(Joins::All, "m.ZCHATSESSION IS NULL"_L1);
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
        take(query);
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
    std::ranges::sort(m_ids);
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
        for (auto* query : {&*m_ofId, &*m_ofIdAlone}) {
            query->reset();
            if (query->bind(1, place->id).next()) {
                take(*query);
                break;
            }
        }
    }
}

} // namespace backup

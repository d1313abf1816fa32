// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/table_reader.h"
#include "model/PRContactItem.h"

#include <QHash>

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace backup {

/// Phones, addresses and all else of which a card may have several. The tables are read when the
/// first value is asked for, each in one pass, and kept as bytes of UTF-8.
class ContactValues {
public:
    /// `store` outlives the values.
    explicit ContactValues(const TableReader& store) : m_store(store) {}

    /// The values of cards that are shown as one, kind by kind, each in the order of the phone.
    /// What two cards have in common stands there once.
    std::vector<PRContactProperty> of(std::span<const qint64> cards);

    /// The first value of a kind that a card has; empty for none.
    QString first(qint64 card, PropType kind);

private:
    /// A piece of m_texts.
    struct Text {
        std::size_t at = 0;
        std::size_t size = 0;
    };
    struct Value {
        qint64 card = 0;
        int kind = 0;
        qint64 place = 0; ///< among those of its kind
        qint64 id = 0;
        qint64 label = 0;
        Text text;
    };
    struct Part {
        qint64 value = 0;
        qint64 key = 0;
        Text text;
    };

    void read();
    void readValues();
    void readParts();
    Text keep(std::string_view text);
    QString textOf(const Text& text) const;
    QMap<QString, QString> partsOf(qint64 value) const;
    std::optional<ContactProperty> property(const Value& value) const;
    std::vector<ContactProperty> propertiesOf(qint64 card) const;

    const TableReader& m_store;
    bool m_isRead = false;
    std::string m_texts;
    std::vector<Value> m_values; // sorted: card, kind, place, id
    std::vector<Part> m_parts;   // sorted: value
    QHash<qint64, QString> m_labels;
    QHash<qint64, QString> m_keys;
};

} // namespace backup

// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>
#include <QVector>

namespace formats {
class Database;
}

namespace backup {

/// The names that an address book knows for phone numbers and e-mail addresses.
class SenderNames {
public:
    /// Knows nobody.
    SenderNames() = default;
    /// Reads the people of an address book. What cannot be read is unknown.
    explicit SenderNames(const formats::Database& addressBook);

    /// The person's name; empty for an address that nobody has. Numbers match however they are
    /// written: with or without country code, blanks, zeros in front.
    QString nameOf(const QString& address) const;

private:
    struct Number {
        QString digits; // without zeros in front
        QString name;
    };
    void addPhone(const QString& number, const QString& name);

    QHash<QString, QVector<Number>> m_phones; // by the last seven digits
    QHash<QString, QString> m_emails;         // in lower case
};

} // namespace backup

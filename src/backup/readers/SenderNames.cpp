// SPDX-License-Identifier: MIT
// Of AddressBook.sqlitedb, beside the names of people:
//   ABMultiValue  record_id -> ABPerson.ROWID, property 3 phone or 4 e-mail, value
#include "backup/readers/SenderNames.h"

#include "backup/container/Notices.h"
#include "backup/readers/contact_people.h"
#include "backup/readers/table_reader.h"
#include "formats/sqlite.h"
#include "platform/literals.h"

#include <algorithm>
#include <utility>

namespace backup {

namespace {

constexpr int kPhone = 3;
constexpr int kComparedDigits = 7; // a shorter number is a service's own, and must match whole

// "+49 (0)171 ..." holds a zero that is dialled within the country only.
QString digitsOf(QString number)
{
    QString digits;
    number.remove("(0)"_L1);
    for (const QChar c : std::as_const(number)) {
        if (c.digitValue() >= 0 && (c.digitValue() > 0 || !digits.isEmpty())) {
            digits += QChar(u'0' + c.digitValue());
        }
    }
    return digits;
}

} // namespace

SenderNames::SenderNames(const formats::Database& addressBook)
{
    Notices unheard; // the reader of contacts tells what is wrong with the same store
    const QHash<qint64, QString> names =
        readCardNames(TableReader(addressBook, QString(), unheard));
    auto query = addressBook.prepare(
        "SELECT record_id, property, value FROM ABMultiValue"
        " WHERE property IN (3, 4) AND value IS NOT NULL ORDER BY record_id, UID"_L1);
    while (query && query->next()) {
        const QString name = names.value(query->integer(0));
        if (name.isEmpty()) {
            continue;
        }
        if (query->integer(1) == kPhone) {
            addPhone(query->text(2), name);
        } else if (const QString email = query->text(2).trimmed().toLower();
                   !m_emails.contains(email)) {
            m_emails.insert(email, name);
        }
    }
}

void SenderNames::addPhone(const QString& number, const QString& name)
{
    const QString digits = digitsOf(number);
    if (!digits.isEmpty()) {
        m_phones[digits.right(kComparedDigits)].append({digits, name});
    }
}

QString SenderNames::nameOf(const QString& address) const
{
    if (address.contains(QChar(u'@'))) {
        return m_emails.value(address.trimmed().toLower());
    }
    const QString digits = digitsOf(address);
    const QVector<Number> candidates = m_phones.value(digits.right(kComparedDigits));
    const auto* const found = std::ranges::find_if(candidates, [&](const Number& number) {
        if (digits.size() < kComparedDigits || number.digits.size() < kComparedDigits) {
            return digits == number.digits;
        }
        return digits.endsWith(number.digits) || number.digits.endsWith(digits);
    });
    return found != candidates.end() ? found->name : QString();
}

} // namespace backup

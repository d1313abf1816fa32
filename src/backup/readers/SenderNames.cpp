// SPDX-License-Identifier: MIT
// Of AddressBook.sqlitedb, what names need:
//   ABPerson      ROWID, First, Last, Nickname, Organization
//   ABMultiValue  record_id -> ABPerson.ROWID, property 3 phone or 4 e-mail, value
#include "backup/readers/SenderNames.h"

#include "formats/sqlite.h"
#include "platform/literals.h"

#include <algorithm>

namespace backup {

namespace {

constexpr int kPhone = 3;
constexpr int kComparedDigits = 7; // a shorter number is a service's own, and must match whole

QString digitsOf(const QString& number)
{
    QString digits;
    for (const QChar c : number) {
        if (c.digitValue() >= 0 && (c.digitValue() > 0 || !digits.isEmpty())) {
            digits += QChar(u'0' + c.digitValue());
        }
    }
    return digits;
}

QString personName(const formats::Statement& person)
{
    const QString name = (person.text(2) + QChar(u' ') + person.text(3)).simplified();
    if (!name.isEmpty()) {
        return name;
    }
    const QString organization = person.text(4).simplified();
    return organization.isEmpty() ? person.text(5).simplified() : organization;
}

} // namespace

SenderNames::SenderNames(const formats::Database& addressBook)
{
    auto query = addressBook.prepare(
        "SELECT v.property, v.value, p.First, p.Last, p.Organization, p.Nickname"
        " FROM ABMultiValue v JOIN ABPerson p ON p.ROWID = v.record_id"
        " WHERE v.property IN (3, 4) AND v.value IS NOT NULL ORDER BY p.ROWID, v.UID"_L1);
    while (query && query->next()) {
        const QString name = personName(*query);
        if (name.isEmpty()) {
            continue;
        }
        if (query->integer(0) == kPhone) {
            addPhone(query->text(1), name);
        } else if (const QString email = query->text(1).trimmed().toLower();
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
    const auto found = std::ranges::find_if(candidates, [&](const Number& number) {
        if (digits.size() < kComparedDigits || number.digits.size() < kComparedDigits) {
            return digits == number.digits;
        }
        return digits.endsWith(number.digits) || number.digits.endsWith(digits);
    });
    return found != candidates.end() ? found->name : QString();
}

} // namespace backup

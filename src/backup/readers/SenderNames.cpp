// SPDX-License-Identifier: MIT
// Of AddressBook.sqlitedb, what names need:
//   ABPerson      ROWID, First, Last, Nickname, Organization
//   ABMultiValue  record_id -> ABPerson.ROWID, property 3 phone or 4 e-mail, value
#include "backup/readers/SenderNames.h"

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

bool isEastAsian(const QString& name)
{
    return std::ranges::any_of(name, [](QChar c) {
        return c.script() == QChar::Script_Han || c.script() == QChar::Script_Hiragana
               || c.script() == QChar::Script_Katakana || c.script() == QChar::Script_Hangul;
    });
}

QString personName(const formats::Statement& person)
{
    QString first = person.text(2);
    QString last = person.text(3);
    if (isEastAsian(first + last)) {
        std::swap(first, last); // the family name leads
    }
    QString name = (first + QChar(u' ') + last).simplified();
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
    const auto* const found = std::ranges::find_if(candidates, [&](const Number& number) {
        if (digits.size() < kComparedDigits || number.digits.size() < kComparedDigits) {
            return digits == number.digits;
        }
        return digits.endsWith(number.digits) || number.digits.endsWith(digits);
    });
    return found != candidates.end() ? found->name : QString();
}

} // namespace backup

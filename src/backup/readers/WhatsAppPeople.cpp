// SPDX-License-Identifier: MIT
//   ChatStorage.sqlite  ZWAPROFILEPUSHNAME      ZJID, ZPUSHNAME
//   ContactsV2.sqlite   ZWAADDRESSBOOKCONTACT   ZWHATSAPPID, ZLID, ZFULLNAME, ...
//   LID.sqlite          ZWAPHONENUMBERLIDPAIR   ZLID, ZPHONENUMBER
// Addresses stand with and without what follows the "@".
#include "backup/readers/WhatsAppPeople.h"

#include "backup/container/Notices.h"
#include "backup/readers/chat_lines.h"
#include "backup/readers/table_reader.h"
#include "formats/whatsapp_data.h"
#include "platform/literals.h"

#include <algorithm>
#include <array>

namespace backup {

namespace {

constexpr QLatin1String kHidden = "@lid"_L1;
constexpr QLatin1String kContacts = "ContactsV2.sqlite"_L1;
constexpr QLatin1String kPairs = "LID.sqlite"_L1;

// "+49 171 5550101": what the application calls those whom it does not know.
bool isNumber(const QString& name)
{
    // Phones part numbers by a hyphen of their own, at which no line breaks.
    return std::ranges::all_of(name, [](QChar c) {
        return c.isDigit() || c.isSpace() || c.category() == QChar::Punctuation_Dash
               || "+()./"_L1.contains(c);
    });
}

// "491715550101" of "491715550101:12@s.whatsapp.net", where 12 is a device of that person
QString keyOf(const QString& address)
{
    const int at = address.indexOf(QChar(u'@'));
    QString user = at < 0 ? address : address.left(at);
    user.truncate(user.indexOf(QChar(u':')) < 0 ? user.size() : user.indexOf(QChar(u':')));
    if (user.startsWith(QChar(u'+'))) {
        user.remove(0, 1);
    }
    return address.endsWith(kHidden) ? user + kHidden : user;
}

QString hiddenKeyOf(const QString& address)
{
    return address.isEmpty() || address.endsWith(kHidden) ? keyOf(address)
                                                          : keyOf(address) + kHidden;
}

bool isDigits(const QString& text)
{
    return !text.isEmpty() && std::ranges::all_of(text, [](QChar c) { return c.isDigit(); });
}

} // namespace

QString cleanName(const QString& name)
{
    const QString clean = plainName(name).simplified();
    return formats::isEncodedMessage(clean) ? QString() : clean;
}

bool isPerson(const QString& address)
{
    return !address.isEmpty() && !address.endsWith("@g.us"_L1) && !address.endsWith("broadcast"_L1)
           && !address.endsWith("@newsletter"_L1) && !address.endsWith("@status"_L1);
}

WhatsAppPeople::WhatsAppPeople(
    const TableReader& chats, SenderNames names, const OpenBeside& openBeside, Notices& notices)
    : m_addressBook(std::move(names))
{
    readProfiles(chats);
    const auto readBeside = [&](QLatin1String file, auto read) {
        const auto opened = openBeside(file);
        if (!opened) {
            return; // older releases have none
        }
        if (!*opened) {
            notices.add(opened->error().text());
            return;
        }
        const QString name = file;
        (this->*read)(TableReader((*opened)->database, name, notices));
    };
    readBeside(kContacts, &WhatsAppPeople::readContacts);
    readBeside(kPairs, &WhatsAppPeople::readHiddenNumbers);
}

void WhatsAppPeople::readProfiles(const TableReader& chats)
{
    static const std::array columns{
        WantedColumn{.name = "ZJID"_L1}, WantedColumn{.name = "ZPUSHNAME"_L1}};
    const QString table = "ZWAPROFILEPUSHNAME"_L1;
    if (!chats.database().hasTable(table)) {
        return;
    }
    chats.read(table, columns, [this](const formats::Statement& row) {
        const QString key = keyOf(row.text(0));
        const QString name = cleanName(row.text(1));
        if (!key.isEmpty() && !name.isEmpty()) {
            m_chosen.insert(key, name);
        }
    });
}

void WhatsAppPeople::readContacts(const TableReader& contacts)
{
    enum Column : int { Id, Hidden, Phone, FullName, Highlighted, Given, Last, Business };
    static const std::array columns{WantedColumn{.name = "ZWHATSAPPID"_L1},
        WantedColumn{.name = "ZLID"_L1}, WantedColumn{.name = "ZPHONENUMBER"_L1},
        WantedColumn{.name = "ZFULLNAME"_L1}, WantedColumn{.name = "ZHIGHLIGHTEDNAME"_L1},
        WantedColumn{.name = "ZGIVENNAME"_L1}, WantedColumn{.name = "ZLASTNAME"_L1},
        WantedColumn{.name = "ZBUSINESSNAME"_L1}};
    contacts.read("ZWAADDRESSBOOKCONTACT"_L1, columns, [this](const formats::Statement& row) {
        const std::array names{row.text(FullName), row.text(Highlighted),
            row.text(Given) + QChar(u' ') + row.text(Last), row.text(Business)};
        const auto* const name = std::ranges::find_if(
            names, [](const QString& each) { return !each.trimmed().isEmpty(); });
        const QString hidden = hiddenKeyOf(row.text(Hidden));
        const QString id = row.text(Id);
        addPair(hidden, keyOf(id));
        if (name != names.end()) {
            addName(id.isEmpty() ? row.text(Phone) : id, *name);
            addName(hidden, *name);
        }
    });
}

void WhatsAppPeople::readHiddenNumbers(const TableReader& pairs)
{
    static const std::array columns{
        WantedColumn{.name = "ZLID"_L1}, WantedColumn{.name = "ZPHONENUMBER"_L1}};
    pairs.read("ZWAPHONENUMBERLIDPAIR"_L1, columns, [this](const formats::Statement& row) {
        addPair(hiddenKeyOf(row.text(0)), keyOf(row.text(1)));
    });
}

void WhatsAppPeople::addPair(const QString& hidden, const QString& digits)
{
    if (!hidden.isEmpty() && isDigits(digits)) {
        m_otherKeys.insert(hidden, digits);
        m_otherKeys.insert(digits, hidden);
    }
}

void WhatsAppPeople::addName(const QString& address, const QString& name)
{
    const QString clean = cleanName(name);
    const QString key = keyOf(address);
    if (!key.isEmpty() && !isNumber(clean) && !m_names.contains(key)) {
        m_names.insert(key, clean);
        m_known.clear();
    }
}

QString WhatsAppPeople::digitsOf(const QString& key) const
{
    const QString digits = key.endsWith(kHidden) ? m_otherKeys.value(key) : key;
    return isDigits(digits) ? digits : QString();
}

QString WhatsAppPeople::numberOf(const QString& address) const
{
    const QString digits = isPerson(address) ? digitsOf(keyOf(address)) : QString();
    return digits.isEmpty() ? QString() : QChar(u'+') + digits;
}

// Empty where only the number, or what the person has chosen with a message, is known.
QString WhatsAppPeople::knownName(const QString& address) const
{
    const QString key = keyOf(address);
    const QString otherKey = m_otherKeys.value(key);
    const QString digits = digitsOf(key);
    for (const QString& each : {key, otherKey}) {
        if (const auto name = m_names.constFind(each); name != m_names.cend()) {
            return *name;
        }
    }
    if (!digits.isEmpty()) {
        if (QString name = m_addressBook.nameOf(QChar(u'+') + digits); !name.isEmpty()) {
            return name;
        }
    }
    const QString chosen = m_chosen.value(key);
    return chosen.isEmpty() ? m_chosen.value(otherKey) : chosen;
}

QString WhatsAppPeople::nameOf(const QString& address, const QString& chosen) const
{
    auto known = m_known.constFind(address);
    if (known == m_known.cend()) {
        known = m_known.insert(address, knownName(address));
    }
    if (!known->isEmpty()) {
        return *known;
    }
    if (QString name = cleanName(chosen); !name.isEmpty()) {
        return name;
    }
    const QString number = numberOf(address);
    return number.isEmpty() ? address.section(QChar(u'@'), 0, 0) : number;
}

} // namespace backup

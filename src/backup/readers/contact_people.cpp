// SPDX-License-Identifier: MIT
//   ABPerson      First, Last, ... the parts of the name; Kind 1: an organization
//                 LastSortLanguageIndex, LastSortSection, LastSort: its place in the list
//                 PersonLink -> ABPersonLink: equal in cards that are shown as one, -1 for none
//                 IsPreferredName 1: the card that gives their name
//   ABPersonLink  PreferredNamePersonID, PreferredImagePersonID -> ABPerson; -1 for none
#include "backup/readers/contact_people.h"

#include "backup/readers/ContactValues.h"
#include "backup/readers/contact_name.h"
#include "backup/readers/table_reader.h"
#include "platform/literals.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <array>
#include <tuple>

namespace backup {

namespace {

constexpr qint64 kNoLanguage = INT32_MAX; // what the phone writes for a name of no language

QString tr(const char* text)
{
    return QCoreApplication::translate("DataExport", text);
}

struct Card {
    qint64 id = 0;
    QString name;
    QByteArray sortKey;
    qint64 link = 0;
    bool givesName = true;
};

/// What the store says of cards that are shown as one.
struct Link {
    qint64 nameCard = 0;
    qint64 pictureCard = 0;
};
using Links = QHash<qint64, Link>;

enum Column : int {
    First,
    Middle,
    Last,
    Prefix,
    Suffix,
    Nickname,
    Organization,
    FirstPhonetic,
    LastPhonetic,
    OrganizationPhonetic,
    Fallback,
    Kind,
    PersonLink,
    IsPreferredName,
    SortLanguage,
    SortSection,
    SortName,
    ImageType,
    ImageHash,
    ImageUri,
    Id
};

const std::array<WantedColumn, Id>& columns()
{
    static const std::array<WantedColumn, Id> all{WantedColumn{"First"_L1, true},
        WantedColumn{"Middle"_L1, true}, WantedColumn{"Last"_L1, true}, WantedColumn{"Prefix"_L1},
        WantedColumn{"Suffix"_L1}, WantedColumn{"Nickname"_L1},
        WantedColumn{"Organization"_L1, true}, WantedColumn{"FirstPhonetic"_L1},
        WantedColumn{"LastPhonetic"_L1}, WantedColumn{"OrganizationPhonetic"_L1},
        WantedColumn{"CompositeNameFallback|DisplayName"_L1}, WantedColumn{"Kind"_L1},
        WantedColumn{"PersonLink"_L1}, WantedColumn{"IsPreferredName"_L1},
        WantedColumn{"LastSortLanguageIndex"_L1}, WantedColumn{"LastSortSection"_L1},
        WantedColumn{"LastSort"_L1}, WantedColumn{"ImageType"_L1},
        WantedColumn{"ImageHash"_L1, false, true}, WantedColumn{"ImageURI"_L1}};
    return all;
}

ContactName nameOf(const formats::Statement& row)
{
    const auto part = [&](Column column) { return withoutMarks(row.text(column)); };
    return {.prefix = part(Prefix),
        .first = part(First),
        .middle = part(Middle),
        .last = part(Last),
        .suffix = part(Suffix),
        .nickname = part(Nickname),
        .organization = part(Organization),
        .firstPhonetic = part(FirstPhonetic),
        .lastPhonetic = part(LastPhonetic),
        .organizationPhonetic = part(OrganizationPhonetic),
        .isOrganization = row.integer(Kind) == 1};
}

QByteArray bytesOf(std::string_view text)
{
    return {text.data(), static_cast<int>(text.size())};
}

// Bytes that order as the phone lists: by language, section and name, cards that the phone has not
// placed behind those that it has.
QByteArray placeOf(const formats::Statement& row, const ContactName& name)
{
    const QByteArray section = bytesOf(row.textView(SortSection));
    const QByteArray stored = bytesOf(row.textView(SortName));
    if (section.isEmpty() && stored.isEmpty()) {
        return '1' + sortKey(name);
    }
    const qint64 language = row.isNull(SortLanguage)
                                ? kNoLanguage
                                : qBound<qint64>(0, row.integer(SortLanguage), kNoLanguage);
    return '0' + QByteArray::number(language).rightJustified(10, '0') + section + '\0'
           + (stored.isEmpty() ? sortKey(name) : stored);
}

bool tellsOfPicture(const formats::Statement& row)
{
    return !row.textView(ImageType).empty() || row.integer(ImageHash) > 0
           || !row.textView(ImageUri).empty();
}

// Without its place in the list.
Card cardOf(const formats::Statement& row, const ContactName& name)
{
    QString shown = displayName(name);
    if (shown.isEmpty()) {
        shown = withoutMarks(row.text(Fallback)).simplified();
    }
    return {.id = row.integer(Id),
        .name = std::move(shown),
        .sortKey = {},
        .link = row.isNull(PersonLink) ? -1 : row.integer(PersonLink),
        .givesName = row.isNull(IsPreferredName) || row.integer(IsPreferredName) != 0};
}

std::vector<Card> readCards(const TableReader& store, bool& havePictures)
{
    std::vector<Card> cards;
    store.read("ABPerson"_L1, columns(), [&](const formats::Statement& row) {
        const ContactName name = nameOf(row);
        cards.push_back(cardOf(row, name));
        cards.back().sortKey = placeOf(row, name);
        havePictures = havePictures || tellsOfPicture(row);
    });
    return cards;
}

Links readLinks(const TableReader& store)
{
    Links links;
    if (store.database().hasTable("ABPersonLink"_L1)) { // old releases have none
        const std::array wanted{
            WantedColumn{"PreferredNamePersonID"_L1}, WantedColumn{"PreferredImagePersonID"_L1}};
        store.read("ABPersonLink"_L1, wanted, [&](const formats::Statement& row) {
            links.insert(row.integer(2), {row.integer(0), row.integer(1)});
        });
    }
    return links;
}

// 0 and -1 both serve as "none".
bool isLinked(const Card& card, const Links& links)
{
    return card.link > 0 || (card.link == 0 && links.contains(0));
}

// The cards of each person.
std::vector<std::vector<Card>> grouped(std::vector<Card> cards, const Links& links)
{
    std::vector<std::vector<Card>> groups;
    QHash<qint64, std::size_t> groupOfLink;
    for (Card& card : cards) {
        const bool mayHaveOthers = isLinked(card, links);
        const auto found = mayHaveOthers ? groupOfLink.constFind(card.link) : groupOfLink.cend();
        if (found != groupOfLink.cend()) {
            groups[*found].push_back(std::move(card));
            continue;
        }
        if (mayHaveOthers) {
            groupOfLink.insert(card.link, groups.size());
        }
        groups.emplace_back().push_back(std::move(card));
    }
    return groups;
}

void putNameFirst(std::vector<Card>& cards, const Link& link)
{
    std::ranges::stable_sort(cards, {}, [&](const Card& card) {
        return std::tuple(card.name.isEmpty(), card.id != link.nameCard, !card.givesName);
    });
}

QString firstValue(const std::vector<Card>& cards, PropType kind, ContactValues& values)
{
    QString value;
    for (auto card = cards.begin(); value.isEmpty() && card != cards.end(); ++card) {
        value = values.first(card->id, kind);
    }
    return value;
}

// Who has no name is called by what else a card tells.
QString nameByValues(const std::vector<Card>& cards, ContactValues& values)
{
    for (const PropType kind : {Phone, Email, WebAddress}) {
        QString value = firstValue(cards, kind, values);
        if (!value.isEmpty()) {
            return value;
        }
    }
    return tr("No Name");
}

ContactPerson personOf(std::vector<Card>& cards, const Links& links, ContactValues& values)
{
    const Link link = links.value(cards.front().link);
    putNameFirst(cards, link);
    ContactPerson person{.name = cards.front().name};
    if (person.name.isEmpty()) {
        person.name = nameByValues(cards, values);
    }
    for (const Card& card : cards) {
        person.cards.push_back(card.id);
        if (card.id == link.pictureCard) {
            person.pictureCard = card.id;
        }
    }
    return person;
}

} // namespace

ContactPeople readContactPeople(const TableReader& store, ContactValues& values)
{
    ContactPeople people;
    const Links links = readLinks(store);
    std::vector<std::vector<Card>> groups = grouped(readCards(store, people.havePictures), links);
    std::vector<std::pair<QByteArray, ContactPerson>> placed;
    placed.reserve(groups.size());
    for (std::vector<Card>& cards : groups) {
        ContactPerson person = personOf(cards, links, values);
        placed.emplace_back(cards.front().sortKey, std::move(person));
    }
    std::ranges::stable_sort(placed, {}, &std::pair<QByteArray, ContactPerson>::first);
    people.list.reserve(placed.size());
    for (auto& [key, person] : placed) {
        people.list.push_back(std::move(person));
    }
    return people;
}

QHash<qint64, QString> readCardNames(const TableReader& store)
{
    const Links links = readLinks(store);
    QHash<qint64, QString> names;
    const auto keep = [&names](qint64 card, const QString& name) {
        if (!name.isEmpty()) {
            names.insert(card, name);
        }
    };
    std::vector<Card> linked;
    store.read("ABPerson"_L1, columns(), [&](const formats::Statement& row) {
        Card card = cardOf(row, nameOf(row));
        if (isLinked(card, links)) {
            linked.push_back(std::move(card));
        } else {
            keep(card.id, card.name);
        }
    });
    for (std::vector<Card>& person : grouped(std::move(linked), links)) {
        putNameFirst(person, links.value(person.front().link));
        for (const Card& card : person) {
            keep(card.id, person.front().name);
        }
    }
    return names;
}

} // namespace backup

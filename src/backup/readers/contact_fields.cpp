// SPDX-License-Identifier: MIT
//   ABPerson   First ... PreviousFamilyName   texts
//              Birthday            seconds since 2001 as text; year 1604 where it is not known
//              AlternateBirthday   property list
//              Note                text of several lines
#include "backup/readers/contact_fields.h"

#include "backup/readers/contact_date.h"
#include "backup/readers/contact_name.h"
#include "backup/readers/table_reader.h"
#include "platform/literals.h"

#include <algorithm>
#include <array>
#include <vector>

namespace backup {

namespace {

enum class Group { Name, Nickname, Work };

struct Field {
    QLatin1String column;
    QString ContactContent::*text = nullptr;
    Group group = Group::Name;
    bool needed = false;
};

using Content = ContactContent;

// clang-format off
constexpr std::array kFields{
    Field{"Prefix"_L1,                    &Content::namePrefix,                Group::Name, true},
    Field{"First"_L1,                     &Content::firstName,                 Group::Name, true},
    Field{"Middle"_L1,                    &Content::middleName,                Group::Name, true},
    Field{"Last"_L1,                      &Content::lastName,                  Group::Name, true},
    Field{"Suffix"_L1,                    &Content::nameSuffix,                Group::Name, true},
    Field{"FirstPhonetic"_L1,             &Content::firstPhonetic,             Group::Name},
    Field{"MiddlePhonetic"_L1,            &Content::middlePhonetic,            Group::Name},
    Field{"LastPhonetic"_L1,              &Content::lastPhonetic,              Group::Name},
    Field{"FirstPronunciation"_L1,        &Content::firstPronunciation,        Group::Name},
    Field{"MiddlePronunciation"_L1,       &Content::middlePronunciation,       Group::Name},
    Field{"LastPronunciation"_L1,         &Content::lastPronunciation,         Group::Name},
    Field{"PreviousFamilyName"_L1,        &Content::previousFamilyName,        Group::Name},
    Field{"Nickname"_L1,                  &Content::nickname,                  Group::Nickname, true},
    Field{"Organization"_L1,              &Content::organization,              Group::Work, true},
    Field{"OrganizationPhonetic"_L1,      &Content::organizationPhonetic,      Group::Work},
    Field{"OrganizationPronunciation"_L1, &Content::organizationPronunciation, Group::Work},
    Field{"Department"_L1,                &Content::department,                Group::Work, true},
    Field{"JobTitle"_L1,                  &Content::jobTitle,                  Group::Work, true},
};
// clang-format on

enum Column : int { Birthday = static_cast<int>(kFields.size()), AlternateBirthday, Note };

bool hasAnyOf(const Content& contact, Group group)
{
    return std::ranges::any_of(kFields, [&](const Field& field) {
        return field.group == group && !(contact.*field.text).isEmpty();
    });
}

void addGroup(const formats::Statement& card, Content& contact, Group group)
{
    if (hasAnyOf(contact, group)) {
        return;
    }
    for (std::size_t index = 0; index < kFields.size(); ++index) {
        if (kFields.at(index).group == group) {
            contact.*kFields.at(index).text = withoutMarks(card.text(static_cast<int>(index)));
        }
    }
}

void addNote(const QString& note, Content& contact)
{
    if (note.isEmpty() || contact.note == note || contact.note.endsWith(QChar(u'\n') + note)
        || contact.note.startsWith(note + QChar(u'\n'))) {
        return;
    }
    contact.note += contact.note.isEmpty() ? note : QChar(u'\n') + note;
}

} // namespace

std::span<const WantedColumn> contactColumns()
{
    static const std::vector<WantedColumn> columns = [] {
        std::vector<WantedColumn> all;
        all.reserve(kFields.size() + 3);
        for (const Field& field : kFields) {
            all.push_back({field.column, field.needed});
        }
        all.push_back({"Birthday"_L1, true});
        all.push_back({"AlternateBirthday"_L1});
        all.push_back({"Note"_L1, true});
        return all;
    }();
    return columns;
}

void addContactFields(const formats::Statement& card, ContactContent& contact)
{
    for (const Group group : {Group::Name, Group::Nickname, Group::Work}) {
        addGroup(card, contact, group);
    }
    if (contact.birthday.isEmpty()) {
        contact.birthday = contactDate(card.text(Birthday));
    }
    if (contact.altBirthday.type == 0) {
        contact.altBirthday = alternateBirthday(card.blob(AlternateBirthday));
    }
    addNote(withPlainLineEnds(card.text(Note)), contact);
}

} // namespace backup

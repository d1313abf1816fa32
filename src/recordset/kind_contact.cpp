// SPDX-License-Identifier: MIT
// {"kind": "contact", "values": ["Anna Berg"], "firstName": "Anna", "lastName": "Berg",
//  "properties": [
//   {"type": 3, "label": "_$!<Mobile>!$_", "value": "+4912345"},
//   {"type": 5, "label": "_$!<Home>!$_", "entry": {"City": "Kiel", "Street": "Hafen 1"}}
// ]}
#include "model/PRContactItem.h"
#include "recordset/Kind.h"

namespace recordset {

namespace {

constexpr std::array kPropertyFields{
    integer<&ContactProperty::type>("type"),
    text<&ContactProperty::label>("label"),
    text<&ContactProperty::value>("value"),
    textMap<&ContactProperty::entry>("entry"),
};

constexpr std::array kAltBirthdayFields{
    integer<&AltBirthday::type>("type"),
    text<&AltBirthday::label>("label"),
    text<&AltBirthday::desc>("desc"),
};

constexpr std::array kFields{
    text<&ContactContent::namePrefix>("namePrefix"),
    text<&ContactContent::firstName>("firstName"),
    text<&ContactContent::middleName>("middleName"),
    text<&ContactContent::lastName>("lastName"),
    text<&ContactContent::nameSuffix>("nameSuffix"),
    text<&ContactContent::firstPhonetic>("firstPhonetic"),
    text<&ContactContent::lastPhonetic>("lastPhonetic"),
    text<&ContactContent::middlePhonetic>("middlePhonetic"),
    text<&ContactContent::organizationPhonetic>("organizationPhonetic"),
    text<&ContactContent::firstPronunciation>("firstPronunciation"),
    text<&ContactContent::lastPronunciation>("lastPronunciation"),
    text<&ContactContent::middlePronunciation>("middlePronunciation"),
    text<&ContactContent::organizationPronunciation>("organizationPronunciation"),
    text<&ContactContent::previousFamilyName>("previousFamilyName"),
    text<&ContactContent::nickname>("nickname"),
    text<&ContactContent::jobTitle>("jobTitle"),
    text<&ContactContent::department>("department"),
    text<&ContactContent::organization>("organization"),
    text<&ContactContent::birthday>("birthday"),
    text<&ContactContent::note>("note"),
    bytes<&ContactContent::photo>("photo"),
    object<&ContactContent::altBirthday, kAltBirthdayFields>("altBirthday"),
    list<&ContactContent::propertyList, kPropertyFields, &PRContactProperty::contents>(
        "properties"),
};

const ContactContent& contentsOf(PRContactItem& item)
{
    return *item.detailContent();
}

} // namespace

constinit const Kind kContactKind =
    kindOf<kFields, makeItem<PRContactItem, ContactContent>, contentsOf>("contact");

} // namespace recordset

// SPDX-License-Identifier: MIT
#include "interchange/contact_values.h"

#include "interchange/field_tables.h"
#include "platform/CCommonUtils.h"

#include <QLocale>

#include <array>
#include <cstddef>

namespace {

struct NoteField {
    QString ContactContent::*field = nullptr;
    QLatin1String name;
    std::array<bool, 3> shown{}; // by LabelColumn
};

// Outlook has columns for the other phonetic names, and none for the prefix.
// clang-format off
constexpr std::array kNoteFields{
    //                                                                                        Google Outlook vCard
    NoteField{&ContactContent::firstPhonetic,             "First Phonetic"_L1,             {true,  false, true}},
    NoteField{&ContactContent::middlePhonetic,            "Middle Phonetic"_L1,            {true,  true,  true}},
    NoteField{&ContactContent::lastPhonetic,              "Last Phonetic"_L1,              {true,  false, true}},
    NoteField{&ContactContent::organizationPhonetic,      "Organization Phonetic"_L1,      {true,  false, true}},
    NoteField{&ContactContent::firstPronunciation,        "First Pronunciation"_L1,        {true,  true,  true}},
    NoteField{&ContactContent::middlePronunciation,       "Middle Pronunciation"_L1,       {true,  true,  true}},
    NoteField{&ContactContent::lastPronunciation,         "Last Pronunciation"_L1,         {true,  true,  true}},
    NoteField{&ContactContent::organizationPronunciation, "Organization Pronunciation"_L1, {true,  true,  true}},
    NoteField{&ContactContent::previousFamilyName,        "Previous Family Name"_L1,       {true,  true,  true}},
    NoteField{&ContactContent::namePrefix,                "Prefix"_L1,                     {false, true,  false}},
};
// clang-format on

constexpr QLatin1String kBlockTitle = "\tOther Contact Info:\t"_L1;

} // namespace

QString dateText(const QString& secondsSince2001, QLatin1String format)
{
    // Not QDateTime's own text, which has the digits of the user's language.
    return QLocale::c().toString(
        CCommonUtils::buildDateTimeBase2001(secondsSince2001.toDouble()), QString(format));
}

QString dayText(const QString& secondsSince2001, QLatin1String format)
{
    return dateText(secondsSince2001, format).right(5);
}

bool holdsNoteBlock(const QString& note)
{
    return note.contains(kBlockTitle);
}

QString noteLines(const InterchangeLayout& layout, const PRContactPrivate& contact)
{
    QString lines;
    for (const NoteField& row : kNoteFields) {
        const QString& value = contact.*row.field;
        if (row.shown[static_cast<std::size_t>(layout.labels)] && !value.isEmpty()) {
            lines += filled(layout.noteLine, row.name, value);
        }
    }
    return lines;
}

QString noteBlock(const QString& lines)
{
    return lines.isEmpty() ? lines : kBlockTitle + lines;
}

QString csvNote(
    const InterchangeLayout& layout, const PRContactItem& contact, const QString& eventLine)
{
    const PRContactPrivate& content = *contact.detailContent();
    QString note = layout.escapeValue(content.note);
    if (holdsNoteBlock(content.note)) {
        return note;
    }
    QString lines = noteLines(layout, content) + eventLine;
    forEachProperty(contact, SocialProfile, [&](const PRContactProperty& profile) {
        lines += filled(layout.noteLine, layout.subValue(profile, "service"_L1),
            layout.subValue(profile, "url"_L1));
    });
    note += noteBlock(lines);
    note.replace(QChar(u'\n'), QChar(u'\t'));
    return note;
}

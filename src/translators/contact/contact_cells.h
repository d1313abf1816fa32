// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRContactItem.h"
#include "platform/literals.h"
#include "translators/contact/CContactHelper.h"
#include "translators/contact/ContactColumns.h"

#include <QString>

#include <array>

// What the CSV files of contacts show in their cells, and the blocks that both have.

/// One of the contact's texts, as it stands.
template <QString ContactContent::*kField>
QString textCell(CContactHelper& /*helper*/, const PRContactPrivate& contact)
{
    return contact.*kField;
}

/// The day of birth, "1985-04-12"; empty without one.
QString birthdayCell(CContactHelper& helper, const PRContactPrivate& contact);

/// The property's English label.
QString labelCell(CContactHelper& helper, const PRContactProperty& property);

/// The single value, as it stands.
QString valueCell(CContactHelper& helper, const PRContactProperty& property);

/// The single value as a day.
QString dayCell(CContactHelper& helper, const PRContactProperty& property);

/// A part of a composite value in one line: with a blank for each line feed.
QString lineCell(CContactHelper& helper, const PRContactProperty& property, const QString& key);

template <const QString& kKey>
QString lineCell(CContactHelper& helper, const PRContactProperty& property)
{
    return lineCell(helper, property, kKey);
}

/// Who the contact is at a messenger.
QString userCell(CContactHelper& helper, const PRContactProperty& messenger);

// clang-format off
inline constexpr std::array kPhoneColumns{
    PropertyColumn{"Phone %1 - Type"_L1,  labelCell},
    PropertyColumn{"Phone %1 - Value"_L1, valueCell},
};

inline constexpr std::array kEmailColumns{
    PropertyColumn{"E-mail %1 - Type"_L1,  labelCell},
    PropertyColumn{"E-mail %1 - Value"_L1, valueCell},
};
// clang-format on

// SPDX-License-Identifier: MIT
#pragma once

#include <array>

/// The data types in the order in which they are counted on the scale of progress and written.
// clang-format off
inline constexpr std::array kCategoryOrder{
    21, 22, 23,     // pictures and films
    2,              // contacts
    0, 1,           // messages
    3,              // calls
    29,             // calendar
    27, 28,         // notes
    30,             // reminders
    31, 32,         // recordings and ringtones
    33, 34,         // Safari
    5, 6,           // chats, each program with what belongs to it
    7, 8,
    9, 10,
    11, 12, 13,
    14, 15, 16,
    17, 18,
    19, 20,
    24, 25, 26, 35, // files of programs
    4,              // voicemail
};
// clang-format on

/// Each record of a category takes this part of the scale.
inline constexpr int kUnitsPerRecord = 100;

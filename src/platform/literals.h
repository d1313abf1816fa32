// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <QLatin1String>
#include <cstddef>

/// `"text"_L1` is a QLatin1String that is constant on every compiler.
constexpr QLatin1String operator""_L1(const char* text, std::size_t size)
{
    return QLatin1String(text, static_cast<int>(size));
}

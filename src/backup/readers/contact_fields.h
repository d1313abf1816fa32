// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRContactItem.h"

#include <span>

namespace formats {
class Statement;
}

namespace backup {

struct WantedColumn;

/// The columns of ABPerson that hold a contact's own fields.
std::span<const WantedColumn> contactColumns();

/// Fills in what a card says and the cards before it, which are shown with it as one, do not. The
/// parts of a name stay together, and those of a job: they come from the first card that has any.
/// Notes of several cards stand below each other.
void addContactFields(const formats::Statement& card, ContactContent& contact);

} // namespace backup

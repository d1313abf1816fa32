// SPDX-License-Identifier: MIT
#pragma once

#include "Database.h"

#include <initializer_list>

namespace sample {

/// The kinds of rows of a store whose tables begin with Z: number and name of each.
struct Entity {
    int number = 0;
    const char* name = nullptr;
};

/// Fills the tables that tell the kinds and the version of such a store.
void describeStore(Database& database, const QString& name, std::initializer_list<Entity> entities);

/// The 16 bytes of the UUID for `name`.
QByteArray uuidBytesFor(const QString& name);

} // namespace sample

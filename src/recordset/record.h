// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRData.h"
#include "recordset/JsonText.h"
#include "recordset/Source.h"

namespace recordset {

/// One record of a set of this data type. Null: a fault was noted.
std::unique_ptr<PRAbstractItem> readRecord(const Source& source, int dataType);

/// Writes a record of a set of this data type as an object.
void writeRecord(PRAbstractItem& item, int dataType, JsonText& out);

/// Whether a record may stand in a directory of this name.
bool isParentName(const QString& name);

} // namespace recordset

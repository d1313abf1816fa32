// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/NoteSource.h"
#include "model/PRData.h"

#include <memory>
#include <vector>

namespace backup {

/// The notes of all stores as one table (data type 27), the one that was changed last first. The
/// stores outlive it. The fifth column is the content.
std::unique_ptr<PRData> noteData(const std::vector<NoteSource*>& stores);

/// Their files (data type 28), each in a directory named for its note. The list is made when it is
/// first asked for, paths are looked up when they are.
std::unique_ptr<PRData> noteFileData(std::vector<NoteSource*> stores);

} // namespace backup

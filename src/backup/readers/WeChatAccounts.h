// SPDX-License-Identifier: MIT
#pragma once

#include "backup/readers/FoundDatabase.h"
#include "backup/readers/OpenedBackup.h"

namespace backup {

/// Adds a database of messages or contacts to the account that its path tells, and with the first
/// one of an account that account to the records of the backup. WeChat's accounts share their sets:
/// chats, their files and contacts.
void addWeChat(FoundDatabase found, OpenedBackup& opened);

} // namespace backup

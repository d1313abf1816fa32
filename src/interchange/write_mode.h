// SPDX-License-Identifier: MIT
#pragma once

/// How many files the records go to. Any other number is refused.
enum InterchangeWriteMode : int {
    OneFile = 1,
    FilePerContact = 2, ///< vCards only
};

// SPDX-License-Identifier: MIT
#pragma once

/// Makes the character set of the process UTF-8 where the user's locale has another one ("C"), so
/// that every file name can be written; the language stays. To be called before there is a
/// QCoreApplication.
void useUtf8Locale();

// SPDX-License-Identifier: MIT
#pragma once

#include "model/PRBackup.h"

/// A backup with sets of random data types, whose records are of all kinds and hold random values
/// in all fields: any well-formed text and any bytes, dates with and without milliseconds and from
/// any time, and now and then the default. The same seed gives the same backup.
PRBackup randomBackup(unsigned seed);

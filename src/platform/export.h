// SPDX-License-Identifier: MIT
#pragma once

/// Marks what the shared library offers to its host; all else is hidden.
#define DATAEXPORT_EXPORT __attribute__((visibility("default")))

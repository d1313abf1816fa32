// SPDX-License-Identifier: MIT
#pragma once

/// From now on the first SIGINT or SIGTERM is noted; the next one ends the process at once.
void catchInterrupts();

/// Whether the user, or the system, has asked the program to stop.
bool interrupted();

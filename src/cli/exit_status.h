// SPDX-License-Identifier: MIT
#pragma once

/// What the program tells its caller.
enum ExitStatus : int {
    AllDone = 0,
    SomethingFailed = 1, ///< a category, or the file of a dump, could not be written
    NotStarted = 2,      ///< wrong usage, or a source that cannot be read
    Cancelled = 130,     ///< as shells report a program that an interrupt has ended
};

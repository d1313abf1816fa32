// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

class Console;

/// The whole program. `arguments` without its name; returns one of `ExitStatus`.
int runProgram(const std::vector<std::string>& arguments, Console& console);

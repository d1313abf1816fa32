// SPDX-License-Identifier: MIT
#include "cli/Program.h"
#include "cli/StandardConsole.h"
#include "cli/interrupt.h"
#include "cli/utf8_locale.h"

#include <QCoreApplication>

int main(int argc, char** argv)
{
    useUtf8Locale();
    catchInterrupts();
    const QCoreApplication application(argc, argv);
    StandardConsole console;
    return runProgram(std::vector<std::string>(argv + 1, argv + argc), console);
}

// SPDX-License-Identifier: MIT
#include "cli/Program.h"

#include "cli/DumpCommand.h"
#include "cli/ExportCommand.h"
#include "cli/LanguageOption.h"
#include "cli/ListCommand.h"
#include "cli/exit_status.h"
#include "platform/literals.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>
#include <optional>

namespace {

// Options with their values' names and nothing else: the sentences beside them say the rest.
class HelpText final : public CLI::Formatter {
public:
    HelpText()
    {
        column_width(26);
        label("SUBCOMMAND", "COMMAND");
    }

    std::string make_option_opts(const CLI::Option* option) const override
    {
        const std::string& value = option->get_option_text();
        return value.empty() ? std::string() : " " + value;
    }
};

// The parser takes the next argument for the value of "--owner=", which is an empty one.
std::vector<std::string> withEmptyValues(const std::vector<std::string>& arguments)
{
    std::vector<std::string> split;
    bool areOptionsOver = false;
    for (const std::string& argument : arguments) {
        areOptionsOver = areOptionsOver || argument == "--";
        const bool isEmptyValue = !areOptionsOver && argument.starts_with("--")
                                  && argument.find('=') == argument.size() - 1;
        if (isEmptyValue) {
            split.push_back(argument.substr(0, argument.size() - 1));
            split.emplace_back();
        } else {
            split.push_back(argument);
        }
    }
    return split;
}

void describe(CLI::App& program)
{
    program.formatter(std::make_shared<HelpText>());
    program.option_defaults()->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    program.set_help_flag("--help", "Show this help");
    program.set_version_flag(
        "--version", std::string("dataexport " DATAEXPORT_VERSION), "Show the version");
    program.require_subcommand(1);
    program.footer("Exit status: 0 all done, 1 something could not be written, 2 wrong usage or\n"
                   "unreadable source, 130 cancelled.");
}

bool isMissing(const CLI::Error& error)
{
    return error.get_exit_code() == static_cast<int>(CLI::ExitCodes::RequiredError);
}

// The status with which the program ends here: help and version are shown, errors told.
std::optional<int> parse(CLI::App& program, std::vector<std::string> arguments, Console& console)
{
    std::ranges::reverse(arguments); // the parser takes them from the back
    try {
        program.parse(std::move(arguments));
    } catch (const CLI::CallForHelp&) {
        console.print(QString::fromStdString(program.help()).trimmed());
        return AllDone;
    } catch (const CLI::CallForVersion& version) {
        console.print(QString::fromUtf8(version.what()));
        return AllDone;
    } catch (const CLI::Error& error) {
        const QString what = program.get_subcommands().empty() && isMissing(error)
                                 ? QStringLiteral("a command is wanted: list, export or dump")
                                 : QString::fromUtf8(error.what());
        console.error(what + " (--help tells more)"_L1);
        return NotStarted;
    }
    return std::nullopt;
}

} // namespace

int runProgram(const std::vector<std::string>& arguments, Console& console)
{
    CLI::App program(
        "Turns the backup of an iPhone into files that people can read.", "dataexport");
    describe(program);
    ListCommand list(program, console);
    ExportCommand exportFiles(program, console);
    DumpCommand dump(program, console);
    LanguageOption language;
    for (CLI::App* command : program.get_subcommands({})) {
        command->group("Commands");
        language.addTo(*command);
    }
    if (const auto status = parse(program, withEmptyValues(arguments), console)) {
        return *status;
    }
    // First of all: whatever a command reads or writes may ask for translations.
    const QString objection = language.install();
    if (!objection.isEmpty()) {
        console.error(objection);
        return NotStarted;
    }
    const std::array<Command*, 3> commands{&list, &exportFiles, &dump};
    // The parser has seen to it that there is one.
    const auto* const chosen = std::ranges::find_if(commands, &Command::isChosen);
    return (*chosen)->run();
}

#include "cli/manual_page.h"
#include "cli/subcommands.h"
#include "session/session.h"

#include <CLI/CLI.hpp>

#include <clocale>
#include <csignal>
#include <cstdio>

// The one file that knows how a command line is parsed.
namespace dorvan::cli {

namespace {

constexpr int WrongUsage = 2;

constexpr const char* Description =
    "Dorvan without a screen: tables of similarities to matrices and Czekanowski's diagrams";

void AddOption(CLI::App& command, const Option& option) {
    if (option.IsFlag()) {
        command.add_flag_callback(
            option.Name, [take = option.Take] { take(""); }, option.Help);
        return;
    }
    auto* added = command.add_option(
        option.Name, [](const CLI::results_t&) { return true; }, option.Help);
    added->type_name(option.Type);
    if (option.IsArgument()) added->required();
    if (!option.Group.empty()) added->group(option.Group);
    if (!option.OneOf.empty()) added->check(CLI::IsMember(option.OneOf));
    added->check(CLI::Validator([take = option.Take](std::string& text) { return take(text); }, ""));
}

void AddSubcommand(CLI::App& program, const Subcommand& subcommand) {
    auto* command = program.add_subcommand(subcommand.Name, subcommand.Help);
    for (const auto& option : subcommand.Takes.All()) AddOption(*command, option);
    command->footer(subcommand.Footer);
    if (!subcommand.Inner.empty()) command->require_subcommand(1);
    for (const auto& inner : subcommand.Inner) AddSubcommand(*command, inner);
}

int RunChosen(const CLI::App& program, const std::vector<Subcommand>& subcommands) {
    for (const auto& subcommand : subcommands) {
        if (!program.got_subcommand(subcommand.Name)) continue;
        if (subcommand.Inner.empty()) return subcommand.Run();
        return RunChosen(*program.get_subcommand(subcommand.Name), subcommand.Inner);
    }
    return WrongUsage;
}

int RunProgram(int argumentCount, char** arguments) {
    const auto subcommands = Subcommands();
    CLI::App program(Description);
    program.set_version_flag("--version", MainCaption(Version{}));
    program.require_subcommand(1);
    for (const auto& subcommand : subcommands) AddSubcommand(program, subcommand);
    program.footer("dorvan-cli SUBCOMMAND --help shows options and examples.\n"
                   "Exit status: 0 done, 1 refused or failed, 2 wrong usage.");
    program
        .add_flag_callback(
            "--manual",
            [&subcommands] {
                const auto page =
                    ManualPage(Description, subcommands, MainCaption(Version{}), DORVAN_RELEASE_DATE);
                std::fputs(page.c_str(), stdout);
                throw CLI::Success();
            },
            "print the manual page, in roff")
        ->group("");
    try {
        program.parse(argumentCount, arguments);
    } catch (const CLI::Success& done) {
        return program.exit(done);
    } catch (const CLI::ParseError& error) {
        std::fprintf(stderr, "dorvan-cli: %s\n", error.what());
        return WrongUsage;
    }
    return RunChosen(program, subcommands);
}

} // namespace

} // namespace dorvan::cli

int main(int argumentCount, char** arguments) {
    std::setlocale(LC_ALL, "");
    std::signal(SIGXFSZ, SIG_IGN); // the write fails instead, which is told
    return dorvan::cli::RunProgram(argumentCount, arguments);
}

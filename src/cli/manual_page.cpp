#include "cli/manual_page.h"

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include <iterator>
#include <sstream>

namespace dorvan::cli {

namespace {

// Text as roff shows it to the letter.
std::string Plain(const std::string& text) {
    std::string plain;
    for (const char character : text) {
        if (character == '\\')
            plain += "\\e";
        else if (character == '-')
            plain += "\\-";
        else
            plain += character;
    }
    return plain.starts_with('.') || plain.starts_with('\'') ? "\\&" + plain : plain;
}

class Page {
public:
    template <class... Arguments>
    void Line(fmt::format_string<Arguments...> format, Arguments&&... arguments) {
        fmt::format_to(std::back_inserter(text_), format, std::forward<Arguments>(arguments)...);
        text_ += '\n';
    }

    // Line by line, as it stands; an indent of examples goes.
    void Verbatim(const std::string& text) {
        if (text.empty()) return;
        Line(".PP\n.EX");
        std::istringstream lines(text);
        for (std::string line; std::getline(lines, line);) Line("{}", Plain(line));
        Line(".EE");
    }

    // What an option or positional argument is called, and what it says of itself.
    void Option(const CLI::Option& option) {
        const bool positional = option.get_positional();
        Line(".TP\n.{} {}", positional ? "I" : "B", Plain(option.get_name(positional)));
        Line("{}", Plain(option.get_description()));
    }

    void Subcommand(const CLI::App& command) {
        Line(".SS dorvan\\-cli {}", Plain(command.get_name()));
        Line("{}.", Plain(command.get_description()));
        for (const bool positionals : {true, false})
            for (const auto* option : command.get_options(nullptr))
                if (option->get_positional() == positionals && option->get_name() != "--help")
                    Option(*option);
        Verbatim(command.get_footer());
    }

    std::string Text() && { return std::move(text_); }

private:
    std::string text_;
};

} // namespace

std::string ManualPage(const CLI::App& program, const std::string& version, const std::string& date) {
    Page page;
    page.Line(".TH DORVAN\\-CLI 1 \"{}\" \"{}\" \"User Commands\"", date, version);
    page.Line(".SH NAME\ndorvan\\-cli \\- make, order and draw diagrams of similarities without a screen");
    page.Line(".SH SYNOPSIS\n.B dorvan\\-cli\n.I SUBCOMMAND\n.RI [ OPTION ...]\n.IR FILE ...");
    page.Line(".SH DESCRIPTION\n{}.", Plain(program.get_description()));
    page.Line(".SH SUBCOMMANDS");
    for (const auto* command : program.get_subcommands(nullptr))
        if (!command->get_name().empty()) page.Subcommand(*command);
    page.Line(".SH EXIT STATUS\n0 when the work was done, 1 when it was refused or failed (one line on "
              "standard error "
              "says why), 2 for wrong usage.");
    page.Line(".SH SEE ALSO\n.BR dorvan (1)");
    return std::move(page).Text();
}

} // namespace dorvan::cli

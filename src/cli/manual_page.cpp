#include "cli/manual_page.h"

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

    // What an option or argument is called (of "-y,--yes" the longer name), and what it says of itself.
    void Describe(const Option& option) {
        Line(".TP\n.{} {}", option.IsArgument() ? "I" : "B",
             Plain(option.Name.substr(option.Name.find(',') + 1)));
        Line("{}", Plain(option.Help));
    }

    void Describe(const Subcommand& subcommand, const std::string& group = {}) {
        const std::string name = group + subcommand.Name;
        Line(".SS dorvan\\-cli {}", Plain(name));
        Line("{}.", Plain(subcommand.Help));
        for (const bool arguments : {true, false})
            for (const auto& option : subcommand.Takes.All())
                if (option.IsArgument() == arguments) Describe(option);
        Verbatim(subcommand.Footer);
        for (const auto& inner : subcommand.Inner) Describe(inner, name + " ");
    }

    std::string Text() && { return std::move(text_); }

private:
    std::string text_;
};

} // namespace

std::string ManualPage(const std::string& description, const std::vector<Subcommand>& subcommands,
                       const std::string& version, const std::string& date) {
    Page page;
    page.Line(".TH DORVAN\\-CLI 1 \"{}\" \"{}\" \"User Commands\"", date, version);
    page.Line(".SH NAME\ndorvan\\-cli \\- make, order and draw diagrams of similarities without a screen");
    page.Line(".SH SYNOPSIS\n.B dorvan\\-cli\n.I SUBCOMMAND\n.RI [ OPTION ...]\n.IR FILE ...");
    page.Line(".SH DESCRIPTION\n{}.", Plain(description));
    page.Line(".SH SUBCOMMANDS");
    for (const auto& subcommand : subcommands) page.Describe(subcommand);
    page.Line(".SH EXIT STATUS\n0 when the work was done, 1 when it was refused or failed (one line on "
              "standard error "
              "says why), 2 for wrong usage.");
    page.Line(".SH SEE ALSO\n.BR dorvan (1)");
    return std::move(page).Text();
}

} // namespace dorvan::cli

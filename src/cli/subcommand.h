#pragma once

#include <charconv>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <system_error>
#include <type_traits>
#include <utility>
#include <vector>

// A subcommand of dorvan-cli as data: what its user can say, and what it does then. Whoever parses the
// command line knows no subcommand by name; a subcommand knows no parser.
namespace dorvan::cli {

struct Option {
    std::string Name; // "--measure", "-y,--yes", or "SHEET" for an argument by its place
    std::string Help;
    std::string Type;               // what the help calls the text, such as "TEXT"
    std::vector<std::string> OneOf; // the texts that will do; empty: any that `Take` takes
    std::string Group;              // its heading in the help; empty: the common one
    // Keeps the user's text; the result tells what is wrong with it, empty if nothing is.
    std::function<std::string(const std::string&)> Take;

    bool IsArgument() const { return !Name.starts_with('-'); } // and has to be there
    bool IsFlag() const { return Type.empty(); }               // is there or not, without a text
};

// The options of a subcommand, in the order of their adding. The variables that they fill have to live as
// long as the subcommand.
class Options {
public:
    void Argument(std::string name, std::string& text, std::string help);
    void Flag(std::string name, bool& given, std::string help);
    void Off(std::string name, std::optional<bool>& given, std::string help); // a flag that says no
    void Text(std::string name, std::string& text, std::string help);
    void OneOf(std::string name, std::string& text, std::vector<std::string> choices, std::string help);
    void OneOf(std::string name, std::vector<std::string> choices,
               std::function<void(const std::string&)> take, std::string help);
    // One of some names, which stand for 1, 2 and so on.
    void Numbered(std::string name, std::optional<std::int16_t>& number, std::vector<std::string> names,
                  std::string help);

    // With a point, from `least` to `most`.
    void Decimal(std::string name, double& number, double least, double most, std::string help);

    template <class Integer>
    void Number(std::string name, std::optional<Integer>& number, std::string help,
                std::function<bool(Integer)> fits = {}) {
        Checked(
            std::move(name), std::is_signed_v<Integer> ? "INT" : "UINT",
            [&number, fits = std::move(fits)](const std::string& text) -> std::string {
                Integer value = 0;
                const char* end = text.data() + text.size();
                const auto [stop, error] = std::from_chars(text.data(), end, value);
                if (error != std::errc() || stop != end) return "no whole number: " + text;
                if (fits && !fits(value)) return text + " is none that it takes";
                number = value;
                return {};
            },
            std::move(help));
    }

    // Any other: `take` keeps the text, or tells what is wrong with it.
    void Checked(std::string name, std::string type, std::function<std::string(const std::string&)> take,
                 std::string help);

    // The heading of those that are added from now on.
    void Under(std::string heading) { group_ = std::move(heading); }

    const std::vector<Option>& All() const { return all_; }

private:
    std::vector<Option> all_;
    std::string group_;
};

struct Subcommand {
    std::string Name;
    std::string Help;
    Options Takes = {};
    std::string Footer = {}; // examples
    // The exit status: 0 done, 1 refused or failed with a line on standard error, 2 for wrong usage.
    std::function<int()> Run = {};
    std::vector<Subcommand> Inner = {}; // of a group, of which one has to be named; it has no more than these
};

} // namespace dorvan::cli

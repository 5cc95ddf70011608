#include "cli/subcommand.h"

#include <algorithm>

namespace dorvan::cli {

namespace {

auto IntoText(std::string& text) {
    return [&text](const std::string& given) {
        text = given;
        return std::string();
    };
}

} // namespace

void Options::Argument(std::string name, std::string& text, std::string help) {
    Checked(std::move(name), "TEXT", IntoText(text), std::move(help));
}

void Options::Text(std::string name, std::string& text, std::string help) {
    Checked(std::move(name), "TEXT", IntoText(text), std::move(help));
}

void Options::OneOf(std::string name, std::string& text, std::vector<std::string> choices, std::string help) {
    Checked(std::move(name), "TEXT", IntoText(text), std::move(help));
    all_.back().OneOf = std::move(choices);
}

void Options::OneOf(std::string name, std::vector<std::string> choices,
                    std::function<void(const std::string&)> take, std::string help) {
    const auto taken = [take = std::move(take)](const std::string& text) {
        take(text);
        return std::string();
    };
    Checked(std::move(name), "TEXT", taken, std::move(help));
    all_.back().OneOf = std::move(choices);
}

void Options::Numbered(std::string name, std::optional<std::int16_t>& number, std::vector<std::string> names,
                       std::string help) {
    OneOf(
        std::move(name), names,
        [&number, names](const std::string& text) {
            const auto found = std::find(names.begin(), names.end(), text);
            number = static_cast<std::int16_t>(found - names.begin() + 1);
        },
        std::move(help));
}

void Options::Decimal(std::string name, double& number, double least, double most, std::string help) {
    const auto take = [&number, least, most](const std::string& text) -> std::string {
        double value = 0;
        const char* end = text.data() + text.size();
        const auto [stop, error] = std::from_chars(text.data(), end, value);
        if (error != std::errc() || stop != end) return "no number: " + text;
        if (!(value >= least && value <= most)) return "out of range: " + text;
        number = value;
        return {};
    };
    Checked(std::move(name), "FLOAT", take, std::move(help));
}

void Options::Flag(std::string name, bool& given, std::string help) {
    const auto take = [&given](const std::string&) {
        given = true;
        return std::string();
    };
    Checked(std::move(name), "", take, std::move(help));
}

void Options::Off(std::string name, std::optional<bool>& given, std::string help) {
    const auto take = [&given](const std::string&) {
        given = false;
        return std::string();
    };
    Checked(std::move(name), "", take, std::move(help));
}

void Options::Checked(std::string name, std::string type, std::function<std::string(const std::string&)> take,
                      std::string help) {
    all_.push_back({std::move(name), std::move(help), std::move(type), {}, group_, std::move(take)});
}

} // namespace dorvan::cli

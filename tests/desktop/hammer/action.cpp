#include "hammer/action.h"

#include <sstream>

namespace dorvan::test {

std::string Action::Line() const {
    std::ostringstream line;
    line << verb;
    for (const int number : numbers) line << ' ' << number;
    if (!text.empty()) line << ' ' << text;
    return line.str();
}

std::optional<Action> Action::Parse(const std::string& line) {
    std::istringstream words(line);
    Action action;
    words >> action.verb;
    for (int& number : action.numbers) words >> number;
    if (!words) return std::nullopt;
    std::getline(words >> std::ws, action.text);
    return action;
}

} // namespace dorvan::test

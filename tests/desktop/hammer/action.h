#pragma once

#include <array>
#include <optional>
#include <string>

namespace dorvan::test {

// One thing that a user does, as a line of a list that replays: "click 310 205 1", "item mnuTile".
// Places are pixels inside the window that has the user's attention; a child window is told by its place in
// the order of creation, and counts round.
struct Action {
    std::string verb;
    std::array<int, 4> numbers{};
    std::string text; // the last word of the line: the name of an item, of a file, of a button

    std::string Line() const;
    static std::optional<Action> Parse(const std::string& line);

    bool operator==(const Action&) const = default;
};

} // namespace dorvan::test

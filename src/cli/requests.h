#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace dorvan::cli {

// What the user asks of the dialogs, as the command line gives it; an empty field leaves the dialog's own
// choice.
struct Choices {
    std::string measure;    // a name such as "henzel", or a number 1 to 10
    std::string parameterP; // text of the customized measure's dialog
    std::string parameterR;
    std::string order;                          // none, simple, genetic, ravelin, best
    std::string type;                           // greyscale, dots, classic
    std::string generations;                    // an item of the dialog's list
    std::string variants;                       // likewise
    std::map<std::string, std::string> ravelin; // text by field, such as {"Text4", "50"}
};

struct Surroundings {
    std::optional<std::uint64_t> seed; // of the random generator; from the clock when not given
    std::optional<int> codePage;       // of files; from the locale when not given
    bool yes = false;                  // the answer to a question; refused when not given
};

// The code number of a measure's name or number text; nothing for another text.
std::optional<std::int16_t> MeasureNumber(const std::string& text);

} // namespace dorvan::cli

#include "sheet/sheet_values.h"

#include "numbers/text.h"

#include <fmt/format.h>

namespace dorvan {

std::string DataErrorText(std::int32_t record, std::int32_t variable) {
    return fmt::format("Data Error. Row={}, Col={}", SignedText(record), SignedText(variable));
}

} // namespace dorvan

#include "files/file_fault.h"

#include "numbers/text.h"

#include <fmt/format.h>

#include <algorithm>

namespace dorvan {

FileFault FileFault::WrongSection(std::string_view section) {
    return {Place::Section, 0, std::string(section)};
}

FileFault FileFault::UnexpectedSymbol(std::string_view section) {
    return {Place::Symbol, 0, std::string(section)};
}

FileFault FileFault::AtLine(std::int64_t line, std::string reason) {
    return {Place::Line, line, std::move(reason)};
}

FileFault FileFault::AtField(std::int64_t line, std::int64_t field, std::string reason) {
    return {Place::Line, line, std::move(reason), fmt::format("{}", field)};
}

FileFault FileFault::AtRecord(std::int64_t record, std::string_view field, std::string reason) {
    return {Place::Record, record, std::move(reason), std::string(field)};
}

FileFault FileFault::AtByte(std::int64_t byte, std::string reason) {
    return {Place::Byte, byte, std::move(reason)};
}

FileFault FileFault::OfWholeFile(std::string reason) { return {Place::File, 0, std::move(reason)}; }

std::string FileFault::Describe(std::string_view path) const {
    const std::string field = field_.empty() ? std::string() : fmt::format(", field {}", field_);
    switch (place_) {
    case Place::Section: return fmt::format("Error in {} section of file: {}", reason_, path);
    case Place::Symbol: return fmt::format("Unexpected symbol in {} section.", reason_);
    case Place::Line: return fmt::format("Line {}{}: {}. File: {}", where_, field, reason_, path);
    case Place::Record: return fmt::format("Record {}{}: {}. File: {}", where_, field, reason_, path);
    case Place::Byte: return fmt::format("Byte {}: {}. File: {}", where_, reason_, path);
    default: return fmt::format("{}. File: {}", reason_, path);
    }
}

std::string WhyNoNumber(const RuntimeFailure& failure, std::string_view field) {
    constexpr std::size_t Longest = 40; // characters
    std::string shown(LeftCharacters(field, Longest));
    const bool cut = shown.size() < field.size();
    std::replace_if(
        shown.begin(), shown.end(), [](char sign) { return static_cast<unsigned char>(sign) < ' '; }, '?');
    return fmt::format("\"{}{}\" {}", shown, cut ? "..." : "",
                       failure.Kind() == Failure::Overflow ? "is out of range" : "is not a number");
}

} // namespace dorvan

#include "files/file_fault.h"

#include <fmt/format.h>

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

FileFault FileFault::AtByte(std::int64_t byte, std::string reason) {
    return {Place::Byte, byte, std::move(reason)};
}

FileFault FileFault::OfWholeFile(std::string reason) { return {Place::File, 0, std::move(reason)}; }

std::string FileFault::Describe(std::string_view path) const {
    switch (place_) {
    case Place::Section: return fmt::format("Error in {} section of file: {}", reason_, path);
    case Place::Symbol: return fmt::format("Unexpected symbol in {} section.", reason_);
    case Place::Line: return fmt::format("Line {}: {}. File: {}", where_, reason_, path);
    case Place::Byte: return fmt::format("Byte {}: {}. File: {}", where_, reason_, path);
    default: return fmt::format("{}. File: {}", reason_, path);
    }
}

} // namespace dorvan

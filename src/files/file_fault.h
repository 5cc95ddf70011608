#pragma once

#include "numbers/runtime_failure.h"

#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

namespace dorvan {

// Why a document file cannot be read, and where. Readers throw it; the operation that opens the file turns it
// into one message.
class FileFault : public std::exception {
public:
    // A line that should name a section ("HEADER") does not.
    static FileFault WrongSection(std::string_view section);
    // The lone line of a section without content is not "N/A".
    static FileFault UnexpectedSymbol(std::string_view section);
    static FileFault AtLine(std::int64_t line, std::string reason); // lines and bytes count from 1
    static FileFault AtField(std::int64_t line, std::int64_t field, std::string reason); // from 1
    static FileFault AtRecord(std::int64_t record, std::string_view field, std::string reason);
    static FileFault AtByte(std::int64_t byte, std::string reason);
    static FileFault OfWholeFile(std::string reason);

    // A fault that has a text of its own; any other one names what is wrong, where, and the file.
    bool HasOwnText() const { return place_ == Place::Section || place_ == Place::Symbol; }

    // The message for the file that was read: one line.
    std::string Describe(std::string_view path) const;

    // The section, or the reason without its place.
    const char* what() const noexcept override { return reason_.c_str(); }
    // Line, byte or record; 0 for the whole file or a section.
    std::int64_t Where() const { return where_; }

private:
    enum class Place { Section, Symbol, Line, Record, Byte, File };
    FileFault(Place place, std::int64_t where, std::string reason, std::string field = {})
        : place_(place), where_(where), reason_(std::move(reason)), field_(std::move(field)) {}

    Place place_;
    std::int64_t where_;
    std::string reason_;
    std::string field_; // number or name of the field within a line or record; empty: the whole of it
};

// Why a field (UTF-8) could not be read as a number, with the field quoted: short, and without control
// characters.
std::string WhyNoNumber(const RuntimeFailure& failure, std::string_view field);

} // namespace dorvan

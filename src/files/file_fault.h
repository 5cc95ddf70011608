#pragma once

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
    static FileFault AtByte(std::int64_t byte, std::string reason);
    static FileFault OfWholeFile(std::string reason);

    // A fault that has a text of its own; any other one names what is wrong, where, and the file.
    bool HasOwnText() const { return place_ == Place::Section || place_ == Place::Symbol; }

    // The message for the file that was read: one line.
    std::string Describe(std::string_view path) const;

    // The section, or the reason without its place.
    const char* what() const noexcept override { return reason_.c_str(); }
    std::int64_t Where() const { return where_; } // line or byte; 0 for the whole file or a section

private:
    enum class Place { Section, Symbol, Line, Byte, File };
    FileFault(Place place, std::int64_t where, std::string reason)
        : place_(place), where_(where), reason_(std::move(reason)) {}

    Place place_;
    std::int64_t where_;
    std::string reason_;
};

} // namespace dorvan

#include "files/line_writer.h"

#include "numbers/number_text.h"
#include "numbers/text.h"

#include <fmt/format.h>

#include <iterator>

namespace dorvan {

namespace {
constexpr std::string_view LineEnd = "\r\n";
}

void LineWriter::Begin(std::string_view kind) {
    Line(fmt::format("Dorvan {} {}.{}", kind, text_.Build.Major, text_.Build.Minor));
    Section("HEADER");
}

void LineWriter::Section(std::string_view section) {
    fmt::format_to(std::back_inserter(bytes_), "{}[{}]{}", LineEnd, section, LineEnd);
}

void LineWriter::Append(std::string_view text) {
    if (text.find_first_of(LineEnd) == std::string_view::npos) {
        bytes_ += text_.Codes.FromUtf8(text);
        return;
    }
    const std::string lineFeeds = ReplaceAll(ReplaceAll(text, LineEnd, "\n"), "\r", "\n");
    bytes_ += text_.Codes.FromUtf8(ReplaceAll(lineFeeds, "\n", " "));
}

void LineWriter::Line(std::string_view text) {
    Append(text);
    bytes_ += LineEnd;
}

void LineWriter::Value(std::string_view key, std::string_view text) {
    bytes_ += key;
    bytes_ += '=';
    Line(text);
}

void LineWriter::Value(std::string_view key, int number) {
    fmt::format_to(std::back_inserter(bytes_), "{}={}{}", key, number, LineEnd);
}

void LineWriter::Value(std::string_view key, float number, std::string_view pattern) {
    Value(key, FormatPattern(number, pattern, text_.DecimalSeparator));
}

void LineWriter::Field(std::string_view ascii) {
    if (inRow_) bytes_ += ';';
    inRow_ = true;
    bytes_ += ascii;
}

void LineWriter::Field(float value, std::string_view pattern) {
    Field(FormatPattern(value, pattern, text_.DecimalSeparator));
}

void LineWriter::EndRow() {
    bytes_ += LineEnd;
    inRow_ = false;
}

} // namespace dorvan

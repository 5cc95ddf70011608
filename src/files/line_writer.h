#pragma once

#include "files/file_text.h"

#include <string>
#include <string_view>

namespace dorvan {

// Builds the bytes of a text file: lines in the code page, ended by CR LF.
class LineWriter {
public:
    explicit LineWriter(const FileText& text) : text_(text) {}

    // "Dorvan DATA 3.3", an empty line and "[HEADER]".
    void Begin(std::string_view kind);
    void Section(std::string_view section); // an empty line and "[DATA]"

    // A text that goes on over several lines becomes one, a blank in the place of each line end: the readers
    // find everything by its line.
    void Line(std::string_view text);
    void Value(std::string_view key, std::string_view text);
    void Value(std::string_view key, int number);
    void Value(std::string_view key, float number, std::string_view pattern);

    // One line of fields with ";" between them; `pattern` as FormatPattern knows it.
    void Field(std::string_view ascii);
    void Field(float value, std::string_view pattern);
    void EndRow();

    std::string Take() { return std::move(bytes_); }

private:
    void Append(std::string_view text);

    FileText text_;
    std::string bytes_;
    bool inRow_ = false;
};

} // namespace dorvan

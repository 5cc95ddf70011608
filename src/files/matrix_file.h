#pragma once

#include "files/file_text.h"
#include "files/line_cursor.h"
#include "session/documents.h"

#include <cstdint>
#include <string>
#include <string_view>

// The bytes of a matrix file (.mtx): the names of n records and all n by n distances.
namespace dorvan {

// The first line tells the text format from the older binary one. Fails with a FileFault for an empty file.
bool IsCurrentMatrixFile(std::string_view bytes);

// Reads the text format in two steps, since the opener takes its slot between them.
class MatrixFileReader {
public:
    // Reads the header. Fails with a FileFault.
    MatrixFileReader(std::string_view bytes, const FileText& text);

    const std::string& Description() const { return description_; }

    // Sets `Size` and fills `Names` (n, at most 15 characters each) and `Cells` (n by n, the plain text of
    // 32-bit floats). Fails with a FileFault; `document` then holds what was read so far.
    void ReadInto(DistanceMatrix& document);

private:
    SectionReader reader_;
    std::string description_;
    HeaderCount size_;
};

// The older format, whole. Fills `document` and returns the description. Fails with a FileFault.
std::string ParseOldMatrixFile(std::string_view bytes, const FileText& text, DistanceMatrix& document);

// Fails with TypeMismatch or Overflow for a cell that is not a number.
std::string ComposeMatrixFile(const DistanceMatrix& document, std::string_view description,
                              const FileText& text);

} // namespace dorvan

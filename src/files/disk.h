#pragma once

#include "numbers/runtime_failure.h"

#include <stdexcept>
#include <string>
#include <string_view>

// Whole files in and out.
namespace dorvan {

// What the files keep in the session.
struct FileValues {
    std::string SilentFailure; // why the last writer that tells nothing could not write; empty: it could
};

// The bytes of a regular file. Fails with a FileFault that says why it cannot be read.
std::string LoadFile(const std::string& path);

// A file could not be written. what() is the system's text for the error number, or a text of its own.
class FileError : public std::runtime_error {
public:
    explicit FileError(int errorNumber);
    FileError(int errorNumber, const std::string& text);
    int Number() const { return number_; }

private:
    int number_;
};

// Puts a file of these bytes in the place of `path`, a file or none, and changes nothing but the content: see
// NewFile. On failure (FileError) the file that was there is whole and nothing is left beside it.
void ReplaceFile(const std::string& path, std::string_view bytes);

// A new file for its owner alone. Fails with a FileError, EEXIST where a file stands already.
void WriteNewFile(const std::string& path, std::string_view bytes);

// The run-time failure that a writer without a recovery of its own ends with.
RuntimeFailure FailureOfWriting(const FileError& error, std::string_view path);

} // namespace dorvan

#pragma once

#include "files/disk.h"

#include <string>
#include <string_view>

namespace dorvan {

// A file in the making: written beside its target and put in the target's place when it is whole, so that
// half a file never stands there. Without TakeThePlace it goes without a trace; what a killed process left
// behind goes with the next one in the same folder. A symbolic link stays one, its target is replaced. In a
// folder that may not be written, a file that may is written in place. What is neither a file nor missing (a
// device, a pipe) is refused. Each operation fails with a FileError.
class NewFile {
public:
    explicit NewFile(const std::string& path);
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    // The file that stands in the target's place goes now, whatever becomes of the new one. Otherwise it
    // stays, whole, until TakeThePlace, and the new one takes its owner, its rights and its attributes.
    void DeleteFormer();

    // Writes the whole of it, flushes it to the disk and renames it. Once.
    void TakeThePlace(std::string_view bytes);

    // The same for a file that only its owner may read, and never over another: fails with EEXIST.
    void TakeFreePlace(std::string_view bytes);

private:
    int Create();
    void WriteBeside(std::string_view bytes);
    void OpenInPlace();
    void WriteInPlace(std::string_view bytes);

    std::string target_;
    std::string beside_; // empty: in place, or no longer there
    int descriptor_ = -1;
    bool former_ = false; // a file stands in the target's place
};

} // namespace dorvan

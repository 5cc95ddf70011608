#include "files/disk.h"

#include "files/file_fault.h"
#include "files/new_file.h"

#include <fmt/format.h>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace dorvan {

namespace {

std::string ErrorText(int errorNumber) { return std::generic_category().message(errorNumber); }

class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int Number() const { return number_; }
    bool IsOpen() const { return number_ >= 0; }

private:
    int number_;
};

[[noreturn]] void FailReading(int errorNumber) {
    throw FileFault::OfWholeFile(fmt::format("The file cannot be read: {}", ErrorText(errorNumber)));
}

Failure FailureOfErrorNumber(int errorNumber) {
    switch (errorNumber) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG: return Failure::DiskFull;
    case EACCES:
    case EPERM: return Failure::PermissionDenied;
    case ENOENT:
    case ENOTDIR: return Failure::PathNotFound;
    case EISDIR:
    case EINVAL: // no regular file
    case EROFS:
    case ELOOP:
    case ENAMETOOLONG: return Failure::PathFileAccessError;
    default: return Failure::DeviceInputOutputError;
    }
}

} // namespace

std::string LoadFile(const std::string& path) {
    // Without O_NONBLOCK the opening of a named pipe would wait for its writer.
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status {};
    if (!file.IsOpen() || ::fstat(file.Number(), &status) != 0) FailReading(errno);
    if (S_ISDIR(status.st_mode)) FailReading(EISDIR);
    if (!S_ISREG(status.st_mode)) throw FileFault::OfWholeFile("This is not a regular file");

    std::string bytes(static_cast<std::size_t>(status.st_size) + 1, '\0'); // one more shows the end at once
    std::size_t size = 0;
    for (;;) {
        if (size == bytes.size()) bytes.resize(size + 4096);
        const ssize_t got = ::read(file.Number(), bytes.data() + size, bytes.size() - size);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) FailReading(errno);
        if (got == 0) break;
        size += static_cast<std::size_t>(got);
    }
    bytes.resize(size);
    return bytes;
}

FileError::FileError(int errorNumber) : FileError(errorNumber, ErrorText(errorNumber)) {}

FileError::FileError(int errorNumber, const std::string& text)
    : std::runtime_error(text), number_(errorNumber) {}

void ReplaceFile(const std::string& path, std::string_view bytes) { NewFile(path).TakeThePlace(bytes); }

void WriteNewFile(const std::string& path, std::string_view bytes) { NewFile(path).TakeFreePlace(bytes); }

RuntimeFailure FailureOfWriting(const FileError& error, std::string_view path) {
    return RuntimeFailure(FailureOfErrorNumber(error.Number()), fmt::format("{} ({})", path, error.what()));
}

} // namespace dorvan

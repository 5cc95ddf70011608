#include "files/disk.h"

#include "files/file_fault.h"

#include <fmt/format.h>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace dorvan {

namespace {

namespace fs = std::filesystem;

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

    // Closes now, so that an error that shows only here is seen.
    int Close() { return ::close(std::exchange(number_, -1)); }

private:
    int number_;
};

[[noreturn]] void FailReading(int errorNumber) {
    throw FileFault::OfWholeFile(fmt::format("The file cannot be read: {}", ErrorText(errorNumber)));
}

// The path behind the symbolic links at its end, which need not exist.
fs::path BehindLinks(fs::path path) {
    for (int links = 0; links < 40; ++links) {
        std::error_code none;
        if (!fs::is_symlink(fs::symlink_status(path, none))) return path;
        path = path.parent_path() / fs::read_symlink(path, none);
    }
    throw FileError(ELOOP);
}

void WriteAll(int descriptor, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) throw FileError(errno);
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

// A new file with a name that no other has, beside `target`. Removed at the end of its life unless it took
// the place of `target`.
class NewFileBeside {
public:
    explicit NewFileBeside(const fs::path& target) : target_(target), file_(Create()) {
        if (!file_.IsOpen()) throw FileError(errno);
    }
    ~NewFileBeside() {
        if (!path_.empty()) ::unlink(path_.c_str());
    }

    void Write(std::string_view bytes) { WriteAll(file_.Number(), bytes); }

    void TakePermissionsOf(const struct stat& replaced) {
        const bool ownerKept = ::fchown(file_.Number(), replaced.st_uid, replaced.st_gid) == 0;
        // Only an administrator can give a file away; a new owner gets no more than the usual rights.
        const mode_t rights = replaced.st_mode & (ownerKept ? 07777 : 0777);
        if (::fchmod(file_.Number(), rights) != 0) throw FileError(errno);
    }

    void TakeThePlace() {
        if (::fsync(file_.Number()) != 0 || file_.Close() != 0) throw FileError(errno);
        if (::rename(path_.c_str(), target_.c_str()) != 0) throw FileError(errno);
        path_.clear();
    }

private:
    int Create() {
        for (int attempt = 0; attempt < 1000; ++attempt) {
            path_ = target_.parent_path() / fmt::format(".dorvan-{}-{}.tmp", ::getpid(), attempt);
            const int number = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
            if (number >= 0) return number;
            if (errno != EEXIST) break;
        }
        path_.clear();
        return -1;
    }

    fs::path target_;
    fs::path path_;
    Descriptor file_;
};

void WriteInPlace(const fs::path& device, std::string_view bytes) {
    Descriptor file(::open(device.c_str(), O_WRONLY | O_CLOEXEC));
    if (!file.IsOpen()) throw FileError(errno);
    WriteAll(file.Number(), bytes);
    if (file.Close() != 0) throw FileError(errno);
}

// The new name reaches the disk with its folder. The file itself is safe by now, so an error is no failure.
void FlushFolder(const fs::path& file) {
    const fs::path folder = file.parent_path().empty() ? fs::path(".") : file.parent_path();
    const Descriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.IsOpen()) ::fsync(descriptor.Number());
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

FileError::FileError(int errorNumber) : std::runtime_error(ErrorText(errorNumber)), number_(errorNumber) {}

void ReplaceFile(const std::string& path, std::string_view bytes) {
    if (path.empty()) throw FileError(ENOENT);
    const fs::path target = BehindLinks(path);
    struct stat replaced {};
    const bool exists = ::stat(target.c_str(), &replaced) == 0;
    if (exists && S_ISDIR(replaced.st_mode)) throw FileError(EISDIR);
    if (exists && !S_ISREG(replaced.st_mode)) return WriteInPlace(target, bytes);
    // A rename would not ask whether the file itself may be written.
    if (exists && ::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) throw FileError(errno);

    NewFileBeside file(target);
    file.Write(bytes);
    if (exists) file.TakePermissionsOf(replaced);
    file.TakeThePlace();
    FlushFolder(target);
}

RuntimeFailure FailureOfWriting(const FileError& error, std::string_view path) {
    return RuntimeFailure(FailureOfErrorNumber(error.Number()), fmt::format("{} ({})", path, error.what()));
}

} // namespace dorvan

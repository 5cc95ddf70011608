#include "files/new_file.h"

#include "files/file_fault.h"
#include "files/file_rights.h"

#include <fmt/format.h>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace dorvan {

namespace {

namespace fs = std::filesystem;

constexpr const char* Beginning = ".dorvan-";
constexpr const char* Ending = ".tmp";

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

void WriteFromStart(int descriptor, std::string_view bytes) {
    if (::lseek(descriptor, 0, SEEK_SET) != 0) throw FileError(errno);
    WriteAll(descriptor, bytes);
    if (::ftruncate(descriptor, static_cast<off_t>(bytes.size())) != 0 || ::fsync(descriptor) != 0)
        throw FileError(errno);
}

fs::path FolderOf(const fs::path& file) {
    return file.parent_path().empty() ? fs::path(".") : file.parent_path();
}

// The new name reaches the disk with its folder. The file itself is safe by now, so an error is no failure.
void FlushFolder(const fs::path& folder) {
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    ::fsync(descriptor);
    ::close(descriptor);
}

// A file in the making is locked for as long as its process lives, whatever machine that runs on.
bool Lock(int descriptor) { return ::flock(descriptor, LOCK_EX | LOCK_NB) == 0; }

void RemoveIfLeftOver(const fs::path& file) {
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) return;
    if (Lock(descriptor)) ::unlink(file.c_str());
    ::close(descriptor);
}

void RemoveLeftOvers(const fs::path& folder) {
    std::error_code none;
    for (fs::directory_iterator place(folder, none), end; !none && place != end; place.increment(none)) {
        const std::string name = place->path().filename().string();
        if (name.starts_with(Beginning) && name.ends_with(Ending)) RemoveIfLeftOver(place->path());
    }
}

bool ForbidsNewNames(int errorNumber) { return errorNumber == EACCES || errorNumber == EPERM; }

} // namespace

NewFile::NewFile(const std::string& path) {
    if (path.empty()) throw FileError(ENOENT);
    target_ = BehindLinks(path);
    struct stat former {};
    former_ = ::stat(target_.c_str(), &former) == 0;
    if (former_ && S_ISDIR(former.st_mode)) throw FileError(EISDIR);
    if (former_ && !S_ISREG(former.st_mode)) throw FileError(EINVAL, "This is not a regular file");
    // A rename would not ask whether the file itself may be written.
    if (former_ && ::faccessat(AT_FDCWD, target_.c_str(), W_OK, AT_EACCESS) != 0) throw FileError(errno);
    RemoveLeftOvers(FolderOf(target_));
    descriptor_ = Create();
    if (descriptor_ < 0 && former_ && ForbidsNewNames(errno)) OpenInPlace();
    if (descriptor_ < 0) throw FileError(errno);
}

NewFile::~NewFile() {
    if (descriptor_ >= 0) ::close(descriptor_);
    if (!beside_.empty()) ::unlink(beside_.c_str());
}

// A name that no other file has; -1 with errno set when none can be made.
int NewFile::Create() {
    for (int attempt = 0; attempt < 1000; ++attempt) {
        beside_ = fs::path(target_).parent_path() /
                  fmt::format("{}{}-{}{}", Beginning, ::getpid(), attempt, Ending);
        const int number = ::open(beside_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
        if (number < 0 && errno != EEXIST) break;
        if (number < 0) continue;
        struct stat made {};
        // Another process may have taken it for a left-over one before it was locked.
        if (Lock(number) && ::fstat(number, &made) == 0 && made.st_nlink == 1) return number;
        ::close(number);
    }
    beside_.clear();
    return -1;
}

void NewFile::OpenInPlace() {
    beside_.clear();
    descriptor_ = ::open(target_.c_str(), O_RDWR | O_CLOEXEC);
}

void NewFile::DeleteFormer() {
    if (!former_) return;
    if (!beside_.empty() && ::unlink(target_.c_str()) != 0) throw FileError(errno);
    if (beside_.empty() && ::ftruncate(descriptor_, 0) != 0) throw FileError(errno);
    former_ = false;
}

void NewFile::WriteBeside(std::string_view bytes) {
    WriteAll(descriptor_, bytes);
    if (::fsync(descriptor_) != 0) throw FileError(errno);
    // Some errors show only here.
    if (::close(std::exchange(descriptor_, -1)) != 0) throw FileError(errno);
}

// A write that fails half way gives the file its old bytes back, which it has room for.
void NewFile::WriteInPlace(std::string_view bytes) {
    std::string old;
    try {
        old = LoadFile(target_);
    } catch (const FileFault&) {
        throw FileError(EIO);
    }
    try {
        WriteFromStart(descriptor_, bytes);
    } catch (const FileError&) {
        WriteFromStart(descriptor_, old);
        throw;
    }
}

void NewFile::TakeThePlace(std::string_view bytes) {
    if (beside_.empty()) return WriteInPlace(bytes);
    if (former_)
        TakeRightsOf(target_, descriptor_);
    else
        TakeUsualRights(descriptor_);
    WriteBeside(bytes);
    if (::rename(beside_.c_str(), target_.c_str()) == 0) {
        beside_.clear();
        return FlushFolder(FolderOf(target_));
    }
    if (!former_ || !ForbidsNewNames(errno)) throw FileError(errno);
    ::unlink(beside_.c_str()); // others' files may not be renamed over in this folder
    OpenInPlace();
    if (descriptor_ < 0) throw FileError(errno);
    WriteInPlace(bytes);
}

void NewFile::TakeFreePlace(std::string_view bytes) {
    if (former_) throw FileError(EEXIST);
    WriteBeside(bytes);
    // Unlike a rename, a link never takes another's place; some file systems know only the rename.
    const bool linked = ::link(beside_.c_str(), target_.c_str()) == 0;
    if (!linked && errno != EPERM && errno != EOPNOTSUPP) throw FileError(errno);
    if (linked)
        ::unlink(beside_.c_str());
    else if (::rename(beside_.c_str(), target_.c_str()) != 0)
        throw FileError(errno);
    beside_.clear();
    FlushFolder(FolderOf(target_));
}

} // namespace dorvan

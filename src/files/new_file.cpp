#include "files/new_file.h"

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

} // namespace

NewFile::NewFile(const std::string& path) {
    if (path.empty()) throw FileError(ENOENT);
    target_ = BehindLinks(path);
    struct stat former {};
    const bool exists = ::stat(target_.c_str(), &former) == 0;
    if (exists && S_ISDIR(former.st_mode)) throw FileError(EISDIR);
    former_ = exists && S_ISREG(former.st_mode);
    if (exists && !former_) descriptor_ = ::open(target_.c_str(), O_WRONLY | O_CLOEXEC);
    // A rename would not ask whether the file itself may be written.
    else if (!former_ || ::faccessat(AT_FDCWD, target_.c_str(), W_OK, AT_EACCESS) == 0)
        descriptor_ = Create();
    if (descriptor_ < 0) throw FileError(errno);
}

NewFile::~NewFile() {
    if (descriptor_ >= 0) ::close(descriptor_);
    if (!beside_.empty()) ::unlink(beside_.c_str());
}

// A name that no other file has; -1 with errno set when none can be made.
int NewFile::Create() {
    for (int attempt = 0; attempt < 1000; ++attempt) {
        beside_ = fs::path(target_).parent_path() / fmt::format(".dorvan-{}-{}.tmp", ::getpid(), attempt);
        const int number = ::open(beside_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (number >= 0) return number;
        if (errno != EEXIST) break;
    }
    beside_.clear();
    return -1;
}

void NewFile::DeleteFormer() {
    if (former_ && ::unlink(target_.c_str()) != 0) throw FileError(errno);
    former_ = false;
}

void NewFile::TakePermissionsOfFormer() {
    struct stat former {};
    if (::stat(target_.c_str(), &former) != 0) throw FileError(errno);
    const bool ownerKept = ::fchown(descriptor_, former.st_uid, former.st_gid) == 0;
    // Only an administrator can give a file away; a new owner gets no more than the usual rights.
    const mode_t rights = former.st_mode & (ownerKept ? 07777 : 0777);
    if (::fchmod(descriptor_, rights) != 0) throw FileError(errno);
}

void NewFile::TakeThePlace(std::string_view bytes) {
    WriteAll(descriptor_, bytes);
    if (former_) TakePermissionsOfFormer();
    if (!beside_.empty() && ::fsync(descriptor_) != 0) throw FileError(errno);
    // Some errors show only here.
    if (::close(std::exchange(descriptor_, -1)) != 0) throw FileError(errno);
    if (beside_.empty()) return;
    if (::rename(beside_.c_str(), target_.c_str()) != 0) throw FileError(errno);
    beside_.clear();
    FlushFolder(FolderOf(target_));
}

} // namespace dorvan

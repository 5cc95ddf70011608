#include "files/file_rights.h"

#include "files/disk.h"

#include <cerrno>
#include <cstring>
#include <string_view>
#include <sys/stat.h>
#include <sys/types.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

namespace dorvan {

namespace {

constexpr std::string_view AccessList = "system.posix_acl_access";

std::vector<std::string> AttributesOf(const std::string& file) {
    std::vector<char> list(65536); // the most that the system gives
    const ssize_t size = ::listxattr(file.c_str(), list.data(), list.size());
    std::vector<std::string> names;
    for (const char* name = list.data(); size > 0 && name < list.data() + size; name += std::strlen(name) + 1)
        names.emplace_back(name);
    return names;
}

bool CopyAttribute(const std::string& file, const std::string& name, int descriptor) {
    std::vector<char> value(65536);
    const ssize_t size = ::getxattr(file.c_str(), name.c_str(), value.data(), value.size());
    return size >= 0 &&
           ::fsetxattr(descriptor, name.c_str(), value.data(), static_cast<std::size_t>(size), 0) == 0;
}

// False when an access list could not be copied. Any other attribute is no right.
bool CopyAttributes(const std::string& file, int descriptor) {
    bool listKept = true;
    for (const auto& name : AttributesOf(file))
        if (!CopyAttribute(file, name, descriptor) && name == AccessList) listKept = false;
    return listKept;
}

void SetMode(int descriptor, mode_t mode) {
    if (::fchmod(descriptor, mode) != 0) throw FileError(errno);
}

} // namespace

void TakeRightsOf(const std::string& former, int descriptor) {
    struct stat status {};
    if (::stat(former.c_str(), &status) != 0) throw FileError(errno);
    constexpr auto SameOwner = static_cast<uid_t>(-1);
    const bool ownerKept = ::fchown(descriptor, status.st_uid, status.st_gid) == 0;
    const bool groupKept = ownerKept || ::fchown(descriptor, SameOwner, status.st_gid) == 0;
    const bool listKept = CopyAttributes(former, descriptor);
    mode_t mode = status.st_mode & (ownerKept ? 07777 : 0777); // no other owner gets its special bits
    // With an access list the group's bits are the most that the list gives to anybody.
    if (!groupKept || !listKept) mode &= ~mode_t(S_IRWXG);
    SetMode(descriptor, mode);
}

void TakeUsualRights(int descriptor) {
    const mode_t mask = ::umask(0); // there is no way to ask for it
    ::umask(mask);
    SetMode(descriptor, 0666 & ~mask);
}

} // namespace dorvan

#include "files/disk.h"
#include "files/faults.h"
#include "files/new_file.h"
#include "support/disk_limits.h"
#include "support/golden.h"

#include <cstdint>
#include <fcntl.h>
#include <filesystem>
#include <grp.h>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace dorvan::test {

namespace fs = std::filesystem;

namespace {

// The error number that an action fails with; 0 for none.
template <class Action> int errorOf(const Action& action) {
    try {
        action();
    } catch (const FileError& error) {
        return error.Number();
    }
    return 0;
}

class Disk : public ::testing::Test {
protected:
    TemporaryFolder folder;

    int replace(const std::string& name, const std::string& bytes) {
        return errorOf([&] { ReplaceFile(folder / name, bytes); });
    }
    std::size_t entries() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()));
    }
    mode_t modeOf(const std::string& name) const {
        struct stat status {};
        EXPECT_EQ(::stat((folder / name).c_str(), &status), 0);
        return status.st_mode & 07777;
    }
};

} // namespace

TEST_F(Disk, LoadsAWholeFile) {
    std::string bytes = "a\r\n";
    bytes.append(100000, '\0');
    writeFile(folder / "f", bytes);
    EXPECT_EQ(LoadFile(folder / "f"), bytes);
    writeFile(folder / "empty", "");
    EXPECT_EQ(LoadFile(folder / "empty"), "");
}

TEST_F(Disk, SaysWhyAFileCannotBeLoaded) {
    EXPECT_EQ(faultOf([&] { LoadFile(folder / "none"); }),
              "The file cannot be read: No such file or directory. File: f");
    EXPECT_EQ(faultOf([&] { LoadFile(folder.path()); }), "The file cannot be read: Is a directory. File: f");
    EXPECT_EQ(faultOf([&] { LoadFile(""); }), "The file cannot be read: No such file or directory. File: f");
}

TEST_F(Disk, DoesNotWaitForANamedPipeNorReadADevice) {
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(faultOf([&] { LoadFile(folder / "pipe"); }), "This is not a regular file. File: f");
    EXPECT_EQ(faultOf([&] { LoadFile("/dev/zero"); }), "This is not a regular file. File: f");
}

TEST_F(Disk, AFileWithoutPermissionIsNotLoaded) {
    writeFile(folder / "f", "secret");
    fs::permissions(folder / "f", fs::perms::none);
    fs::permissions(folder.path(), fs::perms::all);
    const AsOrdinaryUser user;
    EXPECT_EQ(faultOf([&] { LoadFile(folder / "f"); }),
              "The file cannot be read: Permission denied. File: f");
}

TEST_F(Disk, MakesANewFileWithTheUsualPermissions) {
    const mode_t mask = ::umask(027);
    EXPECT_EQ(replace("f", "new"), 0);
    ::umask(mask);
    EXPECT_EQ(fileBytes(folder / "f"), "new");
    EXPECT_EQ(modeOf("f"), mode_t(0640));
    EXPECT_EQ(entries(), 1u);
}

TEST_F(Disk, ReplacesAFileAndKeepsItsPermissions) {
    writeFile(folder / "f", "a much longer text than the new one");
    for (const mode_t mode : {0600, 0664, 0755}) {
        ASSERT_EQ(::chmod((folder / "f").c_str(), mode), 0);
        EXPECT_EQ(replace("f", "new"), 0);
        EXPECT_EQ(fileBytes(folder / "f"), "new");
        EXPECT_EQ(modeOf("f"), mode);
    }
    EXPECT_EQ(entries(), 1u);
}

TEST_F(Disk, ReplacesAFileOfTheCurrentFolder) {
    const fs::path before = fs::current_path();
    fs::current_path(folder.path());
    EXPECT_EQ(errorOf([] { ReplaceFile("f", "new"); }), 0);
    fs::current_path(before);
    EXPECT_EQ(fileBytes(folder / "f"), "new");
    EXPECT_EQ(entries(), 1u);
}

TEST_F(Disk, KeepsTheOwnerWhereItCan) {
    if (::geteuid() != 0) GTEST_SKIP() << "only an administrator can give files away";
    writeFile(folder / "f", "old");
    ASSERT_EQ(::chown((folder / "f").c_str(), 65534, 65533), 0);
    ASSERT_EQ(::chmod((folder / "f").c_str(), 02664), 0);
    EXPECT_EQ(replace("f", "new"), 0);
    EXPECT_EQ(modeOf("f"), mode_t(02664));
    struct stat status {};
    ASSERT_EQ(::stat((folder / "f").c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 65534u);
    EXPECT_EQ(status.st_gid, 65533u);
}

TEST_F(Disk, ReplacesTheTargetOfSymbolicLinks) {
    fs::create_directory(folder / "sub");
    writeFile(folder / "sub/target", "old");
    fs::create_symlink("sub/target", folder / "link");
    fs::create_symlink(folder / "link", folder / "link to link");
    EXPECT_EQ(replace("link to link", "new"), 0);
    EXPECT_TRUE(fs::is_symlink(folder / "link to link"));
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_EQ(fileBytes(folder / "sub/target"), "new");
}

TEST_F(Disk, MakesTheTargetOfADanglingLink) {
    fs::create_symlink("target", folder / "link");
    EXPECT_EQ(replace("link", "new"), 0);
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_EQ(fileBytes(folder / "target"), "new");
}

TEST_F(Disk, ACircleOfLinksIsAnError) {
    fs::create_symlink("b", folder / "a");
    fs::create_symlink("a", folder / "b");
    EXPECT_EQ(replace("a", "new"), ELOOP);
}

TEST_F(Disk, AFileThatDoesNotFitLeavesTheOldOneWhole) {
    const std::string old(5000, 'o');
    writeFile(folder / "f", old);
    {
        const FileSizeLimit limit(4096);
        EXPECT_EQ(replace("f", std::string(100000, 'n')), EFBIG);
        EXPECT_EQ(replace("g", std::string(100000, 'n')), EFBIG);
    }
    EXPECT_EQ(fileBytes(folder / "f"), old);
    EXPECT_EQ(entries(), 1u);
}

TEST_F(Disk, ADeviceOrAPipeIsRefused) {
    fs::create_symlink("/dev/full", folder / "f");
    EXPECT_EQ(replace("f", "new"), EINVAL);
    EXPECT_TRUE(fs::is_character_file(folder / "f"));
    EXPECT_EQ(errorOf([] { ReplaceFile("/dev/null", "new"); }), EINVAL);
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(replace("pipe", "new"), EINVAL);
    EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
    try {
        ReplaceFile(folder / "pipe", "new");
    } catch (const FileError& error) {
        EXPECT_STREQ(error.what(), "This is not a regular file");
    }
    EXPECT_EQ(entries(), 2u);
}

TEST_F(Disk, AFolderInThePlaceOfTheFileIsAnError) {
    fs::create_directory(folder / "f");
    EXPECT_EQ(replace("f", "new"), EISDIR);
    EXPECT_TRUE(fs::is_directory(folder / "f"));
    EXPECT_EQ(entries(), 1u);
}

TEST_F(Disk, AFolderThatIsNotThereIsAnError) {
    EXPECT_EQ(replace("none/f", "new"), ENOENT);
    EXPECT_EQ(errorOf([] { ReplaceFile("", "new"); }), ENOENT);
    writeFile(folder / "f", "old");
    EXPECT_EQ(replace("f/g", "new"), ENOTDIR);
    EXPECT_EQ(replace(std::string(300, 'x'), "new"), ENAMETOOLONG);
}

TEST_F(Disk, AReadOnlyFileIsNotReplaced) {
    writeFile(folder / "f", "old");
    fs::permissions(folder / "f", fs::perms(0444));
    fs::permissions(folder.path(), fs::perms::all);
    {
        const AsOrdinaryUser user;
        EXPECT_EQ(replace("f", "new"), EACCES);
    }
    EXPECT_EQ(fileBytes(folder / "f"), "old");
    EXPECT_EQ(entries(), 1u);
}

TEST_F(Disk, InAFolderThatMayNotBeWrittenAFileIsWrittenInPlace) {
    writeFile(folder / "f", "the old bytes");
    fs::permissions(folder / "f", fs::perms(0666));
    fs::permissions(folder.path(), fs::perms(0555));
    {
        const AsOrdinaryUser user;
        EXPECT_EQ(replace("f", "new"), 0);
        EXPECT_EQ(replace("g", "new"), EACCES);
    }
    fs::permissions(folder.path(), fs::perms::all);
    EXPECT_EQ(fileBytes(folder / "f"), "new");
    EXPECT_EQ(entries(), 1u);
}

TEST_F(Disk, OthersFilesThatMayNotBeRenamedOverAreWrittenInPlace) {
    if (::geteuid() != 0) GTEST_SKIP() << "only an administrator can make files of two users";
    writeFile(folder / "f", "the old bytes");
    fs::permissions(folder / "f", fs::perms(0666));
    fs::permissions(folder.path(), fs::perms(01777));
    {
        const AsOrdinaryUser user;
        EXPECT_EQ(replace("f", "new"), 0);
    }
    EXPECT_EQ(fileBytes(folder / "f"), "new");
    EXPECT_EQ(entries(), 1u);
}

TEST_F(Disk, AFileThatDoesNotFitInPlaceGetsItsOldBytesBack) {
    const std::string old(3000, 'o');
    writeFile(folder / "f", old);
    fs::permissions(folder / "f", fs::perms(0666));
    fs::permissions(folder.path(), fs::perms(0555));
    {
        const AsOrdinaryUser user;
        const FileSizeLimit limit(4096);
        EXPECT_EQ(replace("f", std::string(100000, 'n')), EFBIG);
    }
    fs::permissions(folder.path(), fs::perms::all);
    EXPECT_EQ(fileBytes(folder / "f"), old);
}

TEST_F(Disk, AFileInTheMakingIsForItsOwnerAlone) {
    const mode_t mask = ::umask(0);
    writeFile(folder / "f", "old");
    {
        NewFile file(folder / "f");
        fs::remove(folder / "f");
        ASSERT_EQ(entries(), 1u);
        EXPECT_EQ(modeOf(fs::directory_iterator(folder.path())->path().filename()), mode_t(0600));
    }
    ::umask(mask);
    EXPECT_EQ(entries(), 0u);
}

TEST_F(Disk, WhatAKilledProcessLeftBehindGoesWithTheNextSave) {
    writeFile(folder / ".dorvan-1-0.tmp", "half a file");
    writeFile(folder / ".dorvan-1-7.tmp", "another");
    writeFile(folder / ".dorvan-notes", "the user's own");
    NewFile atWork(folder / "g");
    EXPECT_EQ(replace("f", "new"), 0);
    EXPECT_FALSE(fs::exists(folder / ".dorvan-1-0.tmp"));
    EXPECT_FALSE(fs::exists(folder / ".dorvan-1-7.tmp"));
    EXPECT_EQ(entries(), 3u); // f, the notes, and the file that somebody is writing
    atWork.TakeThePlace("g");
    EXPECT_EQ(fileBytes(folder / "g"), "g");
}

TEST_F(Disk, ExtendedAttributesStay) {
    writeFile(folder / "f", "old");
    if (::setxattr((folder / "f").c_str(), "user.comment", "mine", 4, 0) != 0)
        GTEST_SKIP() << "this file system keeps no attributes";
    EXPECT_EQ(replace("f", "new"), 0);
    char value[10] = {};
    EXPECT_EQ(::getxattr((folder / "f").c_str(), "user.comment", value, sizeof value), 4);
    EXPECT_STREQ(value, "mine");
}

// An access list of one more user, as setfacl writes it: version, then tag, rights, id each.
TEST_F(Disk, AccessListsStay) {
    writeFile(folder / "f", "old");
    const std::uint16_t entries[][4] = {{0x01, 6, 0xFFFF, 0xFFFF},
                                        {0x02, 4, 1234, 0},
                                        {0x04, 4, 0xFFFF, 0xFFFF},
                                        {0x10, 4, 0xFFFF, 0xFFFF},
                                        {0x20, 0, 0xFFFF, 0xFFFF}};
    std::string list("\2\0\0\0", 4);
    list.append(reinterpret_cast<const char*>(entries), sizeof entries);
    const char* name = "system.posix_acl_access";
    if (::setxattr((folder / "f").c_str(), name, list.data(), list.size(), 0) != 0)
        GTEST_SKIP() << "this file system keeps no access lists";
    EXPECT_EQ(replace("f", "new"), 0);
    std::string kept(100, '\0');
    const ssize_t size = ::getxattr((folder / "f").c_str(), name, kept.data(), kept.size());
    ASSERT_GT(size, 0);
    EXPECT_EQ(kept.substr(0, std::size_t(size)), list);
}

TEST_F(Disk, WhereTheOwnerCannotBeKeptTheGroupIsAndWithoutItsGroupItsRightsGo) {
    if (::geteuid() != 0) GTEST_SKIP() << "only an administrator can give files away";
    fs::permissions(folder.path(), fs::perms::all);
    const gid_t groups[] = {12};
    for (const auto& [group, expectedMode] :
         {std::pair(gid_t(12), mode_t(0666)), {gid_t(13), mode_t(0606)}}) {
        writeFile(folder / "f", "old");
        ASSERT_EQ(::chown((folder / "f").c_str(), 0, group), 0);
        ASSERT_EQ(::chmod((folder / "f").c_str(), 06666), 0);
        ASSERT_EQ(::setgroups(1, groups), 0);
        {
            const AsOrdinaryUser user;
            EXPECT_EQ(replace("f", "new"), 0);
        }
        ASSERT_EQ(::setgroups(0, nullptr), 0);
        struct stat status {};
        ASSERT_EQ(::stat((folder / "f").c_str(), &status), 0);
        EXPECT_EQ(status.st_uid, 65534u);
        EXPECT_EQ(modeOf("f"), expectedMode);
        if (group == 12) {
            EXPECT_EQ(status.st_gid, group);
        }
        fs::remove(folder / "f");
    }
}

TEST_F(Disk, APrivateFileNeverTakesThePlaceOfAnother) {
    const mode_t mask = ::umask(0);
    WriteNewFile(folder / "f", "mine");
    ::umask(mask);
    EXPECT_EQ(modeOf("f"), mode_t(0600));
    EXPECT_EQ(errorOf([&] { WriteNewFile(folder / "f", "other"); }), EEXIST);
    EXPECT_EQ(fileBytes(folder / "f"), "mine");
    NewFile second(folder / "g");
    writeFile(folder / "g", "somebody's, come meanwhile");
    EXPECT_EQ(errorOf([&] { second.TakeFreePlace("other"); }), EEXIST);
    EXPECT_EQ(fileBytes(folder / "g"), "somebody's, come meanwhile");
}

TEST(FailureOfWriting, NamesTheRunTimeErrorOfAnErrorNumber) {
    const std::vector<std::pair<int, Failure>> table = {
        {ENOSPC, Failure::DiskFull},
        {EDQUOT, Failure::DiskFull},
        {EFBIG, Failure::DiskFull},
        {EACCES, Failure::PermissionDenied},
        {EPERM, Failure::PermissionDenied},
        {ENOENT, Failure::PathNotFound},
        {ENOTDIR, Failure::PathNotFound},
        {EISDIR, Failure::PathFileAccessError},
        {EINVAL, Failure::PathFileAccessError},
        {EROFS, Failure::PathFileAccessError},
        {ELOOP, Failure::PathFileAccessError},
        {ENAMETOOLONG, Failure::PathFileAccessError},
        {EIO, Failure::DeviceInputOutputError},
    };
    for (const auto& [number, failure] : table)
        EXPECT_EQ(FailureOfWriting(FileError(number), "f").Kind(), failure) << number;
    EXPECT_STREQ(FailureOfWriting(FileError(ENOSPC), "f.mtx").what(),
                 "Run-time error '61': Disk full: f.mtx (No space left on device)");
}

} // namespace dorvan::test

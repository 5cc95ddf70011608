#include "files/disk.h"
#include "files/disk_limits.h"
#include "files/faults.h"
#include "support/golden.h"

#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>

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
    ASSERT_EQ(::chown((folder / "f").c_str(), 65534, 65534), 0);
    EXPECT_EQ(replace("f", "new"), 0);
    struct stat status {};
    ASSERT_EQ(::stat((folder / "f").c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 65534u);
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

TEST_F(Disk, AFullDeviceIsAnErrorAndStaysADevice) {
    fs::create_symlink("/dev/full", folder / "f");
    EXPECT_EQ(replace("f", "new"), ENOSPC);
    EXPECT_TRUE(fs::is_character_file(folder / "f"));
    EXPECT_EQ(errorOf([] { ReplaceFile("/dev/null", "new"); }), 0);
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
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

TEST_F(Disk, AFolderThatMayNotBeWrittenLeavesTheFileWhole) {
    writeFile(folder / "f", "old");
    fs::permissions(folder / "f", fs::perms(0666));
    fs::permissions(folder.path(), fs::perms(0555));
    {
        const AsOrdinaryUser user;
        EXPECT_EQ(replace("f", "new"), EACCES);
    }
    fs::permissions(folder.path(), fs::perms::all);
    EXPECT_EQ(fileBytes(folder / "f"), "old");
    EXPECT_EQ(entries(), 1u);
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

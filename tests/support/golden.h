#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace dorvan::test {

// Compares with the golden file tests/<name>. Names the first differing offset; leaves the actual bytes in
// the build folder under actual/<name>, from where tests/accept-golden.sh takes them.
::testing::AssertionResult matchesGolden(std::string_view actual, const std::string& name);

std::string goldenBytes(const std::string& name);

// A file or folder of this project, by its path from the top: sourcePath("samples/iris.mdt").
std::string sourcePath(const std::string& path);

// A whole file; a test failure (and an empty text) when it cannot be read.
std::string fileBytes(const std::string& path);
void writeFile(const std::string& path, std::string_view bytes);

// A fresh folder of this test, removed at the end of its life.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    std::string operator/(const std::string& name) const { return path_ + "/" + name; }
    const std::string& path() const { return path_; }

private:
    std::string path_;
};

} // namespace dorvan::test

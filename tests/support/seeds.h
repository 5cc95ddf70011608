#pragma once

#include "fuzz/ways.h"
#include "support/golden.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace dorvan::test {

// Every seed of fuzz/seeds/<name>, among them what the fuzzers found, read in every way, and cut off at every
// byte.
inline void checkSeeds(const std::string& name, void (*checkWays)(std::string_view, fuzz::Ways&)) {
    const auto check = [&](std::string_view bytes) {
        fuzz::Ways all;
        checkWays(bytes, all);
    };
    int count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(sourcePath("fuzz/seeds/" + name))) {
        const std::string bytes = fileBytes(entry.path());
        EXPECT_NO_THROW(check(bytes)) << entry.path();
        for (std::size_t size = 0; size < std::min<std::size_t>(bytes.size(), 1000); ++size)
            EXPECT_NO_THROW(check({bytes.data(), size})) << entry.path() << " cut off at " << size;
        ++count;
    }
    EXPECT_GT(count, 0);
}

} // namespace dorvan::test

#pragma once

#include <QImage>

#include <gtest/gtest.h>

#include <string>

namespace dorvan::test {

// Compares pixels, not bytes, with the golden picture tests/<name>, a PNG; names the first pixel that differs
// and leaves the actual picture in the build folder, as matchesGolden does.
::testing::AssertionResult matchesGoldenPicture(const QImage& actual, const std::string& name);

} // namespace dorvan::test

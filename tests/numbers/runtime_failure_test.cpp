#include "numbers/runtime_failure.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace dorvan {
namespace {

TEST(RuntimeFailure, HasTheClassicNumbersAndTexts) {
    const std::pair<Failure, std::string> messages[] = {
        {Failure::InvalidProcedureCall, "Run-time error '5': Invalid procedure call or argument"},
        {Failure::Overflow, "Run-time error '6': Overflow"},
        {Failure::OutOfMemory, "Run-time error '7': Out of memory"},
        {Failure::SubscriptOutOfRange, "Run-time error '9': Subscript out of range"},
        {Failure::DivisionByZero, "Run-time error '11': Division by zero"},
        {Failure::TypeMismatch, "Run-time error '13': Type mismatch"},
        {Failure::BadFileNameOrNumber, "Run-time error '52': Bad file name or number"},
        {Failure::FileNotFound, "Run-time error '53': File not found"},
        {Failure::DeviceInputOutputError, "Run-time error '57': Device I/O error"},
        {Failure::DiskFull, "Run-time error '61': Disk full"},
        {Failure::InputPastEndOfFile, "Run-time error '62': Input past end of file"},
        {Failure::PermissionDenied, "Run-time error '70': Permission denied"},
        {Failure::PathFileAccessError, "Run-time error '75': Path/File access error"},
        {Failure::PathNotFound, "Run-time error '76': Path not found"},
    };
    for (const auto& [failure, message] : messages) {
        const RuntimeFailure thrown(failure);
        EXPECT_EQ(thrown.what(), message);
        EXPECT_EQ(thrown.Kind(), failure);
        EXPECT_EQ(thrown.Number(), static_cast<int>(failure));
        EXPECT_NE(message.find("'" + std::to_string(thrown.Number()) + "'"), std::string::npos);
    }
}

TEST(RuntimeFailure, PutsTheDetailBehindTheText) {
    const RuntimeFailure thrown(Failure::FileNotFound, "iris.mdt");
    EXPECT_STREQ(thrown.what(), "Run-time error '53': File not found: iris.mdt");
    EXPECT_EQ(thrown.Number(), 53);
}

TEST(RuntimeFailure, TextStandsWithoutTheNumber) {
    EXPECT_EQ(FailureText(Failure::SubscriptOutOfRange), "Subscript out of range");
}

TEST(RuntimeFailure, NumberOutsideTheListHasAText) {
    EXPECT_EQ(FailureText(static_cast<Failure>(1000)), "Application-defined or object-defined error");
}

} // namespace
} // namespace dorvan

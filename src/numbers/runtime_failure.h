#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace dorvan {

// The classic run-time errors, by their numbers.
enum class Failure : int {
    InvalidProcedureCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    BadFileNameOrNumber = 52,
    FileNotFound = 53,
    DeviceInputOutputError = 57,
    DiskFull = 61,
    InputPastEndOfFile = 62,
    PermissionDenied = 70,
    PathFileAccessError = 75,
    PathNotFound = 76,
};

// The text that goes with a number, such as "Subscript out of range" for 9.
std::string_view FailureText(Failure failure);

// What ends the run by design. Only the event dispatcher (or the command line) catches it.
// what() is "Run-time error '9': Subscript out of range", followed by ": " and the detail where there is one.
class RuntimeFailure : public std::runtime_error {
public:
    explicit RuntimeFailure(Failure failure, std::string_view detail = {});

    Failure Kind() const { return failure_; }
    int Number() const { return static_cast<int>(failure_); }

private:
    Failure failure_;
};

} // namespace dorvan

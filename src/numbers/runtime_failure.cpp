#include "numbers/runtime_failure.h"

namespace dorvan {

namespace {

std::string Message(Failure failure, std::string_view detail) {
    std::string message = "Run-time error '" + std::to_string(static_cast<int>(failure)) + "': ";
    message += FailureText(failure);
    if (!detail.empty()) {
        message += ": ";
        message += detail;
    }
    return message;
}

} // namespace

std::string_view FailureText(Failure failure) {
    switch (failure) {
    case Failure::InvalidProcedureCall: return "Invalid procedure call or argument";
    case Failure::Overflow: return "Overflow";
    case Failure::OutOfMemory: return "Out of memory";
    case Failure::SubscriptOutOfRange: return "Subscript out of range";
    case Failure::DivisionByZero: return "Division by zero";
    case Failure::TypeMismatch: return "Type mismatch";
    case Failure::BadFileNameOrNumber: return "Bad file name or number";
    case Failure::FileNotFound: return "File not found";
    case Failure::DeviceInputOutputError: return "Device I/O error";
    case Failure::DiskFull: return "Disk full";
    case Failure::InputPastEndOfFile: return "Input past end of file";
    case Failure::PermissionDenied: return "Permission denied";
    case Failure::PathFileAccessError: return "Path/File access error";
    case Failure::PathNotFound: return "Path not found";
    }
    return "Application-defined or object-defined error";
}

RuntimeFailure::RuntimeFailure(Failure failure, std::string_view detail)
    : std::runtime_error(Message(failure, detail)), failure_(failure) {}

} // namespace dorvan

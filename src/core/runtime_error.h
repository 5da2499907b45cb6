// The numbered run-time errors of the program and their descriptions.
#pragma once

#include <exception>
#include <string>

namespace tav {

// The error numbers that the program raises, catches or shows.
enum ErrorNumber : int {
    kInvalidProcedureCall = 5,
    kOverflow = 6,
    kSubscriptOutOfRange = 9,
    kDivisionByZero = 11,
    kTypeMismatch = 13,
    kOutOfStringSpace = 14,
    kBadFileName = 52,
    kFileNotFound = 53,
    kFileAlreadyOpen = 55,
    kDeviceIOError = 57,
    kDiskFull = 61,
    kInputPastEnd = 62,
    kPermissionDenied = 70,
    kPathFileAccessError = 75,
    kPathNotFound = 76,
    kNoCurrentRecord = 3021,
    kCouldNotFindFile = 3024,
    kNotAValidPassword = 3031,
    kFileInUse = 3045,
    kUnrecognizedFormat = 3343,
    kDialogCancelled = 32755,
};

// The description that goes with an error number, as it is shown to the user.
std::string DescriptionOf(int number);

// A failure with its number. Caught only where an operation has a handler of its own; one that
// reaches the end of an event handler ends the program with its number and description.
class RuntimeError : public std::exception {
  public:
    explicit RuntimeError(int number) : Number(number), Description(DescriptionOf(number)) {}

    const char* what() const noexcept override { return Description.c_str(); }

    int Number;
    std::string Description;
};

// Throws a RuntimeError; kept out of line so that checked arithmetic stays small.
[[noreturn]] void Raise(int number);

}  // namespace tav

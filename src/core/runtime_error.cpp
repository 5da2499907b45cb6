#include "core/runtime_error.h"

namespace tav {

std::string DescriptionOf(int number) {
    switch (number) {
        case kInvalidProcedureCall: return "Invalid procedure call or argument";
        case kOverflow: return "Overflow";
        case kSubscriptOutOfRange: return "Subscript out of range";
        case kDivisionByZero: return "Division by zero";
        case kTypeMismatch: return "Type mismatch";
        case kOutOfStringSpace: return "Out of string space";
        case kBadFileName: return "Bad file name or number";
        case kFileNotFound: return "File not found";
        case kFileAlreadyOpen: return "File already open";
        case kDeviceIOError: return "Device I/O error";
        case kDiskFull: return "Disk full";
        case kInputPastEnd: return "Input past end of file";
        case kPermissionDenied: return "Permission denied";
        case kPathFileAccessError: return "Path/File access error";
        case kPathNotFound: return "Path not found";
        case kNoCurrentRecord: return "No current record";
        case kCouldNotFindFile: return "Could not find file";
        case kNotAValidPassword: return "Not a valid password";
        case kFileInUse: return "Could not use; file already in use";
        case kUnrecognizedFormat: return "Unrecognized database format";
        case kDialogCancelled: return "Cancel was selected";
        default: return "Application-defined or object-defined error";
    }
}

void Raise(int number) { throw RuntimeError(number); }

}  // namespace tav

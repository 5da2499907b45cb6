// A user's own copy of the program folder: which of its files are the program's and which the
// user's, and how the copy is made, completed and brought up to date.
#pragma once

#include <QString>
#include <stdexcept>

namespace tav {

// A copy could not be made. The text, in UTF-8, is for the user: what failed, where, and why.
class CopyFault : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Tries it with a temporary file: permissions alone don't tell (read-only disks, access lists).
bool CanWriteIn(const QString& folder);

// The desktop program's file in a program folder.
QString ProgramIn(const QString& folder);

// Whether the desktop program stands there and may be started. It is copied after all else, so a
// copy that was broken off doesn't count.
bool HoldsProgram(const QString& folder);

// Whether the program files in the first folder are of a later version than those in the second.
bool IsLater(const QString& folder, const QString& than);

// Copies the program's files over those of the other folder, which is made if need be, and the
// user's files (default simulation, settings, feed library, sample simulations) only where there
// are none yet. Nothing else in either folder is touched. Can be repeated after a CopyFault.
void CopyProgram(const QString& from, const QString& to);

}  // namespace tav

#include "store/protected_file_lock.h"

#include "core/runtime_error.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tav {

// The files that this process has locked. One of them must not be opened and closed a second time
// here: closing gives up SQLite's own locks on the file.
std::set<ProtectedFileLock::FileKey>& ProtectedFileLock::Held() {
    static std::set<FileKey> held;
    return held;
}

ProtectedFileLock::ProtectedFileLock(const std::string& path) {
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0) Raise(kCouldNotFindFile);
    key_ = {status.st_dev, status.st_ino};
    if (Held().contains(key_)) Raise(kFileInUse);
    file_ = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file_ < 0) Raise(kPermissionDenied);
    if (flock(file_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        close(file_);
        Raise(kFileInUse);
    }
    Held().insert(key_);
}

ProtectedFileLock::~ProtectedFileLock() {
    Held().erase(key_);
    close(file_);
}

}  // namespace tav

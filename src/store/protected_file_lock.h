// An exclusive lock on a file that the system protects from writing.
#pragma once

#include <set>
#include <string>
#include <utility>

namespace tav {

// SQLite locks out others by a lock for writers, which no one gets on a protected file. This one is
// taken beside it. A file system that has no such locks leaves the file shared.
class ProtectedFileLock {
  public:
    // Raises 3045 while the file is locked, by this process or another.
    explicit ProtectedFileLock(const std::string& path);
    ~ProtectedFileLock();
    ProtectedFileLock(const ProtectedFileLock&) = delete;
    ProtectedFileLock& operator=(const ProtectedFileLock&) = delete;

  private:
    using FileKey = std::pair<unsigned long long, unsigned long long>;

    static std::set<FileKey>& Held();

    int file_ = -1;
    FileKey key_;
};

}  // namespace tav

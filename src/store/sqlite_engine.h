// The feed library in an SQLite file.
#pragma once

#include "feeds/feed_library.h"

namespace tav {

// Holds the file locked, against this process as well, for as long as the database is open. A file
// that the system protects from writing can be opened read-only, and is locked all the same.
class SqliteEngine : public LibraryEngine {
  public:
    std::unique_ptr<Database> OpenDatabase(const std::string& path, bool exclusive, bool readOnly,
                                           std::string_view connect) override;
};

}  // namespace tav

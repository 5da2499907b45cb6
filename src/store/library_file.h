// Making a feed library file.
#pragma once

#include "feeds/library_csv.h"

#include <string>

namespace tav {

// Makes the library anew from the rows, in their order. A column that the rows don't have is Null
// (a Boolean: False). The file appears, or is replaced, when it is complete. Raises what the store
// raises, 76 when there is no such folder.
void CreateLibrary(const std::string& path, const LibraryRows& rows);

// The same for the library that is delivered: feeds that users have added to the one that stands
// there already stay in it, behind the delivered ones. A user's feed of a delivered one's name
// goes. Raises 3045 when the library is in use; one that is damaged is replaced.
void CreateDeliveredLibrary(const std::string& path, const LibraryRows& delivered);

// Copies a library without the feeds that users have added to it. The one that is copied may be in
// use for reading.
void CopyDeliveredLibrary(const std::string& from, const std::string& to);

}  // namespace tav

// The feed library of a script: the file in the program's folder, and what stands in it.
#pragma once

#include "scenario/expression.h"

#include <optional>
#include <string>

namespace tav {

// Has the program open its libraries with the store.
void UseLibraryStore();

// The delivered library, without what a user may have added to the one beside this tool; nothing
// where there is none beside it.
void PutDeliveredLibrary(const std::string& folder);

// Throws NotPossible for a file that can't be read, with its line.
void MakeLibraryFromCsv(const std::string& csvFile, const std::string& folder);

void RemoveLibraryFile(const std::string& folder);

// The value behind library.Count, library(NAME).Exists or library(NAME).COLUMN. Nothing for a feed
// that isn't there.
std::optional<std::string> LibraryValueOf(const std::string& folder, const Expression& path);

}  // namespace tav

#include "feeds/feed_library.h"

#include "core/platform.h"
#include "core/program_state.h"
#include "feeds/feed_columns.h"

#include <cassert>

namespace tav {
namespace {

LibraryEngine* current = nullptr;

}  // namespace

void SetLibraryEngine(LibraryEngine& engine) { current = &engine; }

std::string LibraryPath() { return JoinPath(TheProgram().AppPath, kLibraryFile); }

bool IsDefaultFeed(const Recordset& row) {
    const FieldValue readOnly = row.Value(kReadOnlyColumn);
    return !IsNull(readOnly) && ToBoolean(readOnly);
}

FeedLibrary::FeedLibrary(LibraryUse use, const std::string& path) {
    assert(current != nullptr);
    database_ = current->OpenDatabase(path, true, use == LibraryUse::ReadOnly, kLibraryConnect);
    table_ = database_->OpenRecordset(kLibraryTable);
}

bool FeedLibrary::Find(std::string_view name) {
    table_->MoveFirst();
    while (!table_->AtEnd()) {
        if (ShownText(table_->Value(kFeedNameColumn)) == name) return true;
        table_->MoveNext();
    }
    return false;
}

void FeedLibrary::Close() {
    table_.reset();
    if (database_) database_->Close();
    database_.reset();
}

}  // namespace tav

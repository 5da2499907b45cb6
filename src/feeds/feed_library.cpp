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

bool GoToFirst(Recordset& table) {
    try {
        table.MoveFirst();
        return true;
    } catch (const RuntimeError& error) {
        if (error.Number != kNoCurrentRecord) throw;
        return false;
    }
}

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
        const FieldValue value = table_->Value(kFeedNameColumn);
        if (!IsNull(value) && ShownText(value) == name) return true;
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

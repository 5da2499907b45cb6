#include "scenario/feed_library_world.h"

#include "core/number_text.h"
#include "core/platform.h"
#include "feeds/feed_columns.h"
#include "feeds/library_csv.h"
#include "forms/control.h"
#include "store/library_file.h"
#include "store/sqlite_engine.h"

#include <filesystem>

namespace tav {
namespace {

namespace fs = std::filesystem;

using Value = std::optional<std::string>;

std::string LibraryIn(const std::string& folder) { return JoinPath(folder, kLibraryFile); }

// Opens a library to look at it. The program may have it open, in the picker; a copy serves as well
// then.
class LookedAt {
  public:
    explicit LookedAt(const std::string& path) : library_(Open(path)) {}
    ~LookedAt() {
        library_.Close();
        std::error_code ignored;
        if (!copy_.empty()) fs::remove(copy_, ignored);
    }
    LookedAt(const LookedAt&) = delete;
    LookedAt& operator=(const LookedAt&) = delete;

    FeedLibrary& Library() { return library_; }

  private:
    FeedLibrary Open(const std::string& path) {
        try {
            return FeedLibrary(LibraryUse::ReadOnly, path);
        } catch (const RuntimeError& error) {
            if (error.Number != kFileInUse) throw;
        }
        copy_ = path + ".looked-at";
        fs::copy_file(path, copy_, fs::copy_options::overwrite_existing);
        return FeedLibrary(LibraryUse::ReadOnly, copy_);
    }

    std::string copy_;
    FeedLibrary library_;
};

std::string CountOf(Recordset& table) {
    int count = 0;
    for (; !table.AtEnd(); table.MoveNext())
        ++count;
    return NumberText(count);
}

Value RowValue(FeedLibrary& library, const std::string& name, const std::string& asked) {
    const bool exists = !library.Table().AtEnd() && library.Find(name);
    if (asked == "Exists") return std::string(BooleanText(exists));
    if (FindFeedColumn(asked) == nullptr) {
        throw NotPossible("the feed library has no column " + asked);
    }
    if (!exists) return std::nullopt;
    const FieldValue value = library.Table().Value(asked);
    return IsNull(value) ? "Null" : ShownText(value);
}

Value ValueIn(FeedLibrary& library, const Expression& path) {
    if (path.size() == 2 && path[1].Args.empty()) {
        if (path[0].Args.size() == 1) return RowValue(library, path[0].Args[0], path[1].Name);
        if (path[0].Args.empty() && path[1].Name == "Count") return CountOf(library.Table());
    }
    throw NotPossible("the feed library has no such value: " + path.back().Name);
}

}  // namespace

void UseLibraryStore() {
    static SqliteEngine engine;
    SetLibraryEngine(engine);
}

void PutDeliveredLibrary(const std::string& folder) {
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    const std::string delivered = LibraryIn(program.parent_path().string());
    if (fs::exists(delivered, error)) CopyDeliveredLibrary(delivered, LibraryIn(folder));
}

void MakeLibraryFromCsv(const std::string& csvFile, const std::string& folder) {
    try {
        CreateLibrary(LibraryIn(folder), ReadLibraryCsv(ReadCsvFile(csvFile)));
    } catch (const CsvFault& fault) {
        throw NotPossible(csvFile + ": line " + std::to_string(fault.Line) + ": " + fault.what());
    } catch (const RuntimeError& error) {
        throw NotPossible(csvFile + ": " + error.Description);
    }
}

void RemoveLibraryFile(const std::string& folder) {
    std::error_code error;
    fs::remove(LibraryIn(folder), error);
}

std::optional<std::string> LibraryValueOf(const std::string& folder, const Expression& path) {
    try {
        LookedAt looked(LibraryIn(folder));
        return ValueIn(looked.Library(), path);
    } catch (const RuntimeError& error) {
        if (error.Number == kCouldNotFindFile && path.back().Name == "Exists") return "False";
        throw NotPossible("the feed library: " + error.Description);
    }
}

}  // namespace tav

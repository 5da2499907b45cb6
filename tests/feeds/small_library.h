// A feed library of a test, made in a folder of its own.
#pragma once

#include "feeds/library_csv.h"
#include "store/library_file.h"
#include "store/sqlite_engine.h"
#include "support/temporary_folder.h"

#include <fstream>
#include <iterator>
#include <memory>
#include <optional>
#include <string>

namespace tav {

// "Corn" and "Barley" come with the program, "My hay" is a user's.
inline constexpr const char* kSmallLibrary =
    "Feed Name,IFN,Category,Read Only,Ca (%DM),CP (%DM),Cys (%CP),cCP (%DM)\n"
    "Corn,4-02-935,Energy Source,True,0.03,9.5,1.8,\n"
    "My hay,,Grass/Legume Forage,False,0.6,15,2,\n"
    "Barley,,Energy Source,True,,12,,\n";

class SmallLibrary {
  public:
    explicit SmallLibrary(const std::string& csv = kSmallLibrary) {
        static SqliteEngine engine;
        SetLibraryEngine(engine);
        CreateLibrary(Path(), ReadLibraryCsv(csv));
    }

    std::string Path() const { return folder_.Path("library.mdb"); }
    std::string Path(const std::string& name) const { return folder_.Path(name); }

    FeedLibrary Open(LibraryUse use = LibraryUse::ReadWrite) const {
        return FeedLibrary(use, Path());
    }

    // The number of the error with which opening fails, 0 if it doesn't.
    int OpeningFault(LibraryUse use = LibraryUse::ReadOnly) const {
        try {
            Open(use);
            return 0;
        } catch (const RuntimeError& error) {
            return error.Number;
        }
    }

    std::string Csv() const {
        FeedLibrary library = Open(LibraryUse::ReadOnly);
        return LibraryCsv(library.Table());
    }

    // The names in order, each with a bar behind it.
    std::string Names() const {
        FeedLibrary library = Open(LibraryUse::ReadOnly);
        std::string names;
        for (Recordset& row = library.Table(); !row.AtEnd(); row.MoveNext()) {
            names += ShownText(row.Value(kFeedNameColumn)) + "|";
        }
        return names;
    }

    FieldValue Value(const std::string& feed, std::string_view column) const {
        FeedLibrary library = Open(LibraryUse::ReadOnly);
        if (!library.Find(feed)) return std::string("no such feed");
        return library.Table().Value(column);
    }

  private:
    TemporaryFolder folder_;
};

inline std::string FileText(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

inline void WriteText(const std::string& path, const std::string& text) {
    std::ofstream(path, std::ios::binary | std::ios::trunc) << text;
}

// The number of the error that an action raises, 0 if none.
template <class Action>
int ErrorOf(Action&& action) {
    try {
        action();
        return 0;
    } catch (const RuntimeError& error) {
        return error.Number;
    }
}

}  // namespace tav

// Any bytes as the text of a feed library: reading ends in rows or in a fault with its place, an
// import writes all of it or nothing, and what a library says of itself says nothing new to it.
#include "feeds/library_import.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <map>

namespace {

using namespace tav;

void Require(bool condition, const char* what) {
    if (condition) return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

using Fields = std::map<std::string, FieldValue, std::less<>>;
using Rows = std::vector<Fields>;

// A library in memory.
Rows library;

class MemoryTable : public Recordset {
  public:
    void MoveFirst() override {
        if (library.empty()) Raise(kNoCurrentRecord);
        at_ = 0;
    }
    void MoveNext() override {
        if (AtEnd()) Raise(kNoCurrentRecord);
        ++at_;
    }
    bool AtEnd() const override { return at_ >= library.size(); }
    FieldValue Value(std::string_view column) const override {
        if (AtEnd()) Raise(kNoCurrentRecord);
        const auto found = library[at_].find(column);
        return found == library[at_].end() ? FieldValue() : found->second;
    }
    void SetValue(std::string_view column, FieldValue value) override {
        opened_.insert_or_assign(std::string(column), std::move(value));
    }
    void AddNew() override {
        wasAtEnd_ = AtEnd();
        isNew_ = true;
        opened_ = {{std::string(kReadOnlyColumn), false}};
    }
    void Edit() override {
        Require(!AtEnd(), "only a row that is there is edited");
        isNew_ = false;
        opened_ = library[at_];
    }
    void Update() override {
        if (!isNew_) {
            library[at_] = opened_;
            return;
        }
        library.push_back(opened_);
        if (wasAtEnd_) at_ = library.size();
    }
    void Delete() override { Require(false, "an import deletes nothing"); }

  private:
    std::size_t at_ = 0;
    bool isNew_ = false;
    bool wasAtEnd_ = false;
    Fields opened_;
};

class MemoryDatabase : public Database {
  public:
    std::unique_ptr<Recordset> OpenRecordset(std::string_view) override {
        return std::make_unique<MemoryTable>();
    }
    void Close() override {}
    void BeginTrans() override {}
    void CommitTrans() override {}
};

class MemoryEngine : public LibraryEngine {
  public:
    std::unique_ptr<Database> OpenDatabase(const std::string&, bool, bool,
                                           std::string_view) override {
        return std::make_unique<MemoryDatabase>();
    }
};

// A library holds numbers and texts alone that could be read from somewhere.
void RequireSound(const LibraryRows& rows) {
    for (const LibraryRow& row : rows.Rows) {
        Require(row.Values.size() == rows.Columns.size(), "a row has a value for each column");
        Require(row.Line >= 2, "a row has its line");
        for (const FieldValue& value : row.Values) {
            const auto* const number = std::get_if<double>(&value);
            Require(number == nullptr || std::isfinite(*number), "every number is finite");
        }
    }
}

void RequirePlace(const CsvFault& fault) {
    Require(fault.Line >= 1 && fault.Column >= 0, "a fault has its place");
}

// Takes the rows into the library as it stands. False if one was refused.
bool Import(const LibraryRows& rows, ImportResult& result) {
    const Rows before = library;
    FeedLibrary open(LibraryUse::ReadWrite, "");
    try {
        result = ImportFeeds(open, rows);
    } catch (const CsvFault& fault) {
        RequirePlace(fault);
        Require(library == before, "a refused import writes nothing");
        return false;
    }
    for (std::size_t i = 0; i < before.size(); ++i) {
        const bool isDefault = ToBoolean(before[i].at(std::string(kReadOnlyColumn)));
        Require(!isDefault || library[i] == before[i], "a default feed stays");
    }
    Require(result.Added == static_cast<int>(library.size() - before.size()), "what is added");
    return true;
}

LibraryRows Exported() {
    FeedLibrary open(LibraryUse::ReadOnly, "");
    return ReadLibraryCsv(LibraryCsv(open.Table()));
}

// The rows as they stand, bad ones included, as the build makes a library of them.
void Fill(const LibraryRows& rows) {
    library.clear();
    for (const LibraryRow& row : rows.Rows) {
        Fields& fields = library.emplace_back();
        for (std::size_t i = 0; i < rows.Columns.size(); ++i) {
            fields[std::string(rows.Columns[i]->Name)] = row.Values[i];
        }
        FieldValue& readOnly = fields[std::string(kReadOnlyColumn)];
        if (IsNull(readOnly)) readOnly = false;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static MemoryEngine engine;
    SetLibraryEngine(engine);
    LibraryRows rows;
    try {
        rows = ReadLibraryCsv({reinterpret_cast<const char*>(data), size});
    } catch (const CsvFault& fault) {
        RequirePlace(fault);
        return 0;
    }
    RequireSound(rows);

    Fill(rows);
    const LibraryRows exported = Exported();
    const LibraryRows wide = WithAllColumns(rows);
    Require(exported.Rows.size() == rows.Rows.size(), "every row is exported");
    for (std::size_t i = 0; i < wide.Rows.size(); ++i) {
        for (std::size_t j = 0; j < wide.Columns.size(); ++j) {
            if (wide.Columns[j]->IsBoolean()) continue;
            Require(exported.Rows[i].Values[j] == wide.Rows[i].Values[j], "and reads back");
        }
    }
    ImportResult result;
    if (Import(exported, result)) {
        Require(result.Added + result.Replaced == 0, "a library says nothing new to itself");
    }

    library.clear();
    if (!Import(rows, result)) return 0;
    Require(library.size() == rows.Rows.size(), "every row is a feed");
    const Rows imported = library;
    Require(Import(Exported(), result) && library == imported, "and again nothing new");
    return 0;
}

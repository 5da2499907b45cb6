#include "feeds/library_import.h"

#include "core/display_text.h"
#include "core/number_text.h"
#include "feeds/collection.h"
#include "feeds/value_limits.h"

#include <algorithm>
#include <map>

namespace tav {
namespace {

constexpr std::size_t kLongestText = 255;

enum class Fate { Add, Replace, Keep, PassOver };

// The checks of one row, each of which names the cell at fault.
class RowCheck {
  public:
    RowCheck(const LibraryRow& row, const ColumnList& columns) : row_(row), columns_(columns) {}

    void Run() const {
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            CheckWords(i);
            if (const auto* const text = std::get_if<std::string>(&row_.Values[i])) {
                CheckText(i, *text);
            } else if (const auto* const number = std::get_if<double>(&row_.Values[i])) {
                CheckNumber(i, *number);
            }
        }
    }

  private:
    [[noreturn]] void Refuse(std::size_t place, const std::string& what) const {
        throw CsvFault(row_.Line, static_cast<int>(place) + 1,
                       std::string(columns_[place]->Name) + ": " + what);
    }

    void CheckText(std::size_t place, const std::string& text) const {
        if (LengthOf(text) > kLongestText) Refuse(place, "the text is longer than 255 characters");
        const bool control = std::any_of(text.begin(), text.end(), [](char c) {
            return static_cast<unsigned char>(c) < ' ' || c == '\x7F';
        });
        if (control) Refuse(place, "the text holds a line break or another control character");
    }

    void CheckNumber(std::size_t place, double number) const {
        const FeedColumn& column = *columns_[place];
        if (column.Has(kComputed)) {
            try {
                static_cast<void>(Single(number));
            } catch (const RuntimeError&) {
                Refuse(place, NumberText(number) + " is too large");
            }
            return;
        }
        const ValueLimits limits = LimitsFor(column.Label);
        if (number >= limits.Minimum && number <= limits.Maximum) return;
        Refuse(place, NumberText(number) + " is not between " + NumberText(limits.Minimum) +
                          " and " + NumberText(limits.Maximum));
    }

    // The texts that have to be one of some words. A feed may lack all but its category.
    void CheckWords(std::size_t place) const {
        const std::string_view name = columns_[place]->Name;
        const std::string text = ShownText(row_.Values[place]);
        if (name == kCategoryColumn) {
            RequireOneOf(place, text, kFeedCategories);
        } else if (name == "Energy Eq Class" && !text.empty()) {
            RequireOneOf(place, text, kEnergyClasses);
        } else if (name == "Forage Description" && !text.empty()) {
            RequireOneOf(place, text, kForageDescriptions);
        }
    }

    template <class Words>
    void RequireOneOf(std::size_t place, const std::string& text, const Words& words) const {
        if (std::find(words.begin(), words.end(), text) != words.end()) return;
        std::string list;
        for (const std::string_view word : words) {
            list += (list.empty() ? "" : ", ") + std::string(word);
        }
        Refuse(place, "\"" + text + "\" is none of " + list);
    }

    const LibraryRow& row_;
    const ColumnList& columns_;
};

struct StoredRow {
    int Place = 0;  // in the table, from 0
    LibraryRow Row;
};

// The first row of each name in the library, as its name is shown.
std::map<std::string, StoredRow> RowsByName(Recordset& table, const ColumnList& columns) {
    std::map<std::string, StoredRow> rows;
    GoToFirst(table);
    for (int place = 0; !table.AtEnd(); table.MoveNext(), ++place) {
        LibraryRow row = CurrentRow(table, columns);
        std::string name = DisplayText(NameOf(row, columns));
        rows.emplace(std::move(name), StoredRow{place, std::move(row)});
    }
    return rows;
}

bool IsSame(const FieldValue& stored, const FieldValue& given) {
    if (IsNull(stored) || IsNull(given)) return IsNull(stored) && IsNull(given);
    const auto* const text = std::get_if<std::string>(&stored);
    if (text != nullptr && std::holds_alternative<std::string>(given)) {
        return DisplayText(*text) == std::get<std::string>(given);
    }
    return stored == given;
}

class Import {
  public:
    Import(FeedLibrary& library, const LibraryRows& rows)
        : library_(library),
          rows_(rows),
          all_(WithAllColumns({}).Columns),
          stored_(RowsByName(library.Table(), all_)) {}

    // Settles what becomes of each row, or throws.
    void Plan() {
        RequireColumn(kFeedNameColumn);
        RequireColumn(kCategoryColumn);
        std::map<std::string, int> lines;
        for (const LibraryRow& row : rows_.Rows) {
            const std::string name = NameOf(row, rows_.Columns);
            if (name.empty())
                throw CsvFault(row.Line, PlaceOf(kFeedNameColumn), "the name is empty");
            const auto [first, isFirst] = lines.emplace(name, row.Line);
            if (!isFirst) {
                throw CsvFault(
                    row.Line, PlaceOf(kFeedNameColumn),
                    "\"" + name + "\" stands already in line " + std::to_string(first->second));
            }
            fates_.push_back(FateOf(row, name));
            if (fates_.back() == Fate::Add || fates_.back() == Fate::Replace) {
                RowCheck(row, rows_.Columns).Run();
            }
        }
    }

    ImportResult Run() {
        ImportResult result;
        library_.File().BeginTrans();
        for (std::size_t i = 0; i < fates_.size(); ++i) {
            const LibraryRow& row = rows_.Rows[i];
            switch (fates_[i]) {
                case Fate::Add:
                    library_.Table().AddNew();
                    Write(row, false);
                    ++result.Added;
                    break;
                case Fate::Replace:
                    Seek(NameOf(row, rows_.Columns));
                    library_.Table().Edit();
                    Write(row, true);
                    ++result.Replaced;
                    break;
                case Fate::Keep: ++result.Unchanged; break;
                case Fate::PassOver: result.PassedOver.push_back(row); break;
            }
        }
        library_.File().CommitTrans();
        return result;
    }

  private:
    int PlaceOf(std::string_view name) const {
        for (std::size_t i = 0; i < rows_.Columns.size(); ++i) {
            if (rows_.Columns[i]->Name == name) return static_cast<int>(i) + 1;
        }
        return 0;
    }

    void RequireColumn(std::string_view name) const {
        if (PlaceOf(name) > 0) return;
        throw CsvFault(1, 0, "the column \"" + std::string(name) + "\" is missing");
    }

    Fate FateOf(const LibraryRow& row, const std::string& name) const {
        const auto found = stored_.find(name);
        if (found == stored_.end()) return Fate::Add;
        const FieldValue* const readOnly = Find(found->second.Row, all_, kReadOnlyColumn);
        if (!IsNull(*readOnly) && ToBoolean(*readOnly)) return Fate::PassOver;
        for (std::size_t i = 0; i < rows_.Columns.size(); ++i) {
            const FeedColumn& column = *rows_.Columns[i];
            if (column.Name == kReadOnlyColumn) continue;
            if (!IsSame(*Find(found->second.Row, all_, column.Name), row.Values[i])) {
                return Fate::Replace;
            }
        }
        return Fate::Keep;
    }

    void Seek(const std::string& name) {
        library_.Table().MoveFirst();
        for (int i = stored_.at(name).Place; i > 0; --i)
            library_.Table().MoveNext();
    }

    // A field of a replaced row that says nothing new keeps its bytes.
    void Write(const LibraryRow& row, bool replaces) {
        Recordset& table = library_.Table();
        for (std::size_t i = 0; i < rows_.Columns.size(); ++i) {
            const std::string_view column = rows_.Columns[i]->Name;
            if (replaces && IsSame(table.Value(column), row.Values[i])) continue;
            table.SetValue(column, row.Values[i]);
        }
        table.SetValue(kReadOnlyColumn, false);
        table.Update();
    }

    FeedLibrary& library_;
    const LibraryRows& rows_;
    ColumnList all_;
    std::map<std::string, StoredRow> stored_;
    std::vector<Fate> fates_;
};

}  // namespace

ImportResult ImportFeeds(FeedLibrary& library, const LibraryRows& rows) {
    Import import(library, rows);
    import.Plan();
    return import.Run();
}

}  // namespace tav

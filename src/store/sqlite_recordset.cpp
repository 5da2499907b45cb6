#include "store/sqlite_recordset.h"

#include <algorithm>
#include <utility>

namespace tav {

SqliteRecordset::SqliteRecordset(const SqlConnection& connection, const std::string& table,
                                 bool readOnly)
    : connection_(connection), table_(QuotedName(table)), readOnly_(readOnly) {
    SqlStatement numbers = connection_.Prepare("SELECT rowid FROM " + table_ + " ORDER BY rowid");
    while (numbers.Step())
        rows_.push_back(numbers.Integer(0));
    const SqlStatement all = connection_.Prepare("SELECT * FROM " + table_ + " LIMIT 0");
    for (int i = 0; i < all.ColumnCount(); ++i)
        columns_.push_back(all.ColumnName(i));
}

void SqliteRecordset::RequireRow() const {
    if (AtEnd() || deleted_) Raise(kNoCurrentRecord);
}

void SqliteRecordset::RequireWritable() const {
    if (readOnly_) Raise(kPermissionDenied);
}

void SqliteRecordset::MoveFirst() {
    if (rows_.empty()) Raise(kNoCurrentRecord);
    at_ = 0;
    deleted_ = false;
    row_.reset();
}

void SqliteRecordset::MoveNext() {
    if (deleted_) {
        deleted_ = false;
        return;
    }
    RequireRow();
    ++at_;
    row_.reset();
}

void SqliteRecordset::ReadRow() const {
    SqlStatement statement = connection_.Prepare("SELECT * FROM " + table_ + " WHERE rowid = ?");
    statement.Bind(1, rows_[at_]);
    if (!statement.Step()) Raise(kUnrecognizedFormat);
    row_.emplace();
    for (int i = 0; i < statement.ColumnCount(); ++i) {
        row_->emplace(columns_[static_cast<std::size_t>(i)], statement.Value(i));
    }
}

FieldValue SqliteRecordset::Value(std::string_view column) const {
    RequireRow();
    if (!row_) ReadRow();
    const auto found = row_->find(column);
    if (found == row_->end()) Raise(kInvalidProcedureCall);
    return found->second;
}

void SqliteRecordset::SetValue(std::string_view column, FieldValue value) {
    if (open_ == Open::None) Raise(kInvalidProcedureCall);
    if (std::find(columns_.begin(), columns_.end(), column) == columns_.end()) {
        Raise(kInvalidProcedureCall);
    }
    opened_.insert_or_assign(std::string(column), std::move(value));
}

void SqliteRecordset::AddNew() {
    RequireWritable();
    opened_.clear();
    open_ = Open::New;
}

void SqliteRecordset::Edit() {
    RequireWritable();
    RequireRow();
    opened_.clear();
    open_ = Open::Current;
}

void SqliteRecordset::Update() {
    if (open_ == Open::None) Raise(kInvalidProcedureCall);
    const Open open = std::exchange(open_, Open::None);
    const Fields fields = std::exchange(opened_, {});
    if (open == Open::New) {
        Insert(fields);
    } else if (!fields.empty()) {
        Change(fields);
    }
}

void SqliteRecordset::Insert(const Fields& fields) {
    std::string names;
    std::string places;
    for (const auto& field : fields) {
        names += (names.empty() ? "" : ", ") + QuotedName(field.first);
        places += places.empty() ? "?" : ", ?";
    }
    SqlStatement statement = connection_.Prepare(
        "INSERT INTO " + table_ +
        (fields.empty() ? " DEFAULT VALUES" : " (" + names + ") VALUES (" + places + ")"));
    int parameter = 0;
    for (const auto& field : fields)
        statement.Bind(++parameter, field.second);
    SqlTransaction transaction(connection_);
    statement.Step();
    statement.Reset();
    transaction.Commit();
    const bool wasAtEnd = AtEnd();
    rows_.push_back(connection_.LastRow());
    // The new row does not become the current one.
    if (wasAtEnd) at_ = rows_.size();
}

void SqliteRecordset::Change(const Fields& fields) {
    std::string settings;
    for (const auto& field : fields) {
        settings += (settings.empty() ? "" : ", ") + QuotedName(field.first) + " = ?";
    }
    SqlStatement statement =
        connection_.Prepare("UPDATE " + table_ + " SET " + settings + " WHERE rowid = ?");
    int parameter = 0;
    for (const auto& field : fields)
        statement.Bind(++parameter, field.second);
    statement.Bind(++parameter, rows_[at_]);
    SqlTransaction transaction(connection_);
    statement.Step();
    statement.Reset();
    transaction.Commit();
    row_.reset();
}

void SqliteRecordset::Delete() {
    RequireWritable();
    RequireRow();
    SqlStatement statement = connection_.Prepare("DELETE FROM " + table_ + " WHERE rowid = ?");
    statement.Bind(1, rows_[at_]);
    SqlTransaction transaction(connection_);
    statement.Step();
    statement.Reset();
    transaction.Commit();
    rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(at_));
    deleted_ = true;
    row_.reset();
}

}  // namespace tav

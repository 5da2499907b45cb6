// A table of an SQLite file as the feeds see it.
#pragma once

#include "feeds/feed_library.h"
#include "store/sqlite_connection.h"

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tav {

class SqliteRecordset : public Recordset {
  public:
    // The connection must outlive the object.
    SqliteRecordset(const SqlConnection& connection, const std::string& table, bool readOnly);

    void MoveFirst() override;
    void MoveNext() override;
    bool AtEnd() const override { return at_ >= rows_.size(); }
    FieldValue Value(std::string_view column) const override;
    void SetValue(std::string_view column, FieldValue value) override;
    void AddNew() override;
    void Edit() override;
    void Update() override;
    void Delete() override;

  private:
    using Fields = std::map<std::string, FieldValue, std::less<>>;
    enum class Open { None, New, Current };

    void RequireRow() const;
    void RequireWritable() const;
    void ReadRow() const;
    void Insert(const Fields& fields);
    void Change(const Fields& fields);

    const SqlConnection& connection_;
    std::string table_;
    bool readOnly_;
    std::vector<std::int64_t> rows_;  // their numbers in the file, in order
    std::size_t at_ = 0;
    bool deleted_ = false;  // the current row has been deleted, and at_ stands on the one behind it

    mutable std::optional<Fields> row_;  // the current row, once it has been looked at
    Open open_ = Open::None;
    Fields opened_;
    std::vector<std::string> columns_;
};

}  // namespace tav

// An SQLite connection and its statements. Failures are raised with the library's numbers.
#pragma once

#include "feeds/field_value.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace tav {

// Raises the error that a result code of SQLite stands for: 3045 busy, 3343 damaged, 61 disk full,
// 70 no permission, 14 no memory, 57 anything else.
[[noreturn]] void RaiseSqlite(int code);

class SqlStatement {
  public:
    SqlStatement(sqlite3* connection, std::string_view sql);

    // Parameters count from 1, columns from 0.
    void Bind(int parameter, const FieldValue& value);
    void Bind(int parameter, std::int64_t value);

    // Whether there is a row.
    bool Step();
    void Reset();

    std::int64_t Integer(int column) const;
    // Text is bytes; a number in a Boolean column is a Boolean.
    FieldValue Value(int column) const;
    int ColumnCount() const;
    std::string ColumnName(int column) const;

  private:
    bool IsBooleanColumn(int column) const;

    struct Finalize {
        void operator()(sqlite3_stmt* statement) const;
    };
    std::unique_ptr<sqlite3_stmt, Finalize> statement_;
};

class SqlConnection {
  public:
    enum class Mode { Existing, New };

    SqlConnection(const std::string& path, Mode mode);

    SqlStatement Prepare(std::string_view sql) const { return {connection_.get(), sql}; }
    void Execute(std::string_view sql) const;
    // The first column of the first row of a query.
    std::int64_t Integer(std::string_view sql) const;

    // The beginning of the file as it stands, read through the connection's own handle: closing
    // another one would give up the process's locks on the file.
    std::string FirstBytes(std::size_t count) const;

    std::int64_t LastRow() const;
    bool IsWriteProtected() const;
    bool InTransaction() const;

  private:
    struct CloseConnection {
        void operator()(sqlite3* connection) const;
    };
    std::unique_ptr<sqlite3, CloseConnection> connection_;
};

// A transaction that is rolled back unless it is committed; part of an open one where there is one.
class SqlTransaction {
  public:
    explicit SqlTransaction(const SqlConnection& connection);
    SqlTransaction(const SqlTransaction&) = delete;
    SqlTransaction& operator=(const SqlTransaction&) = delete;
    ~SqlTransaction();

    void Commit();

  private:
    const SqlConnection& connection_;
    bool own_;
};

// A name in quotes, as SQL takes it.
std::string QuotedName(std::string_view name);

}  // namespace tav

#include "store/sqlite_connection.h"

#include <sqlite3.h>

namespace tav {

void RaiseSqlite(int code) {
    switch (code & 0xff) {
        case SQLITE_BUSY:
        case SQLITE_LOCKED: Raise(kFileInUse);
        case SQLITE_CORRUPT:
        case SQLITE_NOTADB: Raise(kUnrecognizedFormat);
        case SQLITE_FULL: Raise(kDiskFull);
        case SQLITE_READONLY:
        case SQLITE_PERM:
        case SQLITE_AUTH:
        case SQLITE_CANTOPEN: Raise(kPermissionDenied);
        case SQLITE_NOMEM: Raise(kOutOfStringSpace);
        default: Raise(kDeviceIOError);
    }
}

namespace {

void Check(int code) {
    if (code != SQLITE_OK) RaiseSqlite(code);
}

int Length(std::string_view text) {
    if (text.size() > 0x7fffffff) Raise(kOutOfStringSpace);
    return static_cast<int>(text.size());
}

}  // namespace

SqlStatement::SqlStatement(sqlite3* connection, std::string_view sql) {
    sqlite3_stmt* statement = nullptr;
    Check(sqlite3_prepare_v2(connection, sql.data(), Length(sql), &statement, nullptr));
    statement_.reset(statement);
}

void SqlStatement::Finalize::operator()(sqlite3_stmt* statement) const {
    sqlite3_finalize(statement);
}

void SqlStatement::Bind(int parameter, std::int64_t value) {
    Check(sqlite3_bind_int64(statement_.get(), parameter, value));
}

void SqlStatement::Bind(int parameter, const FieldValue& value) {
    sqlite3_stmt* const statement = statement_.get();
    if (const auto* const text = std::get_if<std::string>(&value)) {
        Check(
            sqlite3_bind_text(statement, parameter, text->data(), Length(*text), SQLITE_TRANSIENT));
    } else if (const auto* const number = std::get_if<double>(&value)) {
        Check(sqlite3_bind_double(statement, parameter, *number));
    } else if (const auto* const flag = std::get_if<bool>(&value)) {
        Check(sqlite3_bind_int(statement, parameter, *flag ? 1 : 0));
    } else {
        Check(sqlite3_bind_null(statement, parameter));
    }
}

bool SqlStatement::Step() {
    const int code = sqlite3_step(statement_.get());
    if (code != SQLITE_ROW && code != SQLITE_DONE) RaiseSqlite(code);
    return code == SQLITE_ROW;
}

void SqlStatement::Reset() { sqlite3_reset(statement_.get()); }

std::int64_t SqlStatement::Integer(int column) const {
    return sqlite3_column_int64(statement_.get(), column);
}

bool SqlStatement::IsBooleanColumn(int column) const {
    const char* const type = sqlite3_column_decltype(statement_.get(), column);
    return type != nullptr && std::string_view(type) == "BOOLEAN";
}

FieldValue SqlStatement::Value(int column) const {
    sqlite3_stmt* const statement = statement_.get();
    switch (sqlite3_column_type(statement, column)) {
        case SQLITE_NULL: return {};
        case SQLITE_INTEGER:
        case SQLITE_FLOAT: {
            const double number = sqlite3_column_double(statement, column);
            if (IsBooleanColumn(column)) return number != 0;
            return number;
        }
        default: break;
    }
    const void* const bytes = sqlite3_column_blob(statement, column);
    const auto count = static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
    return bytes == nullptr ? std::string() : std::string(static_cast<const char*>(bytes), count);
}

int SqlStatement::ColumnCount() const { return sqlite3_column_count(statement_.get()); }

std::string SqlStatement::ColumnName(int column) const {
    const char* const name = sqlite3_column_name(statement_.get(), column);
    if (name == nullptr) Raise(kOutOfStringSpace);
    return name;
}

SqlConnection::SqlConnection(const std::string& path, Mode mode) {
    const int flags =
        mode == Mode::New ? SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE : SQLITE_OPEN_READWRITE;
    sqlite3* connection = nullptr;
    const int code = sqlite3_open_v2(path.c_str(), &connection, flags, nullptr);
    connection_.reset(connection);
    Check(code);
    // The file may come from anywhere: nothing that stands in it is run.
    Check(sqlite3_db_config(connection, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr));
    Check(sqlite3_db_config(connection, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr));
    Check(sqlite3_db_config(connection, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr));
}

void SqlConnection::CloseConnection::operator()(sqlite3* connection) const {
    sqlite3_close_v2(connection);
}

void SqlConnection::Execute(std::string_view sql) const {
    SqlStatement statement = Prepare(sql);
    while (statement.Step()) {
    }
}

std::int64_t SqlConnection::Integer(std::string_view sql) const {
    SqlStatement statement = Prepare(sql);
    return statement.Step() ? statement.Integer(0) : 0;
}

std::string SqlConnection::FirstBytes(std::size_t count) const {
    sqlite3_file* file = nullptr;
    Check(sqlite3_file_control(connection_.get(), "main", SQLITE_FCNTL_FILE_POINTER, &file));
    std::string bytes(count, '\0');
    const int code = file->pMethods->xRead(file, bytes.data(), static_cast<int>(count), 0);
    if (code == SQLITE_IOERR_SHORT_READ) return {};
    Check(code);
    return bytes;
}

std::int64_t SqlConnection::LastRow() const { return sqlite3_last_insert_rowid(connection_.get()); }

bool SqlConnection::IsWriteProtected() const {
    return sqlite3_db_readonly(connection_.get(), "main") == 1;
}

bool SqlConnection::InTransaction() const { return sqlite3_get_autocommit(connection_.get()) == 0; }

SqlTransaction::SqlTransaction(const SqlConnection& connection)
    : connection_(connection), own_(!connection.InTransaction()) {
    if (own_) connection_.Execute("BEGIN IMMEDIATE");
}

SqlTransaction::~SqlTransaction() {
    if (!own_ || !connection_.InTransaction()) return;
    try {
        connection_.Execute("ROLLBACK");
    } catch (const RuntimeError&) {
        // Closing the connection rolls back as well, and so does the next opening.
    }
}

void SqlTransaction::Commit() {
    if (own_) connection_.Execute("COMMIT");
}

std::string QuotedName(std::string_view name) {
    std::string text = "\"";
    for (const char c : name) {
        text += c;
        if (c == '"') text += c;
    }
    return text + '"';
}

}  // namespace tav

#include "store/sqlite_engine.h"

#include "feeds/feed_columns.h"
#include "store/library_format.h"
#include "store/protected_file_lock.h"
#include "store/sqlite_connection.h"
#include "store/sqlite_recordset.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <utility>

namespace tav {
namespace {

constexpr std::string_view kMagic{"SQLite format 3\0", 16};
constexpr std::size_t kHeaderSize = 100;
constexpr std::size_t kMarkPlace = 68;  // of the application's mark in the header, high byte first

void RequireFile(const std::string& path) {
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    if (std::filesystem::is_regular_file(status)) return;
    if (error == std::errc::permission_denied) Raise(kPermissionDenied);
    Raise(std::filesystem::exists(status) ? kUnrecognizedFormat : kCouldNotFindFile);
}

// Looks at the file's first bytes before SQLite does, which would take an empty file for an empty
// database.
void RequireLibraryHeader(const SqlConnection& connection) {
    const std::string header = connection.FirstBytes(kHeaderSize);
    if (header.size() < kHeaderSize || !header.starts_with(kMagic)) Raise(kUnrecognizedFormat);
    std::uint32_t mark = 0;
    for (const char c : header.substr(kMarkPlace, sizeof mark)) {
        mark = mark << 8 | static_cast<unsigned char>(c);
    }
    if (mark != static_cast<std::uint32_t>(kLibraryMark)) Raise(kUnrecognizedFormat);
}

// The lock is taken at once and, in this locking mode, kept until the file is closed.
void LockExclusively(const SqlConnection& connection) {
    connection.Execute("PRAGMA locking_mode = EXCLUSIVE");
    // On a protected file this keeps out those who could write it; its own lock the others.
    connection.Execute(connection.IsWriteProtected() ? "BEGIN" : "BEGIN EXCLUSIVE");
    connection.Integer("SELECT count(*) FROM sqlite_schema");
    connection.Execute("COMMIT");
}

void RequireSound(const SqlConnection& connection) {
    SqlStatement check = connection.Prepare("PRAGMA quick_check(1)");
    if (!check.Step() || ShownText(check.Value(0)) != "ok") Raise(kUnrecognizedFormat);
}

void RequireColumns(const SqlConnection& connection, const std::string& table) {
    std::set<std::string, std::less<>> names;
    SqlStatement columns = connection.Prepare("SELECT name FROM pragma_table_info(?)");
    columns.Bind(1, FieldValue(table));
    while (columns.Step())
        names.insert(ShownText(columns.Value(0)));
    for (const FeedColumn& column : FeedColumns()) {
        if (!names.contains(column.Name)) Raise(kUnrecognizedFormat);
    }
}

class SqliteDatabase : public Database {
  public:
    SqliteDatabase(std::unique_ptr<ProtectedFileLock> lock,
                   std::unique_ptr<SqlConnection> connection, bool readOnly)
        : lock_(std::move(lock)), connection_(std::move(connection)), readOnly_(readOnly) {}

    std::unique_ptr<Recordset> OpenRecordset(std::string_view table) override {
        RequireOpen();
        SqlStatement found = connection_->Prepare(
            "SELECT count(*) FROM sqlite_schema WHERE type = 'table' AND name = ?");
        found.Bind(1, FieldValue(std::string(table)));
        if (!found.Step() || found.Integer(0) != 1) Raise(kUnrecognizedFormat);
        RequireColumns(*connection_, std::string(table));
        return std::make_unique<SqliteRecordset>(*connection_, std::string(table), readOnly_);
    }

    void Close() override {
        transaction_.reset();
        connection_.reset();
        lock_.reset();
    }

    void BeginTrans() override {
        RequireOpen();
        if (readOnly_) Raise(kPermissionDenied);
        if (transaction_) Raise(kInvalidProcedureCall);
        transaction_ = std::make_unique<SqlTransaction>(*connection_);
    }

    void CommitTrans() override {
        if (!transaction_) Raise(kInvalidProcedureCall);
        transaction_->Commit();
        transaction_.reset();
    }

  private:
    void RequireOpen() const {
        if (!connection_) Raise(kInvalidProcedureCall);
    }

    std::unique_ptr<ProtectedFileLock> lock_;  // goes after the connection
    std::unique_ptr<SqlConnection> connection_;
    bool readOnly_;
    std::unique_ptr<SqlTransaction> transaction_;
};

}  // namespace

std::string_view PasswordOf(std::string_view connect) {
    constexpr std::string_view kKey = "pwd=";
    while (!connect.empty()) {
        const std::size_t end = std::min(connect.find(';'), connect.size());
        std::string_view part = connect.substr(0, end);
        connect.remove_prefix(std::min(end + 1, connect.size()));
        while (part.starts_with(' '))
            part.remove_prefix(1);
        if (part.starts_with(kKey)) return part.substr(kKey.size());
    }
    return {};
}

std::unique_ptr<Database> SqliteEngine::OpenDatabase(const std::string& path, bool exclusive,
                                                     bool readOnly, std::string_view connect) {
    RequireFile(path);
    std::unique_ptr<ProtectedFileLock> lock;
    auto connection = std::make_unique<SqlConnection>(path, SqlConnection::Mode::Existing);
    RequireLibraryHeader(*connection);
    if (exclusive && connection->IsWriteProtected()) {
        lock = std::make_unique<ProtectedFileLock>(path);
    }
    if (exclusive) LockExclusively(*connection);
    if (connection->Integer("PRAGMA user_version") != PasswordCheck(PasswordOf(connect))) {
        Raise(kNotAValidPassword);
    }
    if (!readOnly && connection->IsWriteProtected()) Raise(kPermissionDenied);
    RequireSound(*connection);
    connection->Execute("PRAGMA synchronous = EXTRA");
    return std::make_unique<SqliteDatabase>(std::move(lock), std::move(connection), readOnly);
}

}  // namespace tav

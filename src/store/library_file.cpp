#include "store/library_file.h"

#include "feeds/feed_columns.h"
#include "store/library_format.h"
#include "store/sqlite_connection.h"
#include "store/sqlite_engine.h"

#include <algorithm>
#include <filesystem>

namespace tav {
namespace {

namespace fs = std::filesystem;

std::string TypeOf(const FeedColumn& column) {
    if (column.IsText()) return " TEXT";
    if (column.IsBoolean()) return " BOOLEAN NOT NULL DEFAULT 0";
    return " REAL";
}

std::string TableStatement() {
    std::string columns;
    for (const FeedColumn& column : FeedColumns()) {
        columns += (columns.empty() ? "" : ", ") + QuotedName(column.Name) + TypeOf(column);
    }
    return "CREATE TABLE " + QuotedName(kLibraryTable) + " (" + columns + ")";
}

void WriteRows(const SqlConnection& connection, const LibraryRows& rows) {
    std::string names;
    std::string places;
    for (const FeedColumn* const column : rows.Columns) {
        names += (names.empty() ? "" : ", ") + QuotedName(column->Name);
        places += places.empty() ? "?" : ", ?";
    }
    SqlStatement insert = connection.Prepare("INSERT INTO " + QuotedName(kLibraryTable) + " (" +
                                             names + ") VALUES (" + places + ")");
    for (const LibraryRow& row : rows.Rows) {
        for (std::size_t i = 0; i < rows.Columns.size(); ++i) {
            const bool noFlag = rows.Columns[i]->IsBoolean() && IsNull(row.Values[i]);
            insert.Bind(static_cast<int>(i) + 1, noFlag ? FieldValue(false) : row.Values[i]);
        }
        insert.Step();
        insert.Reset();
    }
}

void WriteLibrary(const std::string& path, const LibraryRows& rows) {
    const SqlConnection connection(path, SqlConnection::Mode::New);
    SqlTransaction transaction(connection);
    connection.Execute("PRAGMA application_id = " + std::to_string(kLibraryMark));
    connection.Execute("PRAGMA user_version = " +
                       std::to_string(PasswordCheck(PasswordOf(kLibraryConnect))));
    connection.Execute(TableStatement());
    WriteRows(connection, rows);
    transaction.Commit();
}

void RequireFolder(const fs::path& path) {
    const fs::path folder = path.parent_path();
    if (!folder.empty() && !fs::is_directory(folder)) Raise(kPathNotFound);
}

// Users' feeds of the library that stands there; none where there is none that can be read.
LibraryRows UserFeeds(const std::string& path) {
    LibraryRows rows = WithAllColumns({});
    SqliteEngine engine;
    try {
        const auto database = engine.OpenDatabase(path, true, true, kLibraryConnect);
        const auto row = database->OpenRecordset(kLibraryTable);
        for (; !row->AtEnd(); row->MoveNext()) {
            if (!IsDefaultFeed(*row)) rows.Rows.push_back(CurrentRow(*row, rows.Columns));
        }
    } catch (const RuntimeError& error) {
        if (error.Number != kCouldNotFindFile && error.Number != kUnrecognizedFormat) throw;
    }
    return rows;
}

}  // namespace

void CreateLibrary(const std::string& path, const LibraryRows& rows) {
    RequireFolder(path);
    const std::string unfinished = path + ".new";
    std::error_code error;
    fs::remove(unfinished, error);
    try {
        WriteLibrary(unfinished, rows);
    } catch (...) {
        fs::remove(unfinished, error);
        throw;
    }
    fs::rename(unfinished, path, error);
    if (!error) return;
    fs::remove(unfinished, error);
    Raise(kPathFileAccessError);
}

void CreateDeliveredLibrary(const std::string& path, const LibraryRows& delivered) {
    LibraryRows rows = WithAllColumns(delivered);
    for (const LibraryRow& row : UserFeeds(path).Rows) {
        const std::string name = NameOf(row, rows.Columns);
        const bool isDelivered = std::any_of(
            delivered.Rows.begin(), delivered.Rows.end(),
            [&](const LibraryRow& other) { return NameOf(other, delivered.Columns) == name; });
        if (!isDelivered) rows.Rows.push_back(row);
    }
    CreateLibrary(path, rows);
}

void CopyDeliveredLibrary(const std::string& from, const std::string& to) {
    std::error_code error;
    fs::copy_file(from, to, fs::copy_options::overwrite_existing, error);
    if (error) Raise(kPathFileAccessError);
    SqliteEngine engine;
    const auto database = engine.OpenDatabase(to, true, false, kLibraryConnect);
    database->BeginTrans();
    for (const auto row = database->OpenRecordset(kLibraryTable); !row->AtEnd(); row->MoveNext()) {
        if (!IsDefaultFeed(*row)) row->Delete();
    }
    database->CommitTrans();
}

}  // namespace tav

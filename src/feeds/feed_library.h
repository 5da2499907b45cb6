// Access to the feed library: the one table of feed analyses in a file beside the program.
//
// The layer is small on purpose. What stands behind it is set once, at the start of a program; the
// logic of the feeds knows no more of it than this. A failure is raised with its number:
//
//   3024  there is no such file
//   3031  the password of the connect string is not the file's
//   3045  the file is in use
//   3343  the file is no feed library, or a damaged one
//   3021  there is no current row
//   70    the file, or this opening of it, does not allow writing
//   61    the disk is full;  57  it can't be read or written
#pragma once

#include "feeds/field_value.h"

#include <memory>
#include <string>
#include <string_view>

namespace tav {

// The rows of a table in their stored order, which is the order in which they were added, with a
// current row: at first the first one. Everything that needs one raises 3021 when there is none.
class Recordset {
  public:
    virtual ~Recordset() = default;

    // Raises 3021 when the table is empty.
    virtual void MoveFirst() = 0;
    // Behind the last row there is none. Raises 3021 there.
    virtual void MoveNext() = 0;
    // EOF: the place behind the last row has been reached. (The C library has a macro EOF.)
    virtual bool AtEnd() const = 0;

    // A field of the current row by its column's name. Raises 5 for a column that isn't there.
    virtual FieldValue Value(std::string_view column) const = 0;

    // Writes a field of the row that AddNew or Edit has opened; raises 5 outside of that.
    virtual void SetValue(std::string_view column, FieldValue value) = 0;

    // AddNew opens a new row, whose unwritten fields are Null (a Boolean: False). Edit opens the
    // current row. Update writes the opened row, a new one behind all others, in one transaction;
    // the current row stays the one that it was. After a failure nothing is written and no row is
    // open.
    virtual void AddNew() = 0;
    virtual void Edit() = 0;
    virtual void Update() = 0;

    // Takes the current row away in one transaction. There is no current row then until MoveNext
    // goes to the one that followed it.
    virtual void Delete() = 0;
};

// An open library. Closing it, or destroying it, ends everything that came from it.
class Database {
  public:
    virtual ~Database() = default;

    // The table of that name. Raises 3343 when there is none.
    virtual std::unique_ptr<Recordset> OpenRecordset(std::string_view table) = 0;
    virtual void Close() = 0;

    // Makes all writes up to CommitTrans one transaction. Without CommitTrans none of them is kept.
    virtual void BeginTrans() = 0;
    virtual void CommitTrans() = 0;
};

// What can open libraries.
class LibraryEngine {
  public:
    virtual ~LibraryEngine() = default;

    // exclusive: nobody else can open the file until it is closed, and the opening fails at once
    // while somebody else has it open. connect is a connect string, "; pwd=" and the password.
    virtual std::unique_ptr<Database> OpenDatabase(const std::string& path, bool exclusive,
                                                   bool readOnly, std::string_view connect) = 0;
};

// The engine in use. SetLibraryEngine keeps a reference; the object must outlive the program.
void SetLibraryEngine(LibraryEngine& engine);

inline constexpr std::string_view kLibraryFile = "TAV Dairy Cattle Program - Feed Library.mdb";
inline constexpr std::string_view kLibraryTable = "Feed Library";
inline constexpr std::string_view kLibraryConnect = "; pwd=amber oats";

// The path of the library beside the program.
std::string LibraryPath();

enum class LibraryUse { ReadOnly, ReadWrite };

// Goes to the first row from wherever the table stands. False if it has none.
bool GoToFirst(Recordset& table);

// Whether the current row is one of the feeds that come with the program, which can be neither
// replaced nor deleted.
bool IsDefaultFeed(const Recordset& row);

// The library, open exclusively at its table for as long as the object lives or until Close.
class FeedLibrary {
  public:
    explicit FeedLibrary(LibraryUse use, const std::string& path = LibraryPath());

    Database& File() { return *database_; }
    Recordset& Table() { return *table_; }

    // Walks from the first row to the first one whose name is exactly that, and returns whether
    // there is one; it is the current row then. A Null is no name, not even the empty one. Raises
    // 3021 when the table is empty.
    bool Find(std::string_view name);

    void Close();

  private:
    std::unique_ptr<Database> database_;
    std::unique_ptr<Recordset> table_;
};

}  // namespace tav

// Reading and writing the program's line-oriented text files. Text is bytes: nothing is decoded.
#pragma once

#include "core/runtime_error.h"

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tav {

// A failure to read a file, with the line where reading failed: from 1, or 0 when the file could
// not be opened. Behind the last line the number is one more than there are lines.
class FileFault : public RuntimeError {
  public:
    FileFault(const RuntimeError& error, int line) : RuntimeError(error), Line(line) {}

    int Line;
    std::string Item;  // what was to be read, such as "feed 3, NDF"; empty where it has no name
    std::string Text;  // what the line holds instead
};

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using FileHandle = std::unique_ptr<std::FILE, CloseFile>;

// Reads lines that end in carriage return and line feed, or in a lone line feed. The last line
// needs no end. Reads ahead in blocks and keeps no more of the file than the line at hand.
class LineReader {
  public:
    // Raises 53 when there is no such file, 76 when there is no such folder, 70 when it may not be
    // read, 75 for a folder.
    explicit LineReader(const std::string& fileName);

    // Reads from a file that is open already.
    explicit LineReader(FileHandle file);

    // The next line without its end, valid until the next call. Raises 62 behind the last line, 14
    // for a line of more than 64 MiB, 57 when the device fails.
    std::string_view ReadLine();

    // How many lines have been asked for: the number of the line at hand.
    int Line() const { return line_; }

    // The line at hand as ReadLine returned it, empty when there was none.
    std::string_view Text() const { return text_; }

  private:
    bool FillBuffer();

    FileHandle file_;
    std::vector<char> buffer_;
    std::size_t begin_ = 0;
    std::size_t end_ = 0;
    int line_ = 0;
    std::string_view text_;
};

// Writes lines that end in carriage return and line feed, straight to the file, which is emptied on
// opening. Raises 76, 75 or 70 when it can't be opened, 61 when the disk is full, 57 when the
// device fails. What was written before a failure stays.
class LineWriter {
  public:
    explicit LineWriter(const std::string& fileName);

    // Writes to a file that is open already.
    explicit LineWriter(FileHandle file);

    void WriteLine(std::string_view text);

    // Hands the rest to the system and closes the file. A failure is raised here and nowhere later.
    void Close();

  private:
    void Flush();

    FileHandle file_;
    std::string pending_;
};

}  // namespace tav

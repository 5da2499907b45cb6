// The files of a batch, as the command line names them.
#pragma once

#include "core/line_file.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tav {

// A list file that can't be read on, in the middle of a batch.
class ListFault : public RuntimeError {
  public:
    explicit ListFault(const RuntimeError& error) : RuntimeError(error) {}
};

// Paths one after the other: those given, or the lines of a list file, of which no more than one is
// kept. Empty lines of a list are passed over, and so is a byte order mark.
class BatchFiles {
  public:
    // list is the path of a list file; empty: the files given. Raises what the file system raises.
    BatchFiles(std::vector<std::string> files, const std::string& list);

    // The next path, nothing behind the last one. Throws ListFault.
    std::optional<std::string> Next();

  private:
    std::optional<std::string> NextLine();

    std::vector<std::string> files_;
    std::size_t next_ = 0;
    std::optional<LineReader> list_;
};

// What a look through the paths tells before anything is written.
struct BatchSurvey {
    std::int64_t Count = 0;  // 0 where it can't be told without using the list up, as for a pipe
    bool HoldsOutput = false;
    bool IsEmpty = false;
};
BatchSurvey SurveyBatch(const std::vector<std::string>& files, const std::string& list,
                        const std::string& output);

}  // namespace tav

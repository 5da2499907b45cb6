// The batch: one row of inputs and results for each of many simulation files.
#pragma once

#include "core/line_file.h"
#include "shell/read_ahead.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tav {

// How far a batch has got.
struct BatchState {
    std::string File;        // the file at hand
    std::int64_t Files = 0;  // files dealt with
    std::int64_t Rows = 0;   // rows written
};

// Whoever has started a batch.
class BatchWatcher {
  public:
    virtual ~BatchWatcher() = default;

    // A file could not be loaded. The record still holds the file before; a new simulation takes
    // its place when this returns.
    virtual void LoadFailed(const std::string& file, const FileFault& fault) = 0;

    // Asked after each file; false ends the batch there, as if there were no more files.
    virtual bool GoesOn(const BatchState& /*state*/) { return true; }
};

class BatchRun {
  public:
    // readers is the number of threads that read files ahead. Whatever it is, the result is that of
    // loading and computing one file after the other.
    BatchRun(NextFile files, BatchWatcher& watcher, int readers = ReadAhead::UsefulReaders());

    // Loads each file into the process-wide record, where the last one stays, computes it and
    // writes a row, in the units of the program's settings. The feeds of the first file are those
    // of the columns; a file in which one has another name gets no row. Values that a computation
    // doesn't write are those of the file before.
    //
    // Raises 9 without a file and for one that has more feeds than the first, 5, 6, 9 or 11 where a
    // computation is aborted, and what the file system raises for the output, which is opened after
    // the first file has been computed. The rows before an error are in the output.
    void Run(const std::string& output);

    const BatchState& State() const { return state_; }

  private:
    void Compute(ReadFile& file);
    void TakeReference();
    bool HasReferenceFeeds() const;
    void WriteHead(LineWriter& output) const;
    void WriteRow(LineWriter& output);
    void WriteRows(LineWriter& output);

    NextFile files_;
    BatchWatcher& watcher_;
    int readers_;
    BatchState state_;
    bool metric_ = true;
    std::vector<std::string> referenceFeeds_;
};

}  // namespace tav

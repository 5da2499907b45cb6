#include "shell/batch_run.h"

#include "core/new_simulation.h"
#include "core/program_state.h"
#include "core/simulation_file.h"
#include "model/computations.h"
#include "shell/batch_table.h"

namespace tav {

BatchRun::BatchRun(NextFile files, BatchWatcher& watcher, int readers)
    : files_(std::move(files)), watcher_(watcher), readers_(readers) {}

// The simulation goes into the one record, so that what it doesn't compute is left from the file
// before.
void BatchRun::Compute(ReadFile& file) {
    state_.File = file.File;
    try {
        if (file.Failure) std::rethrow_exception(file.Failure);
        TakeSimulation(file.Record, TheSimulation());
    } catch (const FileFault& fault) {
        watcher_.LoadFailed(file.File, fault);
        NewSimulation();
    }
    RunComputations();
}

void BatchRun::TakeReference() {
    const SimulationRecord& record = TheSimulation();
    metric_ = TheProgram().UseMetric;
    referenceFeeds_.clear();
    for (std::size_t i = 0; i < record.NumFeeds; ++i)
        referenceFeeds_.push_back(record.Feeds[i].Name);
}

// All feeds are compared, behind the first that differs as well: one too many is an error in any
// case.
bool BatchRun::HasReferenceFeeds() const {
    const SimulationRecord& record = TheSimulation();
    bool same = true;
    for (std::size_t i = 0; i < record.NumFeeds; ++i) {
        if (i >= referenceFeeds_.size()) Raise(kSubscriptOutOfRange);
        same = same && record.Feeds[i].Name == referenceFeeds_[i];
    }
    return same;
}

void BatchRun::WriteHead(LineWriter& output) const {
    output.WriteLine(BatchText(kBatchHeading));
    output.WriteLine("");
    output.WriteLine("");
    output.WriteLine(BatchTitles(referenceFeeds_, metric_));
}

void BatchRun::WriteRow(LineWriter& output) {
    if (HasReferenceFeeds()) {
        output.WriteLine(BatchRow(state_.File, TheSimulation(), metric_));
        ++state_.Rows;
    }
    ++state_.Files;
}

void BatchRun::WriteRows(LineWriter& output) {
    WriteHead(output);
    WriteRow(output);
    ReadAhead ahead(files_, readers_);
    while (watcher_.GoesOn(state_)) {
        ReadFile* const file = ahead.Next();
        if (file == nullptr) break;
        Compute(*file);
        WriteRow(output);
    }
}

void BatchRun::Run(const std::string& output) {
    ReadFile first;
    std::optional<std::string> path = files_();
    if (!path) Raise(kSubscriptOutOfRange);
    first.File = std::move(*path);
    Read(first);
    Compute(first);
    TakeReference();
    LineWriter file(output);
    try {
        WriteRows(file);
    } catch (...) {
        try {
            file.Close();
        } catch (const RuntimeError&) {  // the first error is the one to tell
        }
        throw;
    }
    file.Close();
}

}  // namespace tav

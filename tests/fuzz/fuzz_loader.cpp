// Any bytes as a simulation file: reading ends in a complete record or in a fault of a known
// number, and a record that was read can be computed, written and read again.
#include "core/main_window.h"
#include "core/simulation_file.h"
#include "model/computations.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

void Require(bool condition, const char* what) {
    if (condition) return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

bool Read(const void* data, std::size_t size, tav::SimulationRecord& record) {
    // An empty buffer can't be opened as a file.
    if (size == 0) return false;
    tav::FileHandle file(fmemopen(const_cast<void*>(data), size, "rb"));
    Require(file != nullptr, "memory as a file");
    try {
        tav::LineReader reader(std::move(file));
        tav::ReadSimulation(reader, record);
        return true;
    } catch (const tav::FileFault& fault) {
        Require(fault.Line >= 1, "a fault has its line");
        Require(fault.Number == tav::kTypeMismatch || fault.Number == tav::kOverflow ||
                    fault.Number == tav::kInputPastEnd,
                "a fault has one of three numbers");
        return false;
    }
}

void RequireFinite(const tav::SimulationRecord& record) {
    tav::VisitFields(record, [](std::string_view, const auto& field) {
        if constexpr (std::is_same_v<std::decay_t<decltype(field)>, tav::Single>) {
            Require(std::isfinite(field.Value()), "every value is finite");
        }
    });
}

void Compute(tav::SimulationRecord& record) {
    try {
        tav::RunComputations(record);
    } catch (const tav::RuntimeError& fault) {
        Require(fault.Number == tav::kInvalidProcedureCall || fault.Number == tav::kOverflow ||
                    fault.Number == tav::kSubscriptOutOfRange ||
                    fault.Number == tav::kDivisionByZero,
                "a computation faults by one of four numbers");
    }
    RequireFinite(record);
}

void WriteAndReadAgain(tav::SimulationRecord& record) {
    record.Comments.clear();  // what comments become when they are read is a rule of its own
    char* bytes = nullptr;
    std::size_t size = 0;
    tav::LineWriter writer(tav::FileHandle(open_memstream(&bytes, &size)));
    tav::WriteSimulation(writer, record);
    tav::SimulationRecord again;
    Require(Read(bytes, size, again), "what was written can be read");
    Require(again.NumFeeds == record.NumFeeds && again.Breed == record.Breed, "and is the same");
    std::free(bytes);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tav::SimulationRecord record;
    if (!Read(data, size, record)) return 0;
    WriteAndReadAgain(record);
    Compute(record);
    return 0;
}

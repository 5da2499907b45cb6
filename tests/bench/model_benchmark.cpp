// How long a computation, a load and a save take. Ends with the ratio of a load to merely reading
// the same file's lines, both measured in this run.
#include "bench/sample_cows.h"
#include "model/computations.h"

#include <cstdio>
#include <fstream>
#include <map>
#include <string>

#include <benchmark/benchmark.h>

namespace {

using tav::CowWithTwelveFeeds;
using tav::Sample;
using tav::SimulationRecord;

void Compute(benchmark::State& state, SimulationRecord record) {
    for (auto _ : state) {
        tav::RunComputations(record);
        benchmark::DoNotOptimize(record.DCAD);
    }
}

void ComputeCow(benchmark::State& state) { Compute(state, CowWithTwelveFeeds()); }
void ComputeCalf(benchmark::State& state) { Compute(state, Sample("Young Calf.tav")); }
BENCHMARK(ComputeCow);
BENCHMARK(ComputeCalf);

// A file of 12 feeds.
std::string TwelveFeedFile() {
    const std::string file = (tav::FolderInMemory() / "tav benchmark.tav").string();
    tav::WriteSimulation(file, CowWithTwelveFeeds());
    return file;
}

void ReadLines(benchmark::State& state) {
    const std::string file = TwelveFeedFile();
    for (auto _ : state) {
        std::ifstream in(file, std::ios::binary);
        std::size_t size = 0;
        for (std::string line; std::getline(in, line);)
            size += line.size();
        benchmark::DoNotOptimize(size);
    }
}

void Load(benchmark::State& state) {
    const std::string file = TwelveFeedFile();
    SimulationRecord record;
    for (auto _ : state) {
        tav::ReadSimulation(file, record);
        benchmark::DoNotOptimize(record.TotalDMI);
    }
}

void Save(benchmark::State& state) {
    const std::string file = TwelveFeedFile();
    const SimulationRecord record = CowWithTwelveFeeds();
    for (auto _ : state)
        tav::WriteSimulation(file, record);
}

BENCHMARK(ReadLines);
BENCHMARK(Load);
BENCHMARK(Save);

// Prints as usual and keeps the times for the ratio at the end.
class Reporter : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs)
            times_[run.benchmark_name()] = run.GetAdjustedCPUTime();
        ConsoleReporter::ReportRuns(runs);
    }
    void Finalize() override {
        if (times_.count("Load") == 0 || times_.count("ReadLines") == 0) return;
        std::printf("Load / ReadLines: %.2f\n", times_["Load"] / times_["ReadLines"]);
    }

  private:
    std::map<std::string, double> times_;
};

}  // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    Reporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}

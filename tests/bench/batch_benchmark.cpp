// How many files a second a batch takes, by the number of threads that read ahead, from files that
// the system has in memory.
#include "bench/sample_cows.h"
#include "core/program_state.h"
#include "shell/batch_run.h"

#include <filesystem>
#include <vector>

#include <benchmark/benchmark.h>

namespace {

constexpr int kFiles = 5000;

// A herd of cows with 12 feeds each, which goes with the program.
class Herd {
  public:
    Herd() {
        std::filesystem::create_directory(folder_);
        tav::SimulationRecord cow = tav::CowWithTwelveFeeds();
        for (int i = 0; i < kFiles; ++i) {
            cow.BodyWeight = 500 + i % 200;
            Paths.push_back((folder_ / (std::to_string(i) + ".tav")).string());
            tav::WriteSimulation(Paths.back(), cow);
        }
    }
    ~Herd() {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
    Herd(const Herd&) = delete;
    Herd& operator=(const Herd&) = delete;

    std::string Output() const { return (folder_ / "herd.csv").string(); }

    std::vector<std::string> Paths;

  private:
    std::filesystem::path folder_ = tav::FolderInMemory() / "tav benchmark herd";
};

class NoWatcher : public tav::BatchWatcher {
    void LoadFailed(const std::string&, const tav::FileFault& fault) override { throw fault; }
};

void Batch(benchmark::State& state) {
    static const Herd herd;
    tav::TheProgram().UseMetric = true;
    for (auto _ : state) {
        std::size_t next = 0;
        const tav::NextFile files = [&]() -> std::optional<std::string> {
            if (next == herd.Paths.size()) return std::nullopt;
            return herd.Paths[next++];
        };
        NoWatcher watcher;
        tav::BatchRun(files, watcher, static_cast<int>(state.range(0))).Run(herd.Output());
    }
    state.SetItemsProcessed(state.iterations() * kFiles);
}

BENCHMARK(Batch)->Arg(0)->Arg(1)->Arg(3)->UseRealTime()->Unit(benchmark::kMillisecond);

}  // namespace

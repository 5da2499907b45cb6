// Simulations for the benchmarks.
#pragma once

#include "core/simulation_file.h"

#include <filesystem>
#include <string>

namespace tav {

inline SimulationRecord Sample(const std::string& name) {
    SimulationRecord record;
    ReadSimulation(TAV_SIMULATIONS + name, record);
    return record;
}

// A lactating cow with 12 feeds.
inline SimulationRecord CowWithTwelveFeeds() {
    SimulationRecord record = Sample("Lactating Cow.tav");
    record.Feeds.resize(record.NumFeeds);
    while (record.NumFeeds < 12) {
        record.Feeds.push_back(record.Feeds[record.NumFeeds % 3]);
        ++record.NumFeeds;
    }
    return record;
}

// A folder for the files to read, in memory where the system has such a place.
inline std::filesystem::path FolderInMemory() {
    const bool memory = std::filesystem::is_directory("/dev/shm");
    return memory ? std::filesystem::path("/dev/shm") : std::filesystem::temp_directory_path();
}

}  // namespace tav

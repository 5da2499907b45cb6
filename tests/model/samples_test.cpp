// The sample simulations against stored results, one column a file. Where a cell is empty the
// animal has no such result. A change that is meant changes the table too.
#include "core/simulation_file.h"
#include "model/computations.h"
#include "support.h"

#include <cmath>
#include <fstream>
#include <sstream>

namespace tav {
namespace {

using Cells = std::vector<std::string>;

// The table's lines split at commas; lines that start with # are remarks.
std::vector<Cells> ReadTable() {
    std::vector<Cells> table;
    std::ifstream file(SAMPLE_RESULTS);
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('#')) continue;
        std::istringstream cells(line);
        table.emplace_back();
        for (std::string cell; std::getline(cells, cell, ',');)
            table.back().push_back(cell);
    }
    return table;
}

TEST(Samples, ResultsStandAsStored) {
    const std::vector<Cells> table = ReadTable();
    ASSERT_GT(table.size(), 30u);
    ASSERT_EQ(11u, table[0].size());
    for (std::size_t column = 1; column < table[0].size(); ++column) {
        SCOPED_TRACE(table[0][column]);
        SimulationRecord r;
        ReadSimulation(SIMULATION_FILES + table[0][column] + ".tav", r);
        RunComputations(r);
        int compared = 0;
        for (const Cells& line : table) {
            if (&line == &table[0] || line.size() <= column || line[column].empty()) continue;
            const double stored = std::stod(line[column]);
            EXPECT_NEAR(stored, NumberOf(r, line[0]), std::abs(stored) * 5.1e-6)
                << line[0];  // 6 digits
            ++compared;
        }
        EXPECT_GE(compared, 14);
    }
}

}  // namespace
}  // namespace tav

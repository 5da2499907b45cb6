// Every report of every kind of animal in both systems of units, as text, against pages that were
// checked by hand. After a change that is meant: UPDATE_PAGES=1 writes them anew; read the
// difference.
#include "support/report_fixture.h"

#include <cstdlib>
#include <fstream>
#include <iterator>

namespace tav {
namespace {

struct Case {
    std::string Simulation;
    bool Metric;
};

std::string FileOf(const Case& c) {
    return std::string(PAGES) + "/" + c.Simulation + (c.Metric ? ", metric" : ", English") + ".txt";
}

class StoredPages : public ReportTest, public testing::WithParamInterface<Case> {};

TEST_P(StoredPages, AreWhatIsPrinted) {
    const Case& c = GetParam();
    Load(c.Simulation);
    TheSimulation().HeaderFields = {"Simulation File Name", "Long Date", "24 Hr Time"};
    TheSimulation().FooterFields = {"", "Page Number", ""};
    TheProgram().UseMetric = c.Metric;
    const std::string text = TextForm(*Make());
    if (std::getenv("UPDATE_PAGES") != nullptr) std::ofstream(FileOf(c)) << text;
    std::ifstream file(FileOf(c), std::ios::binary);
    const std::string stored{std::istreambuf_iterator<char>(file), {}};
    EXPECT_EQ(text, stored);
}

std::vector<Case> Cases() {
    std::vector<Case> cases;
    for (const char* const simulation :
         {"Lactating Cow", "Close-up Dry Cow", "Replacement Heifer", "Heifer in Winter",
          "Young Calf", "Grazing Cow in Hilly Country"}) {
        cases.push_back({simulation, true});
        cases.push_back({simulation, false});
    }
    return cases;
}

std::string NameOf(const testing::TestParamInfo<Case>& info) {
    std::string name = info.param.Simulation + (info.param.Metric ? "Metric" : "English");
    std::erase_if(name, [](char c) { return c == ' ' || c == '-'; });
    return name;
}

INSTANTIATE_TEST_SUITE_P(Samples, StoredPages, testing::ValuesIn(Cases()), NameOf);

}  // namespace
}  // namespace tav

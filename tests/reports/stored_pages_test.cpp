// Every report of every kind of animal in both systems of units, as text, against pages that were
// checked by hand. Of the English pages only the lines are kept that read otherwise than in metric
// units, with their numbers. After a change that is meant: UPDATE_PAGES=1 writes them anew; read
// the difference.
#include "support/report_fixture.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>

namespace tav {
namespace {

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

// The lines of a text that aren't those of another one. A text of more or fewer lines counts whole.
std::string Differing(const std::string& text, const std::string& other) {
    const std::vector<std::string> lines = LinesOf(text);
    const std::vector<std::string> others = LinesOf(other);
    if (lines.size() != others.size()) return text;
    std::string differing;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i] != others[i]) differing += std::to_string(i + 1) + ": " + lines[i] + "\n";
    }
    return differing;
}

class StoredPages : public ReportTest, public testing::WithParamInterface<const char*> {
  protected:
    std::string Printed(bool metric) {
        Load(GetParam());
        TheSimulation().HeaderFields = {"Simulation File Name", "Long Date", "24 Hr Time"};
        TheSimulation().FooterFields = {"", "Page Number", ""};
        TheProgram().UseMetric = metric;
        return TextForm(*Make());
    }

    static void Compare(const std::string& text, const std::string& units) {
        const std::string name = std::string(PAGES) + "/" + GetParam() + ", " + units + ".txt";
        if (std::getenv("UPDATE_PAGES") != nullptr) std::ofstream(name) << text;
        std::ifstream file(name, std::ios::binary);
        EXPECT_EQ(text, std::string(std::istreambuf_iterator<char>(file), {})) << units;
    }
};

TEST_P(StoredPages, AreWhatIsPrinted) {
    const std::string metric = Printed(true);
    Compare(metric, "metric");
    Compare(Differing(Printed(false), metric), "English");
}

std::string NameOf(const testing::TestParamInfo<const char*>& info) {
    std::string name = info.param;
    std::erase_if(name, [](char c) { return c == ' ' || c == '-'; });
    return name;
}

INSTANTIATE_TEST_SUITE_P(Samples, StoredPages,
                         testing::Values("Lactating Cow", "Close-up Dry Cow", "Replacement Heifer",
                                         "Heifer in Winter", "Young Calf",
                                         "Grazing Cow in Hilly Country"),
                         NameOf);

}  // namespace
}  // namespace tav

// What the tests of the reports share: a record from a sample simulation, and a document of some of
// its reports as the program makes it.
#pragma once

#include "core/program_state.h"
#include "core/simulation_file.h"
#include "forms/headless_platform.h"
#include "model/computations.h"
#include "reports/generator.h"
#include "reports/page_layout.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace tav {

class ReportTest : public testing::Test {
  protected:
    ReportTest() {
        using namespace std::chrono;
        platform.Clock = local_days(2026y / November / 22) + 15h + 27min + 5s;
        SetPlatform(platform);
        TheProgram() = {};
        TheProgram().UseMetric = true;
        TheProgram().DefaultZoom = "75%";
        TheSimulation() = {};
    }

    static SimulationRecord& Load(const std::string& simulation) {
        ReadSimulation(std::string(SIMULATIONS) + "/" + simulation + ".tav", TheSimulation());
        TheProgram().SimulationFileName = simulation;
        RunComputations();
        return TheSimulation();
    }

    // A document of the named reports; of all reports if none is named.
    std::shared_ptr<const ReportDocument> Make(const std::vector<std::string>& wanted = {},
                                               int orientation = kPortrait) {
        const std::vector<std::string> names = ReportComponentNames(TheSimulation().AnimalType);
        std::vector<bool> marked;
        for (const std::string& name : names) {
            marked.push_back(wanted.empty() ||
                             std::find(wanted.begin(), wanted.end(), name) != wanted.end());
        }
        PageLayout layout;
        layout.Orientation = orientation;
        SetUpDocument(layout, state);
        AssembleReports(layout, state, marked);
        return layout.Document();
    }

    std::string TextOf(const std::string& report) { return TextForm(*Make({report})); }

    HeadlessPlatform platform;
    ReportState state;
};

// Whether a line of the text is exactly this one.
inline bool HasLine(const std::string& text, const std::string& line) {
    return ("\n" + text).find("\n" + line + "\n") != std::string::npos;
}
#define EXPECT_LINE(text, line) EXPECT_TRUE(HasLine(text, line)) << line << "\nin\n" << (text)
#define EXPECT_NO_LINE(text, line) EXPECT_FALSE(HasLine(text, line)) << line

}  // namespace tav

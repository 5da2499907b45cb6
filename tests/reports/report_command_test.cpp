// `tav report` as it is used from a shell.
#include "core/simulation_file.h"
#include "support/report_fixture.h"
#include "support/temporary_folder.h"

#include <cstdlib>
#include <fstream>
#include <iterator>

#include <sys/wait.h>

namespace tav {
namespace {

class ReportCommand : public ReportTest {
  protected:
    // Runs it on the file of that name; what it printed or said stands in Output and Messages.
    int Run(const std::string& simulation, const std::string& options) {
        const std::string file = std::string(SIMULATIONS) + "/" + simulation + ".tav";
        return RunOn(file, options);
    }

    int RunOn(const std::string& file, const std::string& options) {
        const std::string command = std::string("'") + TAV_PROGRAM + "' report '" + file + "' " +
                                    options + " >" + folder.Path("out") + " 2>" +
                                    folder.Path("err");
        const int status = std::system(command.c_str());
        Output = Contents("out");
        Messages = Contents("err");
        return WEXITSTATUS(status);
    }

    std::string Contents(const std::string& name) {
        std::ifstream file(folder.Path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    TemporaryFolder folder;
    std::string Output, Messages;
};

TEST_F(ReportCommand, PrintsTheNamedReportsInTheOrderOfTheList) {
    ASSERT_EQ(Run("Dry Cow", "--component 'Mineral Requirements' --component 'Dry Matter Intake'"),
              0);
    EXPECT_LT(Output.find("Dry Matter Intake\n"), Output.find("Mineral Requirements\n"));
    EXPECT_EQ(Output.find("Summary Report"), std::string::npos);
    EXPECT_NE(Output.find("\n\f\n["), std::string::npos);
    EXPECT_EQ(Output.find('\r'), std::string::npos);
}

TEST_F(ReportCommand, PrintsAllReportsIfNoneIsNamed) {
    ASSERT_EQ(Run("Dry Cow", "--english"), 0);
    for (const char* const line : {"Summary Report", "Reserves Requirements"})
        EXPECT_LINE(Output, line);
    EXPECT_LINE(Output, "Body Weight :  1466 lbs");
}

TEST_F(ReportCommand, AnUnknownNameIsAnErrorThatListsTheNames) {
    EXPECT_EQ(Run("Young Calf", "--component 'Summary Report'"), 2);
    EXPECT_NE(Messages.find("no report \"Summary Report\" for a Young Calf"), std::string::npos);
    EXPECT_NE(Messages.find("\n  Calf Requirements\n  Mineral Requirements\n"), std::string::npos);
    EXPECT_TRUE(Output.empty());
    EXPECT_EQ(Run("Young Calf", "--format svg"), 2);
}

TEST_F(ReportCommand, WritesAPdfThatIsTheSameEachTime) {
    const std::string file = folder.Path("report.pdf");
    ASSERT_EQ(Run("Young Calf", "--format pdf --output " + file), 0);
    EXPECT_TRUE(Output.empty());
    const std::string first = Contents("report.pdf");
    EXPECT_TRUE(first.starts_with("%PDF-"));
    ASSERT_EQ(Run("Young Calf", "--format pdf"), 0);
    EXPECT_EQ(Output, first);
}

TEST_F(ReportCommand, ExplainsWhatKeepsItFromAReport) {
    EXPECT_EQ(RunOn(folder.Path("none.tav"), ""), 1);
    EXPECT_NE(Messages.find("no such file"), std::string::npos);
    EXPECT_EQ(Run("Young Calf", "--output " + folder.Path("none/report.txt")), 1);
    EXPECT_NE(Messages.find("could not be written"), std::string::npos);

    Load("Dry Cow");
    TheSimulation().TotalDMI = 0;
    WriteSimulation(folder.Path("no ration.tav"), TheSimulation());
    EXPECT_EQ(RunOn(folder.Path("no ration.tav"), ""), 1);
    EXPECT_NE(Messages.find("must have a ration"), std::string::npos);

    Load("Dry Cow");
    TheSimulation().Feeds[0].DM = 0;
    WriteSimulation(folder.Path("no dry matter.tav"), TheSimulation());
    EXPECT_EQ(RunOn(folder.Path("no dry matter.tav"), ""), 1);
    EXPECT_NE(Messages.find("error 11"), std::string::npos);
    EXPECT_TRUE(Output.empty());
}

}  // namespace
}  // namespace tav

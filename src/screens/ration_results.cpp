// The panel of results on the ration screen.
#include "core/program_state.h"
#include "core/simulation_record.h"
#include "screens/ration_form.h"
#include "screens/summary_results.h"

namespace tav {

void RationForm::ShowSummaryResults(Single totalDMI) {
    const bool any = totalDMI != 0 && TheSimulation().NumFeeds != 0;
    lblResults[4].Alignment = any ? Alignment::Left : Alignment::Center;
    lblResults[5].Alignment = lblResults[4].Alignment;
    if (any) {
        ShowResults();
    } else {
        lblResults.ForEach([](Label& label, int) { label.Caption.clear(); });
        lblResults[4].Caption = kNoRationTexts[0];
        lblResults[5].Caption = kNoRationTexts[1];
    }
    lblRDPWarning.Visible = DegradedProteinIsLimiting(TheSimulation());
}

void RationForm::ShowResults() {
    ProgramState& program = TheProgram();
    if (program.DefaultSummaryResults) TakeDefaultSummaryChoices();
    lblResults.ForEach([&](Label& label, int i) {
        label.Caption = SummaryResultText(TheSimulation(),
                                          program.SummaryResultsNames[static_cast<std::size_t>(i)],
                                          program.UseMetric);
    });
}

}  // namespace tav

// The first tab of the inputs screen: units, report page, summary lines.
#include "core/program_state.h"
#include "core/simulation_record.h"
#include "screens/inputs_form.h"
#include "screens/placing.h"
#include "screens/summary_results.h"

#include <array>

namespace tav {
namespace {

constexpr std::string_view kZoomWhenEmpty = "75%";

constexpr std::array<const char*, 9> kPageFields = {
    "Page Number", "Simulation File Name", "General Date",
    "Long Date",   "Medium Date",          "Short Date",
    "Long Time",   "Short Time",           "24 Hr Time (15:27)"};

constexpr std::array<const char*, 12> kZooms = {
    "Page Width", "Whole Page", "Two Pages", "Thumbnail", "25%",  "50%",
    "75%",        "100%",       "125%",      "150%",      "200%", "400%"};

void ShowChoices(ControlArray<ComboBox>& boxes) {
    const std::vector<std::string_view> choices = SummaryChoiceNames();
    boxes.ForEach([&](ComboBox& box, int) {
        box.Clear();
        for (const std::string_view choice : choices)
            box.AddItem(std::string(choice));
    });
}

}  // namespace

void InputsForm::SetUpSettingsTab() {
    const auto place = [this](Control& control, int left, int top, int width, int height) {
        PlaceOn(InputTabs, kProgramSettings, control, left, top, width, height);
    };
    fraUnits.Caption = "Units";
    place(fraUnits, 180, 660, 2670, 1260);
    PlaceCaption(optMetric, "Metric", 180, 390, 2310);
    PlaceCaption(optEnglish, "English", 180, 825, 2310);
    fraBasis.Caption = "Feed Basis";
    place(fraBasis, 3030, 660, 2670, 1260);
    PlaceCaption(optDryMatter, "Dry Matter", 180, 390, 2310);
    PlaceCaption(optAsFed, "As-Fed", 180, 825, 2310);
    lblComments.Caption = "Comments";
    place(lblComments, 180, 2025, 5520, kLineHeight);
    txtComments.MultiLine = true;
    place(txtComments, 180, 2370, 5520, 1680);
    SetUpReportSettings();
    SetUpSummarySettings();

    optMetric.Click = [] { TheProgram().UseMetric = true; };
    optEnglish.Click = [] { TheProgram().UseMetric = false; };
    optDryMatter.Click = [] { TheProgram().DryMatterBasis = true; };
    optAsFed.Click = [] { TheProgram().DryMatterBasis = false; };
}

void InputsForm::SetUpReportSettings() {
    constexpr FieldColumn kColumn = {180, 1740, 3300};
    fraHeadersAndFooters.Caption = "Report Headers and Footers";
    PlaceOn(InputTabs, kProgramSettings, fraHeadersAndFooters, 180, 4230, 5520, 3780);
    PlaceField(kColumn, lblLeftHeader, "Left Header", cboLeftHeader, 390);
    PlaceField(kColumn, lblCenterHeader, "Center Header", cboCenterHeader, 930);
    PlaceField(kColumn, lblRightHeader, "Right Header", cboRightHeader, 1470);
    PlaceField(kColumn, lblLeftFooter, "Left Footer", cboLeftFooter, 2070);
    PlaceField(kColumn, lblCenterFooter, "Center Footer", cboCenterFooter, 2610);
    PlaceField(kColumn, lblRightFooter, "Right Footer", cboRightFooter, 3150);
    for (ComboBox* const box : {&cboLeftHeader, &cboCenterHeader, &cboRightHeader, &cboLeftFooter,
                                &cboCenterFooter, &cboRightFooter}) {
        box->FreeText = true;
        for (const char* const field : kPageFields)
            box->AddItem(field);
    }
    PlaceFieldOn(InputTabs, kProgramSettings, {180, 2460, 2940}, lblDefaultZoom,
                 "Report Preview Zoom", cboDefaultZoom, 8280);
    for (const char* const zoom : kZooms)
        cboDefaultZoom.AddItem(zoom);
}

void InputsForm::SetUpSummarySettings() {
    constexpr FieldColumn kColumn = {180, 900, 4500};
    fraSummaryResults.Caption = "Ration Results";
    PlaceOn(InputTabs, kProgramSettings, fraSummaryResults, 5940, 660, 5880, 7350);
    PlaceCaption(chkDefaultSumRes, "Use the Default Results of the Animal Type", 120, 390, 5700);
    for (int i = 0; i < cboSumRes.Count(); ++i) {
        PlaceField(kColumn, lblSumRes[i], "Line " + std::to_string(i + 1), cboSumRes[i],
                   960 + i * 630);
    }
}

void InputsForm::ShowProgramSettings() {
    ProgramState& program = TheProgram();
    const SimulationRecord& r = TheSimulation();
    (program.UseMetric ? optMetric : optEnglish).SetValue(true);
    (program.DryMatterBasis ? optDryMatter : optAsFed).SetValue(true);
    txtComments.Text = r.Comments;
    cboLeftHeader.SetText(r.HeaderFields[0]);
    cboCenterHeader.SetText(r.HeaderFields[1]);
    cboRightHeader.SetText(r.HeaderFields[2]);
    cboLeftFooter.SetText(r.FooterFields[0]);
    cboCenterFooter.SetText(r.FooterFields[1]);
    cboRightFooter.SetText(r.FooterFields[2]);
    ShowChoices(cboSumRes);
    chkDefaultSumRes.Value = program.DefaultSummaryResults;
    if (program.DefaultSummaryResults) TakeDefaultSummaryChoices();
    cboSumRes.ForEach([&](ComboBox& box, int i) {
        const std::string& name = program.SummaryResultsNames[static_cast<std::size_t>(i)];
        if (!name.empty()) box.SetText(name);
    });
    if (program.DefaultZoom.empty()) program.DefaultZoom = kZoomWhenEmpty;
    cboDefaultZoom.SetText(program.DefaultZoom);
    program.CurrentInputsTab = kProgramSettings;
}

void InputsForm::StoreProgramSettings() {
    ProgramState& program = TheProgram();
    if (program.StartingUp) return;
    SimulationRecord& r = TheSimulation();
    program.UseMetric = optMetric.Value();
    program.DryMatterBasis = optDryMatter.Value();
    r.Comments = txtComments.Text;
    r.HeaderFields = {cboLeftHeader.Text(), cboCenterHeader.Text(), cboRightHeader.Text()};
    r.FooterFields = {cboLeftFooter.Text(), cboCenterFooter.Text(), cboRightFooter.Text()};
    for (int i = 0; i < cboSumRes.Count(); ++i)
        program.SummaryResultsNames[static_cast<std::size_t>(i)] = cboSumRes[i].Text();
    program.DefaultSummaryResults = chkDefaultSumRes.Value;
    program.DefaultZoom = cboDefaultZoom.Text();
}

}  // namespace tav

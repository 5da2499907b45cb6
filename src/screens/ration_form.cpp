#include "screens/ration_form.h"

#include "core/number_text.h"
#include "core/program_state.h"
#include "core/simulation_record.h"
#include "forms/context_help.h"
#include "model/computations.h"
#include "screens/leading_number.h"
#include "screens/placing.h"
#include "screens/quantity.h"
#include "screens/ration_units.h"

#include <algorithm>
#include <array>

namespace tav {
namespace {

constexpr int kRowsBesideFeeds = 4;
constexpr double kLeastFontSize = 8.25;
constexpr double kUnitsPerPointAndLetter = 11;  // a letter is a little wider than half its height
constexpr int kScrollBar = 300;

// The width of a text in letters; a blank takes half of one.
double LettersOf(std::string_view text) {
    const auto blanks = static_cast<double>(std::count(text.begin(), text.end(), ' '));
    return static_cast<double>(text.size()) - blanks / 2;
}

}  // namespace

RationForm::RationForm() : ScreenForm("Ration") {
    PlaceControls();
    TieEvents();
}

void RationForm::PlaceControls() {
    constexpr FieldColumn kIntake = {5640, 1620, 2160};
    lblBasisLabel.Move(180, 180, 5280, kLineHeight);
    grdRation.Move(180, 600, 5280, 8220);
    grdRation.FontSize = 10;
    grdRation.FixedRows = 1;
    grdRation.FixedCols = 1;
    grdRation.SetCols(kColumns);
    grdRation.SetColAlignment(kQuantity, Alignment::Right);
    grdRation.SetColAlignment(kShare, Alignment::Right);
    PlaceField(kIntake, lblPredIntake, "Total Intake", txtTotalIntake, 600);
    txtTotalIntake.Format = "0.000";
    cmdEstimateIntake.Caption = "&Estimate Intake";
    cmdEstimateIntake.ToolTip = "Give the ration the predicted intake, with the same shares";
    cmdEstimateIntake.Move(5640, 1200, 3000, 540);
    cmdResetIntake.Caption = "&Set to 100%";
    cmdResetIntake.ToolTip = "Make the total intake the sum of the quantities";
    cmdResetIntake.Move(8820, 1200, 3000, 540);
    lblRDPWarning.Caption = "RDP Limiting - Energy Estimates May Be Erroneous";
    lblRDPWarning.Visible = false;
    lblRDPWarning.Move(5640, 1920, 6180, kLineHeight);
    fraSummaryResults.Caption = "Ration Results";
    fraSummaryResults.Move(5640, 2460, 6180, 6360);
    lblResults.ForEach([](Label& label, int i) { label.Move(120, 450 + i * 570, 5940, 405); });
}

void RationForm::TieEvents() {
    grdRation.BeforeEdit = [this](int row, int col, bool& cancel) {
        grdRation_BeforeEdit(row, col, cancel);
    };
    grdRation.ValidateEdit = [this](int, int, bool& cancel) { grdRation_ValidateEdit(cancel); };
    grdRation.AfterEdit = [this](int row, int col) { grdRation_AfterEdit(row, col); };
    grdRation.LeaveCell = [this](int row, int col) { grdRation_LeaveCell(row, col); };
    txtTotalIntake.GotFocus = [this] { txtTotalIntake_GotFocus(); };
    txtTotalIntake.ValueEntered = [this] { totalIsPending_ = true; };
    txtTotalIntake.LostFocus = [this] { ApplyTotalIntake(); };
    cmdEstimateIntake.Click = [this] { cmdEstimateIntake_Click(); };
    cmdResetIntake.Click = [this] { cmdResetIntake_Click(); };
    for (Control* const control : Controls()) {
        const ControlKind kind = control->Kind();
        if (kind != ControlKind::Label && kind != ControlKind::CommandButton) continue;
        control->MouseUp = [control](MouseButton button) {
            if (button == MouseButton::Right) OpenContextMenu(*control);
        };
    }
}

int RationForm::LastFeedRow() const { return TheSimulation().NumFeeds + kFirstFeedRow - 1; }

int RationForm::TotalsRow() const { return LastFeedRow() + 2; }

double RationForm::CellNumber(int row, int col) const {
    return LeadingNumber(grdRation.TextMatrix(row, col));
}

double RationForm::SumOfQuantities() const {
    Number sum;
    for (int row = kFirstFeedRow; row <= LastFeedRow(); ++row)
        sum += CellNumber(row, kQuantity);
    return sum.Value();
}

Number RationForm::Total() const { return EnteredNumber(txtTotalIntake); }

void RationForm::ShowTotal(std::string_view number) {
    txtTotalIntake.Units = RationUnit();
    txtTotalIntake.Text = WithUnit(number, RationUnit());
}

void RationForm::FillRationInput() {
    cmdEstimateIntake.Enabled = TheSimulation().AnimalType != kYoungCalf;
    grdRation.SetRows(TheSimulation().NumFeeds + kRowsBesideFeeds);
    FillHeader();
    for (int feed = 1; feed <= TheSimulation().NumFeeds; ++feed)
        FillFeedRow(feed);
    RationTotalIntake = SumOfQuantities();
    ShowTotal(FormatNumber(RationTotalIntake, "0.000"));
    ShowShares();
    lblBasisLabel.Caption = TheProgram().DryMatterBasis ? "Ration List (Dry Matter Basis)"
                                                        : "Ration List (As-Fed Basis)";
    grdRation.SetCursor(1, 1);
    FitColumns();
    if (TheSimulation().TotalDMI > 0) RunComputations();
    ShowSummaryResults(TheSimulation().TotalDMI);
}

void RationForm::FillHeader() {
    const auto fill = [this](int row, const std::array<std::string, kColumns>& texts) {
        for (int col = 0; col < kColumns; ++col)
            grdRation.SetTextMatrix(row, col, texts[static_cast<std::size_t>(col)]);
    };
    const std::string unit(RationUnit());
    fill(0, {"  Feed Name  ", "  Qty. (" + unit + ")  ", "  % Total  "});
    fill(1, {});
    fill(LastFeedRow() + 1, {});
    fill(TotalsRow(), {"Totals", "", ""});
}

void RationForm::FillFeedRow(int feed) {
    const int row = feed + kFirstFeedRow - 1;
    const std::string indent(feed < 10 ? 5 : 3, ' ');
    grdRation.SetTextMatrix(row, kName, indent + SignedText(feed) + ".  " + RationFeed(feed).Name);
    grdRation.SetTextMatrix(row, kQuantity, ShownQuantity(RationFeed(feed)));
}

// Each feed's share of the total, and the row of totals.
void RationForm::ShowShares() {
    const bool any = RationTotalIntake > 0;
    for (int row = kFirstFeedRow; row <= LastFeedRow(); ++row) {
        std::string share(kNotApplicable);
        if (any) {
            const Number percent = CellNumber(row, kQuantity) / RationTotalIntake * 100;
            share = FormatNumber(percent.Value(), "0.00") + " %";
        }
        grdRation.SetTextMatrix(row, kShare, share);
    }
    grdRation.SetTextMatrix(TotalsRow(), kQuantity, FormatNumber(RationTotalIntake, "0.000"));
    grdRation.SetTextMatrix(TotalsRow(), kShare, any ? "100%" : std::string(kNotApplicable));
}

// Shrinks the grid's font until the columns fit beside the total intake.
void RationForm::FitColumns() {
    std::array<double, kColumns> letters{};
    for (int row = 0; row < grdRation.Rows(); ++row) {
        for (int col = 0; col < kColumns; ++col) {
            double& most = letters[static_cast<std::size_t>(col)];
            most = std::max(most, LettersOf(grdRation.TextMatrix(row, col)));
        }
    }
    const auto width = [&](double count) {
        return grdRation.FontSize * kUnitsPerPointAndLetter * count;
    };
    const double all = letters[kName] + letters[kQuantity] + letters[kShare];
    const Number room = lblPredIntake.Left - grdRation.Left - kScrollBar;
    while (width(all) > room && grdRation.FontSize > kLeastFontSize)
        grdRation.FontSize = std::max(grdRation.FontSize - 1, Number(kLeastFontSize));
    for (int col = 0; col < kColumns; ++col)
        grdRation.SetColWidth(col, width(letters[static_cast<std::size_t>(col)]));
}

void RationForm::RetrieveRation() {
    SimulationRecord& r = TheSimulation();
    Number total;
    for (int feed = 1; feed <= r.NumFeeds; ++feed) {
        FeedRecord& target = RationFeed(feed);
        const Number quantity =
            StoredQuantity(target, CellNumber(feed + kFirstFeedRow - 1, kQuantity));
        target.Qty = quantity;
        total += quantity;
    }
    r.TotalDMI = total;
    if (r.TotalDMI > 0) RunComputations();
    ShowSummaryResults(r.TotalDMI);
}

void RationForm::UpdateRationTotals() {
    grdRation.SetTextMatrix(TotalsRow(), kQuantity, FormatNumber(SumOfQuantities(), "0.00"));
    std::string share(kNotApplicable);
    if (Total() != 0) {
        Number sum;
        for (int row = kFirstFeedRow; row <= LastFeedRow(); ++row)
            sum += CellNumber(row, kShare);
        share = sum == 100 ? "100%" : FormatNumber(sum.Value(), "0.0") + "%";
    }
    grdRation.SetTextMatrix(TotalsRow(), kShare, share);
}

}  // namespace tav

// The total intake of the ration screen: entered, estimated, or taken from the quantities.
#include "core/number_text.h"
#include "core/program_state.h"
#include "core/simulation_record.h"
#include "screens/quantity.h"
#include "screens/ration_form.h"
#include "screens/ration_units.h"

namespace tav {

// Another screen, the exit or a save may come while the user is still at the total.
void RationForm::Store() {
    if (totalIsPending_) ApplyTotalIntake();
    RetrieveRation();
}

void RationForm::ApplyTotalIntake() {
    totalIsPending_ = false;
    const Number total = Total();
    if (total == 0) {
        for (int row = kFirstFeedRow; row <= LastFeedRow(); ++row)
            grdRation.SetTextMatrix(row, kShare, std::string(kNotApplicable));
        grdRation.SetTextMatrix(TotalsRow(), kShare, std::string(kNotApplicable));
        return;
    }
    if (grdRation.TextMatrix(kFirstFeedRow, kShare) == kNotApplicable) {
        SetSharesOf(total, "%");
        UpdateRationTotals();
        return;
    }
    for (int row = kFirstFeedRow; row <= LastFeedRow(); ++row) {
        const Number quantity = total * (CellNumber(row, kShare) / Number(100));
        grdRation.SetTextMatrix(row, kQuantity, FormatNumber(quantity.Value(), "0.000"));
    }
    UpdateRationTotals();
    RetrieveRation();
    if (TheSimulation().TotalDMI > 0) RecomputeResults();
}

// Each feed's share of a total, in the short form.
void RationForm::SetSharesOf(Number total, const std::string& sign) {
    for (int row = kFirstFeedRow; row <= LastFeedRow(); ++row) {
        const Number share = CellNumber(row, kQuantity) / total * 100;
        grdRation.SetTextMatrix(row, kShare, FormatNumber(share.Value(), "0.0") + sign);
    }
}

// Turning to a total that isn't there yet sets it to the sum of the quantities.
void RationForm::txtTotalIntake_GotFocus() {
    if (RationTotalIntake != 0) return;
    const double sum = SumOfQuantities();
    if (sum <= 0) return;
    RationTotalIntake = sum;
    ShowTotal(FormatNumber(RationTotalIntake, "0.00"));
    SetSharesOf(sum, " %");
    grdRation.SetTextMatrix(TotalsRow(), kShare, "100%");
    txtTotalIntake.SetFocus();
}

void RationForm::cmdResetIntake_Click() {
    RationTotalIntake = SumOfQuantities();
    ShowTotal(FormatNumber(RationTotalIntake, "0.000"));
    ShowShares();
}

void RationForm::cmdEstimateIntake_Click() {
    RetrieveRation();
    RecomputeResults();
    const Single predicted = TheSimulation().PredictedDMI;
    if (TheProgram().DryMatterBasis) {
        ShowPrediction(predicted);
        ApplyTotalIntake();
    } else {
        EstimateOnAsFedBasis(predicted);
    }
}

void RationForm::ShowPrediction(Single predicted) {
    ShowTotal(ScaledText(predicted, RationFactor(), "0.000"));
}

// The predicted intake is dry matter, so the quantities are scaled on that basis, and the screen
// returns to the user's.
void RationForm::EstimateOnAsFedBasis(Single predicted) {
    RetrieveRation();
    TheProgram().DryMatterBasis = true;
    FillRationInput();
    if (predicted > 0) ShowPrediction(predicted);
    ApplyTotalIntake();
    RetrieveRation();
    TheProgram().DryMatterBasis = false;
    FillRationInput();
}

}  // namespace tav

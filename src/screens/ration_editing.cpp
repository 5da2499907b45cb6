// Edits in the grid of the ration screen.
#include "core/number_text.h"
#include "core/platform.h"
#include "core/simulation_record.h"
#include "model/computations.h"
#include "screens/leading_number.h"
#include "screens/quantity.h"
#include "screens/ration_form.h"
#include "screens/ration_units.h"

namespace tav {
namespace {

void RefuseEntry(const char* text, bool& cancel) {
    ThePlatform().ShowMessage({text, "Error", MessageIcon::Critical});
    cancel = true;
}

}  // namespace

void RationForm::grdRation_BeforeEdit(int row, int col, bool& cancel) {
    cancel = row < kFirstFeedRow || row > LastFeedRow() || (col == kShare && Total() == 0);
    if (cancel || col != kShare) return;
    grdRation.SetTextMatrix(row, col, LeadingNumberText(grdRation.TextMatrix(row, col)));
}

// Zero is a quantity.
void RationForm::grdRation_ValidateEdit(bool& cancel) const {
    const std::string& text = grdRation.EditText;
    if (!IsNumeric(text)) {
        RefuseEntry("You can only enter numbers and a decimal point.", cancel);
    } else if (TextToNumber(text) < 0) {
        RefuseEntry("This value cannot be negative.", cancel);
    }
}

// The total stays as it is: each share stands against it, and together they may miss 100 %. The
// model runs a second time on what the first run has left, which is meant.
void RationForm::grdRation_AfterEdit(int row, int col) {
    const Number total = Total();
    const Number cell = CellNumber(row, col);
    if (col == kShare) {
        const Number quantity = cell / 100 * total;
        grdRation.SetTextMatrix(row, kQuantity, FormatNumber(quantity.Value(), "0.00"));
    } else {
        const std::string share = total > 0
                                      ? FormatNumber((cell / total * 100).Value(), "0.00") + " %"
                                      : std::string(kNotApplicable);
        grdRation.SetTextMatrix(row, kShare, share);
    }
    UpdateRationTotals();
    RetrieveRation();
    if (TheSimulation().TotalDMI != 0) RecomputeResults();
}

void RationForm::RecomputeResults() {
    RunComputations();
    ShowSummaryResults(TheSimulation().TotalDMI);
}

// The kind of feed that is looked at is that of the next feed, and the last row keeps what was
// typed. This is meant.
void RationForm::grdRation_LeaveCell(int row, int col) {
    if (row < kFirstFeedRow || row > TheSimulation().NumFeeds) return;
    std::string text = grdRation.TextMatrix(row, col);
    if (col == kQuantity) {
        text = FormatNumber(CellNumber(row, col), QuantityMask(RationFeed(row).Category));
    } else if (col == kShare && text != kNotApplicable && !text.ends_with('%')) {
        text += " %";
    }
    grdRation.SetTextMatrix(row, col, text);
}

}  // namespace tav

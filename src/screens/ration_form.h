// The ration screen, frmRation: the daily quantity of each feed, and the results beside them.
//
// The record keeps quantities in kg of dry matter a day; the screen shows them in the user's unit
// and basis. Each accepted change runs the model.
#pragma once

#include "forms/controls.h"
#include "forms/screen_form.h"

#include <string>
#include <string_view>

namespace tav {

class RationForm : public ScreenForm {
  public:
    RationForm();

    Label lblBasisLabel{*this, "lblBasisLabel"};
    Grid grdRation{*this, "grdRation"};
    Label lblPredIntake{*this, "lblPredIntake"};
    NumericTextBox txtTotalIntake{*this, "txtTotalIntake"};
    CommandButton cmdEstimateIntake{*this, "cmdEstimateIntake"};
    CommandButton cmdResetIntake{*this, "cmdResetIntake"};
    Label lblRDPWarning{*this, "lblRDPWarning"};
    Frame fraSummaryResults{*this, "fraSummaryResults"};
    ControlArray<Label> lblResults{fraSummaryResults, "lblResults", 10};

    Single RationTotalIntake;  // total of the quantities on show, in their unit and basis

    // Fills the screen from the record's feeds, runs the model if there is a ration, and shows the
    // results.
    void FillRationInput();

    // Stores the grid's quantities in the feeds and their sum in TotalDMI, runs the model if there
    // is a ration, and shows the results. Raises 13 for a cell that holds no number.
    void RetrieveRation();

    // Recomputes the row of totals from the cells.
    void UpdateRationTotals();

    // Carries the total in txtTotalIntake into the shares if they aren't set, otherwise into the
    // quantities, which keep their shares. A total of 0 takes the shares away.
    void ApplyTotalIntake();

    // Shows the ten summary lines, or that there is no ration, and the warning on degraded protein.
    // Leaves the unit of weight a day as the shared working unit.
    void ShowSummaryResults(Single totalDMI);

    void SetUp() override { FillRationInput(); }
    // A total that has been entered but not left yet is carried into the ration first.
    void Store() override;

  private:
    enum Column : int { kName, kQuantity, kShare, kColumns };
    static constexpr int kFirstFeedRow = 2;  // behind the header and an empty row

    void PlaceControls();
    void TieEvents();

    int LastFeedRow() const;
    int TotalsRow() const;
    double CellNumber(int row, int col) const;
    double SumOfQuantities() const;
    Number Total() const;
    void ShowTotal(std::string_view number);
    void ShowShares();
    void SetSharesOf(Number total, const std::string& sign);
    void ShowResults();
    void FitColumns();
    void FillHeader();
    void FillFeedRow(int feed);
    void RecomputeResults();

    void grdRation_BeforeEdit(int row, int col, bool& cancel);
    void grdRation_ValidateEdit(bool& cancel) const;
    void grdRation_AfterEdit(int row, int col);
    void grdRation_LeaveCell(int row, int col);
    void txtTotalIntake_GotFocus();
    void cmdResetIntake_Click();
    void cmdEstimateIntake_Click();
    void ShowPrediction(Single predicted);
    void EstimateOnAsFedBasis(Single predicted);

    bool totalIsPending_ = false;  // a total has been entered that the ration doesn't follow yet
};

}  // namespace tav

#include "feeds/feed_grid_rules.h"

#include "core/number_text.h"
#include "core/platform.h"
#include "feeds/feed_energy_rows.h"
#include "feeds/feed_grid.h"
#include "feeds/value_limits.h"

#include <algorithm>
#include <array>
#include <limits>

namespace tav {
namespace {

void Inform(const std::string& text, const std::string& title) {
    ThePlatform().ShowMessage({text, title, MessageIcon::Information});
}

void Refuse(const std::string& text, const std::string& title, bool& cancel) {
    Inform(text, title);
    cancel = true;
}

std::string OrdinaryCategories() {
    std::string list;
    for (const std::string_view category : kFeedCategories) {
        if (IsCalfCategory(category)) continue;
        list += (list.empty() ? "" : "|") + std::string(category);
    }
    return list;
}

std::string ComboListOf(const Grid& grid, int row) {
    const std::string& category = CellText(grid, kCategoryRow);
    const bool mineral = category == kVitaminMineralCategory;
    switch (row) {
        case kCategoryRow: return OrdinaryCategories();
        case kClassRow:
            if (category == kFatCategory) return "Fat|Fatty Acid";
            return mineral ? "Vitamin/Mineral" : "Forage|Concentrate|Animal";
        case kForageRow:
            return CellText(grid, kClassRow) == "Forage" && !mineral ? "Dry|Wet" : "Concentrate";
        default: return {};
    }
}

void RefuseComputedRows(const Grid& grid, int row, bool& cancel) {
    const std::string& label = grid.TextMatrix(row, kLabelColumn);
    const std::string title = "Cannot Edit Value";
    if (label == "CP Digestibility" && CellText(grid, kCategoryRow) != kAnimalProteinCategory) {
        Refuse("CP Digestibility is only alterable for Animal Protein feeds.", title, cancel);
    } else if (label == "TDN (%DM)") {
        Refuse("TDN cannot be directly edited by the user .", title, cancel);
    } else if (label == "DE (Mcal/kg)") {
        Refuse("DE cannot be directly edited by the user .", title, cancel);
    }
}

void CheckLimits(const Grid& grid, int row, Number value, bool& cancel) {
    const ValueLimits limits = LimitsFor(grid.TextMatrix(row, kLabelColumn));
    if (value < limits.Minimum) {
        Refuse("This value must be greater than" + SignedText(limits.Minimum) + ".",
               "Minimum Value Required", cancel);
    }
    if (value > limits.Maximum) {
        Refuse("This value must be less than" + SignedText(limits.Maximum) + ".",
               "Maximum Value Exceeded", cancel);
    }
}

// Compared by the digits of the decimal numbers: 0.1 and 0.2 do not exceed 0.3, 50.0000001 exceeds
// 50. No cell holds more than a 32-bit float.
bool Exceeds(Number value, const Grid& grid, int row) {
    if (value > std::numeric_limits<float>::max()) return true;
    return TextToNumber(NumberText(value.Value())) > CellNumber(grid, row);
}

void CheckRelations(const Grid& grid, int row, Number value, bool& cancel) {
    if (row == kADFRow && Exceeds(value, grid, kNDFRow)) {
        Refuse("ADF cannot exceed NDF", "ADF Too High", cancel);
    } else if (row == kLigninRow && Exceeds(value, grid, kNDFRow)) {
        Refuse("Lignin cannot exceed NDF", "Lignin Too High", cancel);
    } else if (row == kNDFIPRow && Exceeds(value + CellNumber(grid, kADFIPRow), grid, kCPRow)) {
        Refuse("NDFIP + ADFIP cannot exceed CP", "NDFIP Too High", cancel);
    } else if (row == kADFIPRow && Exceeds(CellNumber(grid, kNDFIPRow) + value, grid, kCPRow)) {
        Refuse("NDFIP + ADFIP cannot exceed CP", "ADFIP Too High", cancel);
    }
}

// What the energy class means for the forage description.
void FollowClass(Grid& grid) {
    const bool forage = CellText(grid, kClassRow) == "Forage";
    if (!forage) {
        grid.SetTextMatrix(kForageRow, kValueColumn, "Concentrate");
    } else if (CellText(grid, kForageRow) == "Concentrate") {
        grid.SetTextMatrix(kForageRow, kValueColumn, "Dry");
    }
}

bool ProteinFractionsSumTo100(const Grid& grid) {
    return Single(CellNumber(grid, kPrtARow) + CellNumber(grid, kPrtBRow) +
                  CellNumber(grid, kPrtCRow)) == 100;
}

bool EntersEnergy(std::string_view label) {
    static constexpr std::array<std::string_view, 12> kLabels = {"Energy Equation Class",
                                                                 "Processing Factor (PAF)",
                                                                 "NDF (%DM)",
                                                                 "ADF (%DM)",
                                                                 "Lignin (%DM)",
                                                                 "CP (%DM)",
                                                                 "NDFIP (%DM)",
                                                                 "ADFIP (%DM)",
                                                                 "Fat (%DM)",
                                                                 "Ash (%DM)",
                                                                 "CP Digestibility",
                                                                 "Fat Digestibility"};
    return std::find(kLabels.begin(), kLabels.end(), label) != kLabels.end();
}

void AfterOrdinaryEdit(Grid& grid, int row) {
    if (row == kClassRow) FollowClass(grid);
    const std::string& label = grid.TextMatrix(row, kLabelColumn);
    if (label == "NDF Digestibility") {
        ThePlatform().ShowMessage(
            {"Note:  NDF Digestibility is automatically computed from the feed's NDF, NDFIP and "
             "Lignin values.\r\nTherefore, if you change any of these values, NDF Digestibility "
             "will be re-computed.",
             "Please Note"});
    } else if (row >= kPrtARow && row <= kPrtCRow) {
        if (ProteinFractionsSumTo100(grid)) return;
        ThePlatform().ShowMessage({"Protein Fractions A, B and C should sum to 100.", "Warning"});
    } else if (EntersEnergy(label)) {
        RecomputeFeedEnergyRows(grid);
    }
}

void WarnOfZero(const Grid& grid, int row) {
    if (row < kCalfCPRow || row > kCalfAshRow || CellNumber(grid, row) != 0) return;
    static constexpr std::array<std::string_view, 3> kNames = {"CP", "Fat", "Ash"};
    std::string text = "Setting " +
                       std::string(kNames[static_cast<std::size_t>(row - kCalfCPRow)]) +
                       " to zero will result in erroneous energy values.";
    if (row == kCalfAshRow) {
        text += "\r\n\r\nIf you are unsure of an appropriate value, we recommend 7%.";
    }
    ThePlatform().ShowMessage({text, "Warning"});
}

}  // namespace

void BeforeFeedEdit(Grid& grid, int row, int col, bool& cancel) {
    if (ShowsCalfFeed(grid)) {
        grid.ComboList = row == kCategoryRow ? std::string(kCalfMilkCategory) : std::string();
        return;
    }
    if (col == kLabelColumn) cancel = true;
    grid.ComboList = ComboListOf(grid, row);
    RefuseComputedRows(grid, row, cancel);
}

void ValidateFeedEdit(const Grid& grid, int row, int col, bool& cancel) {
    // Cells that hold a text have no limits, so it is the present text that tells them apart.
    if (IsNumeric(grid.TextMatrix(row, col))) {
        if (!IsNumeric(grid.EditText)) {
            cancel = true;
            return;
        }
        CheckLimits(grid, row, TextToNumber(grid.EditText), cancel);
    }
    const bool calf = CellText(grid, kCategoryRow).find("Calf Feed") != std::string::npos;
    if (!calf && IsNumeric(grid.EditText)) {
        CheckRelations(grid, row, TextToNumber(grid.EditText), cancel);
    }
}

void AfterFeedEdit(Grid& grid, int row) {
    if (ShowsCalfFeed(grid)) {
        RecomputeCalfEnergyRows(grid, row);
        WarnOfZero(grid, row);
    } else {
        AfterOrdinaryEdit(grid, row);
    }
}

}  // namespace tav

#include "feeds/feed_energy_rows.h"

#include "feeds/feed_grid.h"

namespace tav {
namespace {

// The cells that the equations read. Percentages of dry matter, but for the factors PAF, CPDig and
// FatDig.
struct Composition {
    explicit Composition(const Grid& grid)
        : Category(CellText(grid, kCategoryRow)),
          Class(CellText(grid, kClassRow)),
          PAF(CellNumber(grid, kPAFRow)),
          NDF(CellNumber(grid, kNDFRow)),
          Lignin(CellNumber(grid, kLigninRow)),
          CP(CellNumber(grid, kCPRow)),
          NDFIP(CellNumber(grid, kNDFIPRow)),
          ADFIP(CellNumber(grid, kADFIPRow)),
          Fat(CellNumber(grid, kFatRow)),
          Ash(CellNumber(grid, kAshRow)),
          CPDig(CellNumber(grid, kCPDigestRow)),
          FatDig(CellNumber(grid, kFatDigestRow)) {}

    const std::string Category, Class;
    const Single PAF, NDF, Lignin, CP, NDFIP, ADFIP, Fat, Ash, CPDig, FatDig;
};

// Truly digestible fractions, % of dry matter.
struct Digestible {
    Single NDFDig, tdNFC, tdCP, tdFA, tdNDF;
};

Single DigestibleProtein(const Composition& c) {
    if (c.CP <= 0) return 0;
    if (c.Class == "Forage") return Exp(c.ADFIP / c.CP * -1.2) * c.CP;
    if (c.Category == kAnimalProteinCategory) return c.CPDig * c.CP;
    return (1 - c.ADFIP / c.CP * 0.4) * c.CP;
}

Digestible Digest(const Composition& c) {
    Digestible d;
    const bool hasFibre = c.NDF > c.NDFIP;
    if (hasFibre) {
        d.NDFDig = (1 - Power(c.Lignin / (c.NDF - c.NDFIP), 0.667)) * (c.NDF - c.NDFIP - c.Lignin) *
                   0.75 / c.NDF;
    }
    d.tdNFC = (100 - c.NDF - c.CP - c.Fat - c.Ash + c.NDFIP) * Single(0.98) * c.PAF;
    d.tdCP = DigestibleProtein(c);
    if (c.Fat >= 1) d.tdFA = (c.Fat - 1) * 2.25;
    if (hasFibre) d.tdNDF = c.NDF * d.NDFDig;
    return d;
}

struct Energy {
    Single TDN;  // % of dry matter
    Single DE;   // Mcal/kg
};

Energy EnergyOf(const Composition& c, const Digestible& d) {
    if (c.Category == kVitaminMineralCategory) return {};
    if (c.Category == kFatCategory && c.Class == "Fatty Acid") {
        return {c.FatDig * c.Fat * 2.25, c.FatDig * 0.094 * c.Fat};
    }
    if (c.Category == kFatCategory) {
        return {(c.Fat - 10) * c.FatDig * 2.25 + 10, (c.Fat - 10) * c.FatDig * 0.094 + 0.43};
    }
    if (c.Category == kAnimalProteinCategory) {
        return {(c.Fat - 1) * 2.25 + c.CPDig * c.CP + ((100 - c.CP - c.Ash - c.Fat) * 0.98 - 7),
                d.tdNFC * 0.042 + d.tdCP * 0.056 + d.tdFA / 2.25 * 0.094 - 0.3};
    }
    return {d.tdNFC + d.tdCP + d.tdFA + d.tdNDF - 7,
            d.tdNFC * 0.042 + d.tdNDF * 0.042 + d.tdCP * 0.056 + d.tdFA / 2.25 * 0.094 - 0.3};
}

// The chain of a calf feed's energies, Mcal/kg.
constexpr double kDEOfGE = 0.97;
constexpr double kMEOfDE = 0.96;
constexpr double kNEmOfME = 0.86;
constexpr double kNEgOfME = 0.69;

struct CalfEnergies {
    Single GE, DE, ME, NEm, NEg;

    void UpFromME() {
        DE = ME / kMEOfDE;
        GE = DE / kDEOfGE;
    }
    void DownFromGE() {
        DE = GE * kDEOfGE;
        ME = DE * kMEOfDE;
        DownFromME();
    }
    void DownFromME() {
        NEm = ME * kNEmOfME;
        NEg = ME * kNEgOfME;
    }
};

Single GrossEnergy(const Grid& grid) {
    const Single CP = CellNumber(grid, kCalfCPRow);
    const Single Fat = CellNumber(grid, kCalfFatRow);
    const Single Ash = CellNumber(grid, kCalfAshRow);
    return CP * 0.057 + Fat * 0.092 + (100 - CP - Fat - Ash) * 0.0395;
}

// The chain from the row that was edited. The row itself keeps its value.
CalfEnergies EnergiesFrom(const Grid& grid, int row) {
    CalfEnergies e;
    switch (row) {
        case kCalfDERow:
            e.DE = CellNumber(grid, row);
            e.ME = e.DE * kMEOfDE;
            e.GE = e.DE / kDEOfGE;
            e.DownFromME();
            break;
        case kCalfNEmRow:
            e.NEm = CellNumber(grid, row);
            e.ME = e.NEm / kNEmOfME;
            e.NEg = e.ME * kNEgOfME;
            e.UpFromME();
            break;
        case kCalfGERow:
            e.GE = CellNumber(grid, row);
            e.DownFromGE();
            break;
        case kCalfMERow:
            e.ME = CellNumber(grid, row);
            e.UpFromME();
            e.DownFromME();
            break;
        case kCalfNEgRow:
            e.NEg = CellNumber(grid, row);
            e.ME = e.NEg / kNEgOfME;
            e.NEm = e.ME * kNEmOfME;
            e.UpFromME();
            break;
        default:
            e.GE = GrossEnergy(grid);
            e.DownFromGE();
            break;
    }
    return e;
}

}  // namespace

void RecomputeFeedEnergyRows(Grid& grid) {
    const Composition composition(grid);
    const Digestible digestible = Digest(composition);
    const Energy energy = EnergyOf(composition, digestible);
    SetCellNumber(grid, kTDNRow, energy.TDN);
    SetCellNumber(grid, kDERow, energy.DE);
    SetCellNumber(grid, kNDFDigestRow, digestible.NDFDig);
}

void RecomputeCalfEnergyRows(Grid& grid, int editedRow) {
    if (editedRow < kCalfDERow || editedRow > kCalfAshRow) return;
    const CalfEnergies e = EnergiesFrom(grid, editedRow);
    SetCellNumber(grid, kCalfDERow, e.DE);
    SetCellNumber(grid, kCalfNEmRow, e.NEm);
    SetCellNumber(grid, kCalfGERow, e.GE);
    SetCellNumber(grid, kCalfMERow, e.ME);
    SetCellNumber(grid, kCalfNEgRow, e.NEg);
}

}  // namespace tav

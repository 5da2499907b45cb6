#include "reports/components.h"
#include "reports/report_grid.h"

namespace tav {
namespace {

constexpr int kEnergyDifference = 2;  // the third line of the balance table
constexpr double kNotPossible = 1000000;

void WriteScores(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    const ReportUnits& units = w.Units();
    const std::string unit = units.WeightUnit();
    ReportGrid grid(w, std::vector(6, ColumnAlign::Decimal), kFullGrid);
    grid.SetHeadingRows(1);
    grid.Row({"CS", "Weight Factor", "EBW " + unit, "Fat " + unit, "Protein " + unit,
              "Body Energy (Mcal)"});
    for (std::size_t i = 0; i < kConditionScores; ++i) {
        // Nine scores lie between 1 and 5 in half steps.
        const Number score = Number(i + 1) / 2 + 0.5;
        grid.Row({Plain(score, "0.0"), Plain(r.CSWeightFactor[i], "0.000"),
                  units.WeightNumber(r.CSEBW[i], "0.0"), units.WeightNumber(r.CSFat[i], {}),
                  units.WeightNumber(r.CSProtein[i], {}), Plain(r.CSBodyEnergy[i], "0.0")});
    }
    grid.KeepWhole();
    grid.Write();
}

void WriteEnergies(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    const auto mcal = [](Single value) { return Plain(value, {}, " (Mcal)"); };
    if (r.EnergyLoss1CS == kNotPossible) {
        w.Line("Energy Available From Loss of 1 Condition Score :  Animal cannot lose condition.");
    } else {
        w.Line("Energy Available From Loss of 1 Condition Score :  ", mcal(r.EnergyLoss1CS));
    }
    if (r.EnergyGain1CS == kNotPossible) {
        w.Line("Energy Required to Gain 1 Condition Score : Animal cannot gain condition.");
    } else {
        w.Line("Energy Required to Gain 1 Condition Score :  ", mcal(r.EnergyGain1CS));
    }
    w.Line("Dietary NEl Value of 1 Condition Score Loss :  ", mcal(r.DietNElLoss1CS));
    w.Line("Dietary NEl Required to Gain 1 Condition Score :  ", mcal(r.DietNElGain1CS));
    w.Line("Delta-ER :  ", mcal(r.DeltaER));
}

void WriteEffectOfBalance(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    const ReportUnits& units = w.Units();
    w.Line(r.DaysToChangeCSText);
    w.Line("Daily Weight Change due to Reserves :  ",
           units.WeightPerDay(r.ReserveWeightPerDay, "0.0"));
    if (r.MPReservesRequired > 0) {
        w.Line("MP Required for Estimated Change in Reserves :  ",
               units.Protein(r.MPReservesRequired, "0.0"));
        w.Line("Energy Dietary NEl will supply to gain CS:  ",
               Plain(r.DietNElGain1CS, {}, " (Mcal)"));
    } else {
        w.Line("MP Provided for Estimated Change in Reserves :  ",
               units.Protein(r.MPReservesProvided, "0.0"));
        w.Line("RE Substituted for Dietary NEl to lose CS :  ",
               Plain(r.DietNElLoss1CS, {}, " (Mcal)"));
    }
}

}  // namespace

void WriteReservesRequirements(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    const ReportUnits& units = w.Units();
    w.StartComponent(40, "Reserves Requirements");

    w.Heading("Major Inputs Used to Compute Body Reserves");
    w.Line("Body Weight :  ", units.Weight(r.BodyWeight));
    w.Line("Condition Score :  ", Plain(r.CS9 / 2 + 0.5, "0.0"));
    w.Line("Energy Balance :  ", Energy(r.BalanceTable[kEnergyDifference].Total));

    w.Heading("Calculation of Body Reserve Changes", 15);
    w.Line("Shrunk Body Weight :  ", units.Weight(r.SBW));
    w.Line("Empty Body Weight (CS=3) :  ", units.Weight(r.EBWAtCS3));
    w.LineEnds(1);
    WriteScores(w);
    w.LineEnds(1);
    WriteEnergies(w);

    w.Heading("Calculation of Effect of Current NEl Balance on Body Reserves");
    WriteEffectOfBalance(w);
}

}  // namespace tav

#include "core/number_text.h"
#include "reports/components.h"
#include "reports/report_grid.h"
#include "reports/summary_parts.h"

#include <algorithm>

namespace tav {
namespace {

bool IsLactating(const SimulationRecord& r) { return r.AnimalType == kLactatingCow; }

std::string DesiredGain(const ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    if (r.UseTargetADG) return "Using Model Computed Target ADG";
    return w.Units().GramsInSteps(r.DesiredADG, w.Units().Choose("0", "0.0000")) + " " +
           std::string(w.Units().Choose("g/day", "lbs/day"));
}

std::string MilkProduction(const ReportWriter& w) {
    return IsLactating(w.Record()) ? w.Units().WeightPerDay(w.Record().MilkProduction, "0.0")
                                   : "N/A";
}

// Twelve lines for every animal; those that are not its own stay empty.
void WriteAnimalInputs(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    const ReportUnits& units = w.Units();
    ReportGrid grid(w, {ColumnAlign::Left}, kNoBorder);
    grid.SetHeadingRows(1);
    grid.Row({"Animal Inputs"});
    grid.EmptyRow();
    grid.Row({"Animal Type :  " + r.AnimalType});
    grid.Row({"Age :  " + NumberText(r.Age) + "  months"});
    grid.Row({"Body Weight :  " + units.WeightNumber(r.BodyWeight, "0") + " " + units.Mass()});
    grid.Row({"Milk Production :  " + MilkProduction(w)});
    grid.Row({"Days Pregnant :  " + NumberText(r.DaysPregnant)});
    grid.Row({"Breed :  " + r.Breed});
    if (IsLactating(r)) {
        grid.Set(9, 1, "Milk Fat :  " + Plain(r.MilkFat, "0.00"));
        grid.Set(10, 1, "Milk True Protein :  " + Plain(r.MilkTrueProtein, "0.00"));
        grid.Set(11, 1, "Days In Milk :  " + Plain(r.DaysInMilk, "0"));
    }
    grid.Set(12, 1, r.AnimalType == kReplacementHeifer ? "Desired ADG :  " + DesiredGain(w) : "");
    grid.Write();
}

void WriteRation(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    const ReportUnits& units = w.Units();
    using enum ColumnAlign;
    ReportGrid grid(w, {Left, Decimal, Decimal, Decimal}, kFullGrid);
    grid.SetHeadingRows(2);
    const std::string unit = "Qty (" + units.MassPerDay();
    grid.Row({"", unit + " DM)", unit + " As-Fed)", "%"});
    grid.Row({"Feed Name", "(Dry Matter)", "(As-Fed)", "(Dry Matter)"});
    Twips longest = w.Sink().TextWidth("Feed Name        ");
    for (std::size_t i = 0; i < r.NumFeeds; ++i) {
        const FeedRecord& feed = Entry(r.Feeds, i);
        longest = std::max(longest, w.Sink().TextWidth(feed.Name + "        "));
        const Number asFed = feed.Qty * units.WeightFactor() / (feed.DM / 100);
        grid.Row({feed.Name, units.WeightNumber(feed.Qty, "0.00"), Plain(asFed, "0.00"),
                  Plain(feed.Qty / r.TotalDMI * 100, "0.00")});
    }
    grid.WidenTo(1, longest);
    grid.Write();
}

}  // namespace

void WriteSummaryReport(ReportWriter& w) {
    w.StartComponent(24, "Summary Report");
    WriteAnimalInputs(w);
    w.Heading("Diet Nutrient Balances", 14);
    WriteNutrientBalances(w);
    WritePerformance(w);
    WriteDietConcentrations(w);
    w.LineEnds(3);
    w.Heading("Diet Summary", 7);
    w.LineEnds(1);
    WriteRation(w);
}

}  // namespace tav

#include "reports/components.h"
#include "reports/report_grid.h"

namespace tav {
namespace {

constexpr int kLinesOfSpace = 3;  // above and below the second table
constexpr int kLinesOfFactors = 4;

// Turns the page on its side, without an empty upright page before it.
void StartLandscape(ReportWriter& w) {
    ReportSink& sink = w.Sink();
    if (w.IsEmptyDocument()) {
        if (w.State().SavedOrientation != kPortrait) return;
        sink.Orientation = kLandscape;
        sink.StartDoc();
    } else if (sink.Orientation != kLandscape) {
        sink.Orientation = kLandscape;
        sink.NewPage();
    }
}

// From kilograms a day to grams a day, or to pounds a day.
std::string ProteinOf(const ReportUnits& units, Single kilograms, std::string_view englishMask) {
    return units.Metric() ? Plain(kilograms * 1000, "0")
                          : Plain(kilograms * kPoundsPerKilogram, englishMask);
}

ReportGrid::Cells FeedRow(const ReportWriter& w, std::size_t i) {
    const SimulationRecord& r = w.Record();
    const ReportUnits& units = w.Units();
    const FeedRecord& feed = Entry(r.Feeds, i);
    const Single intake = Entry(r.FeedDMI, i);
    return {feed.Name,
            units.WeightNumber(intake, "0.0"),
            units.GramsInSteps(Entry(r.FeedTDNg, i)),
            Plain(feed.ME * intake, "0.0"),
            Plain(feed.NEl * intake, "0.0"),
            Plain(feed.NEg * intake, "0.0"),
            units.GramsInSteps(Entry(r.FeedCPg, i)),
            ProteinOf(units, Entry(r.FeedRUP, i), "0.000"),
            ProteinOf(units, Entry(r.FeedRDP, i), "0.000"),
            units.WeightNumber(Entry(r.FeedNDF, i), "0.0"),
            " -"};
}

// In English units the totals of protein have one decimal, the feeds three; this is meant.
ReportGrid::Cells TotalsRow(const ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    const ReportUnits& units = w.Units();
    const std::string_view mask = units.Choose("0", "0.0");
    return {"Totals :   ",
            units.WeightNumber(r.TotalFeedDMI, "0.0"),
            units.GramsInSteps(r.TotalTDN),
            Plain(r.TotalME, "0.0"),
            Plain(r.TotalNEl, "0.0"),
            Plain(r.TotalNEg, "0.0"),
            units.GramsInSteps(r.TotalCP, mask),
            ProteinOf(units, r.TotalRUP, mask),
            ProteinOf(units, r.TotalRDP, mask),
            units.WeightNumber(r.TotalNDF, "0.0"),
            units.GramsInSteps(r.MCP, mask)};
}

void WriteFeeds(ReportWriter& w) {
    const std::string mass = "(" + w.Units().MassPerDay() + ")";
    const std::string grams(w.Units().Choose("(g/day)", "(lbs/day)"));
    const std::string energy = "(Mcal/day)";
    std::vector<ColumnAlign> columns(11, ColumnAlign::Decimal);
    columns[0] = ColumnAlign::Left;
    ReportGrid grid(w, columns, kFullGrid);
    grid.SetHeadingRows(2);
    grid.Row({"Feed Name", "DMI", "TDN", "ME", "NEl", "NEg", "CP", "RUP", "RDP", "NDF", "MCP"});
    grid.Row({"", mass, grams, energy, energy, energy, grams, grams, grams, mass, grams});
    for (std::size_t i = 0; i < w.Record().NumFeeds; ++i)
        grid.Row(FeedRow(w, i));
    grid.Row(TotalsRow(w));
    grid.FillWidth();
    grid.KeepWhole();
    grid.Write();
}

void WriteDensities(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    const ReportUnits& units = w.Units();
    const std::string energy(units.Choose("(Mcal/kg)", "(Mcal/lb)"));
    using enum ColumnAlign;
    ReportGrid grid(w, {Left, Decimal, Decimal, Decimal, Decimal}, kFullGrid);
    grid.SetHeadingRows(2);
    grid.Row({"Feed Name", "ME", "NEl", "NEg", "Kp"});
    grid.Row({"", energy, energy, energy, "(%/hr)"});
    for (std::size_t i = 0; i < r.NumFeeds; ++i) {
        const FeedRecord& feed = Entry(r.Feeds, i);
        grid.Row({feed.Name, units.DensityNumber(feed.ME, "0.00"),
                  units.DensityNumber(feed.NEl, "0.00"), units.DensityNumber(feed.NEg, "0.00"),
                  Plain(Entry(r.FeedKp, i), "0.00")});
    }
    const Twips below = (kLinesOfSpace + kLinesOfFactors) * w.Sink().TextHeight("A");
    w.KeepHeight(grid.Height() + below);
    grid.KeepWhole();
    grid.Write();
}

void WriteFactors(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    const auto percent = [](Number value) { return Plain(value, {}, "%"); };
    w.KeepHeight(kLinesOfFactors * w.Sink().TextHeight("A"));
    w.Line("Increment over Maintenance :  ", Plain(r.IntakeMultiple, "0.0", " X"));
    w.Line("Energy/Protein Discount Factor :  ", percent((1 - r.DiscountFactor) * 100));
    w.Line("Undiscounted TDN in Diet :  ", percent(r.UndiscountedTDNFraction * 100));
    w.Line("Diet RUP Digestibility :  ", percent(r.DietRUPDigest * 100));
}

}  // namespace

void WriteEnergyAndProteinSupply(ReportWriter& w) {
    w.RestoreOrientation();
    StartLandscape(w);
    w.StartComponent(10, "Energy and Protein Supply");
    WriteFeeds(w);
    w.LineEnds(kLinesOfSpace);
    WriteDensities(w);
    w.LineEnds(kLinesOfSpace);
    WriteFactors(w);
    if (w.State().SavedOrientation != kLandscape) w.State().OrientationRestorePending = true;
}

}  // namespace tav

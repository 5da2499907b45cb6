#include "reports/components.h"
#include "reports/report_grid.h"

#include <array>

namespace tav {
namespace {

struct AminoAcid {
    const char* Name;
    Single SimulationRecord::*Flow;
    Single SimulationRecord::*Digestible;
    Single SimulationRecord::*PercentOfMP;
};

using R = SimulationRecord;

// Tryptophan has no line.
constexpr std::array<AminoAcid, 9> kAminoAcids = {
    {{"Arginine", &R::ArgFlow, &R::DigArgFlow, &R::ArgPctMP},
     {"Histidine", &R::HisFlow, &R::DigHisFlow, &R::HisPctMP},
     {"Isoleucine", &R::IleFlow, &R::DigIleFlow, &R::IlePctMP},
     {"Leucine", &R::LeuFlow, &R::DigLeuFlow, &R::LeuPctMP},
     {"Lysine", &R::LysFlow, &R::DigLysFlow, &R::LysPctMP},
     {"Methionine", &R::MetFlow, &R::DigMetFlow, &R::MetPctMP},
     {"Phenylalanine", &R::PheFlow, &R::DigPheFlow, &R::PhePctMP},
     {"Threonine", &R::ThrFlow, &R::DigThrFlow, &R::ThrPctMP},
     {"Valine", &R::ValFlow, &R::DigValFlow, &R::ValPctMP}}};

constexpr Twips kColumnWidth = 2500;

Number SumOf(const R& r, Single R::*AminoAcid::*column) {
    Number sum = 0;
    for (const AminoAcid& acid : kAminoAcids)
        sum += r.*(acid.*column);
    return sum;
}

void WriteTotals(ReportWriter& w) {
    const R& r = w.Record();
    const ReportUnits& units = w.Units();
    const std::string perDay(units.Choose(" g/day", " lbs/day"));
    w.Line("Total Dry Matter Intake :  ",
           units.WeightNumber(r.TotalDMI, "0.0") + " " + units.Mass());
    w.Line("Total RUP :  ", (units.Metric() ? Plain(r.TotalRUP * 1000, "0")
                                            : Plain(r.TotalRUP * kPoundsPerKilogram, "0.000")) +
                                perDay);
    w.Line("Total MCP :  ", units.GramsInSteps(r.MCP) + perDay);
}

void WriteTable(ReportWriter& w) {
    const R& r = w.Record();
    const ReportUnits& units = w.Units();
    const std::string unit(units.Choose(" (g/day)", " (lbs/day)"));
    using enum ColumnAlign;
    ReportGrid grid(w, {Left, Decimal, Decimal, Decimal}, kFullGrid);
    grid.SetHeadingRows(1);
    for (const int column : {2, 3, 4})
        grid.FixWidth(column, kColumnWidth);
    grid.Row({"Amino Acid", "Flow" + unit, "DIGAA Flow" + unit, "Percent of MP"});
    for (const AminoAcid& acid : kAminoAcids) {
        grid.Row({acid.Name, units.GramsNumber(r.*acid.Flow), units.GramsNumber(r.*acid.Digestible),
                  Plain(r.*acid.PercentOfMP, "0.00", "%")});
    }
    grid.EmptyRow();
    grid.Row({"Totals", units.GramsNumber(SumOf(r, &AminoAcid::Flow)),
              units.GramsNumber(SumOf(r, &AminoAcid::Digestible)),
              Plain(SumOf(r, &AminoAcid::PercentOfMP), "0.00", "%")});
    grid.KeepWhole();
    grid.Write();
}

}  // namespace

void WriteDuodenalAminoAcidSupply(ReportWriter& w) {
    w.StartComponent(22, "Duodenal Amino Acid Supply");
    WriteTotals(w);
    w.LineEnds(1);
    WriteTable(w);
    w.LineEnds(1);
    w.Line("Total Essential Amino Acids :  ", w.Units().Protein(w.Record().TotalEAAFlow));
}

}  // namespace tav

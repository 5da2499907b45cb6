#include "cli/result_page.h"

#include "cli/text_table.h"
#include "core/display_text.h"
#include "core/number_text.h"
#include "screens/summary_results.h"

#include <filesystem>

namespace tav {
namespace {

std::string Heading(const std::string& file) {
    const std::string name = DisplayText(std::filesystem::path(file).filename().string());
    return name + "\n" + std::string(CharacterCount(name), '=') + "\n\n";
}

std::string Counted(Single count, const std::string& unit) {
    return NumberText(count) + " " + unit + (count == 1 ? "" : "s");
}

void AddAnimalRows(TextTable& table, const SimulationRecord& r) {
    const bool calf = r.AnimalType == kYoungCalf;
    table.AddRow({"  Age", Counted(r.Age, "month")});
    table.AddRow({"  Body weight", NumberText(calf ? r.CalfBodyWeight : r.BodyWeight) + " kg"});
    table.AddRow(
        {"  Temperature", NumberText(calf ? r.CalfTemperature : r.Temperature) + " \u00B0C"});
    if (calf) return;
    table.AddRow({"  Mature weight", NumberText(r.MatureWeight) + " kg"});
    table.AddRow({"  Condition score", NumberText(r.ConditionScore)});
    table.AddRow(
        {"  Pregnant", r.DaysPregnant > 0 ? Counted(r.DaysPregnant, "day") : std::string("no")});
    if (r.AnimalType == kReplacementHeifer) {
        table.AddRow({"  Gain aimed at", r.UseTargetADG
                                             ? std::string("as her target weights ask")
                                             : NumberText(int{r.DesiredADG}) + " g/day"});
    }
    if (r.AnimalType == kLactatingCow) {
        table.AddRow({"In milk", Counted(r.DaysInMilk, "day") + ", lactation " +
                                     NumberText(int{r.LactationNumber})});
        table.AddRow({"  Milk", NumberText(r.MilkProduction) + " kg/day"});
        table.AddRow({"  Fat, true protein, lactose", NumberText(r.MilkFat) + ", " +
                                                          NumberText(r.MilkTrueProtein) + ", " +
                                                          NumberText(r.Lactose) + " %"});
    }
    if (r.Grazing) {
        table.AddRow({"  Grazing", DisplayText(r.Topography) + ", " + NumberText(r.Distance) +
                                       " m, " + NumberText(int{r.Trips}) + " trips/day"});
    }
}

std::string AnimalBlock(const SimulationRecord& r) {
    std::string title = DisplayText(r.AnimalType);
    if (r.AnimalType != kYoungCalf) title += ", " + DisplayText(r.Breed);
    TextTable table("ll");
    AddAnimalRows(table, r);
    return title + "\n" + table.Text() + "\n";
}

std::string RationBlock(const SimulationRecord& r) {
    if (r.NumFeeds == 0) return "Ration\n  No feeds\n\n";
    Number total;
    for (std::size_t i = 0; i < r.NumFeeds; ++i)
        total += r.Feeds[i].Qty;
    const auto share = [&](Number amount) {
        return total > 0 ? FixedText((amount / total * 100).Value(), 1) : std::string("N/A");
    };
    TextTable table("lrr");
    table.AddRow({"Ration", "kg DM/day", "% of DM"});
    for (std::size_t i = 0; i < r.NumFeeds; ++i) {
        const FeedRecord& feed = r.Feeds[i];
        table.AddRow({"  " + DisplayText(feed.Name), FixedText(feed.Qty, 3), share(feed.Qty)});
    }
    table.AddRow({"  Total", FixedText(total.Value(), 3), share(total)});
    return table.Text() + "\n";
}

std::string SummaryBlock(const SimulationRecord& r) {
    std::string text = "Results\n";
    for (const std::string_view choice : DefaultSummaryChoices(r.AnimalType)) {
        const std::string line = SummaryResultText(r, choice, true);
        if (!line.empty()) text += "  " + DisplayText(line) + "\n";
    }
    return text + "\n";
}

// A supply against its requirement. Anything that falls short by a visible amount is marked.
void AddBalance(TextTable& table, const std::string& what, const std::string& unit, Number supply,
                Number required, int decimals) {
    const auto text = [&](Number value) { return FixedText(value.Value(), decimals); };
    const std::string difference = text(supply - required);
    const bool isShort =
        difference.front() == '-' && difference.find_first_of("123456789") != std::string::npos;
    table.AddRow(
        {"  " + what, unit, text(supply), text(required), difference, isShort ? "short" : ""});
}

void AddEnergyAndProtein(TextTable& table, const SimulationRecord& r) {
    const bool heifer = r.AnimalType == kReplacementHeifer;
    AddBalance(table, "Dry matter, against predicted intake", "kg/day", r.TotalDMI, r.PredictedDMI,
               2);
    if (heifer) {
        AddBalance(table, "Metabolisable energy", "Mcal/day", r.TotalME,
                   r.MEPreg + r.MEMaint + r.MEGrowth, 2);
    } else {
        AddBalance(table, "Net energy for lactation", "Mcal/day", r.TotalNEl,
                   r.NEPreg + r.NEMaint + r.NELact + r.NEGrowthDiet, 2);
    }
    AddBalance(table, "Metabolisable protein", "g/day",
               r.MPFeed * 1000 + r.MPBacterial + r.EndogenousMP,
               r.MPPreg + r.MPMaint + r.MPLact + r.MPGrowth, 0);
    AddBalance(table, "Rumen degraded protein", "g/day", r.RDPSupplied, r.RDPRequired, 0);
    AddBalance(table, "Rumen undegraded protein", "g/day", r.RUPSupplied, r.RUPRequired, 0);
}

void AddCalfEnergyAndProtein(TextTable& table, const SimulationRecord& r) {
    AddBalance(table, "Metabolisable energy, against maintenance", "Mcal/day",
               r.CalfDietME * r.TotalDMI, r.MEMaint, 2);
    const Number digested = r.CalfADPMaint + r.CalfADPGrowth;
    AddBalance(table, "Apparently digested protein", "g/day", r.CalfADPBalance + digested, digested,
               0);
    const Number crude = r.CalfCPMaint + r.CalfCPGrowth;
    AddBalance(table, "Crude protein", "g/day", r.CalfCPBalance + crude, crude, 0);
}

// The table's vitamin amounts are those of a day, whatever unit its lines carry.
std::string MineralUnit(const MineralRow& row) {
    if (row.Units == "(g/d)") return "g/day";
    if (row.Units == "(mg/d)") return "mg/day";
    return row.Name == "Vit E" ? "IU/day" : "1000 IU/day";
}

std::string BalanceBlock(const SimulationRecord& r) {
    TextTable table("llrrrl");
    table.AddRow({"Supply against requirement", "", "supplied", "required", "difference", ""});
    const bool calf = r.AnimalType == kYoungCalf;
    if (calf) {
        AddCalfEnergyAndProtein(table, r);
    } else {
        AddEnergyAndProtein(table, r);
    }
    for (const MineralRow& row : r.MineralRows) {
        if (row.Name.empty()) continue;
        const bool vitamin = row.Name.starts_with("Vit ");
        AddBalance(
            table,
            vitamin ? "Vitamin " + row.Name.substr(4) : row.Name + (calf ? "" : ", absorbed"),
            MineralUnit(row), row.TAS, row.TAR, 2);
    }
    return table.Text();
}

}  // namespace

std::string InputPage(const std::string& file, const SimulationRecord& record) {
    return Heading(file) + AnimalBlock(record) + RationBlock(record);
}

std::string ResultPage(const std::string& file, const SimulationRecord& record) {
    std::string page = InputPage(file, record);
    if (record.TotalDMI == 0 || record.NumFeeds == 0) {
        return page + "No Ration Specified\nCannot Run Computations\n";
    }
    page += SummaryBlock(record) + BalanceBlock(record);
    if (DegradedProteinIsLimiting(record)) {
        page += "\nRDP Limiting - Energy Estimates May Be Erroneous\n";
    }
    return page;
}

}  // namespace tav

#include "shell/batch_table.h"

#include "core/number_text.h"
#include "feeds/csv_text.h"

#include <algorithm>
#include <filesystem>
#include <variant>

namespace tav {
namespace {

using Record = SimulationRecord;
using Field = std::variant<std::string Record::*, Single Record::*, std::int16_t Record::*,
                           std::uint8_t Record::*>;

// The unit that a title ends with.
enum class Unit { None, Weight, WeightPerDay, GramsPerDay };

// The factor is the one to English units; in metric units a value is written as it is.
struct Column {
    std::string_view Title;
    Unit InTitle;
    Field Value;
    double Factor = 1;
};

constexpr double kPounds = 2.20462;  // in a kilogram
// Grams times this are no pounds. It is meant: result files stay comparable.
constexpr double kGramsFactor = 453.5929;
constexpr double kPoundsOfGrams = 0.00220462;

// In front of the feeds, behind the name of the simulation. The yield of milk is converted though
// its title names no unit.
constexpr std::array<Column, 16> kAnimalColumns = {{
    {"Animal Type", Unit::None, &Record::AnimalType},
    {"Age", Unit::None, &Record::Age},
    {"Body Weight", Unit::Weight, &Record::BodyWeight, kPounds},
    {"Days Pregnant", Unit::None, &Record::DaysPregnant},
    {"Condition Score", Unit::None, &Record::ConditionScore},
    {"Days In Milk", Unit::None, &Record::DaysInMilk},
    {"Lactation Number", Unit::None, &Record::LactationNumber},
    {"Age At First Calving", Unit::None, &Record::AgeAtFirstCalving},
    {"Calving Interval", Unit::None, &Record::CalvingInterval},
    {"Mature Weight", Unit::Weight, &Record::MatureWeight, kPounds},
    {"Breed", Unit::None, &Record::Breed},
    {"Calf Birth Weight", Unit::Weight, &Record::CalfBirthWeight, kPounds},
    {"Milk Production", Unit::None, &Record::MilkProduction, kPounds},
    {"Milk Fat (%)", Unit::None, &Record::MilkFat},
    {"Milk True Protein (%)", Unit::None, &Record::MilkTrueProtein},
    {"Lactose (%)", Unit::None, &Record::Lactose},
}};

// Behind the feeds.
constexpr std::array<Column, 12> kResultColumns = {{
    {"MEPreg (Mcal/day)", Unit::None, &Record::MEPreg},
    {"MPPreg", Unit::GramsPerDay, &Record::MPPreg, kGramsFactor},
    {"ADGPreg", Unit::GramsPerDay, &Record::ADGPreg, kGramsFactor},
    {"NELact (Mcal/day)", Unit::None, &Record::NELact},
    {"MPLact", Unit::GramsPerDay, &Record::MPLact, kGramsFactor},
    {"Energy Allowable Milk", Unit::WeightPerDay, &Record::EnergyAllowableMilk, kPounds},
    {"Protein Allowable Milk", Unit::WeightPerDay, &Record::ProteinAllowableMilk, kPounds},
    {"ADG", Unit::WeightPerDay, &Record::TargetADG, kPounds},
    {"Total DMI", Unit::WeightPerDay, &Record::ActualDMI, kPounds},
    {"MEMaint (Mcal/day)", Unit::None, &Record::MEMaint},
    {"MPMaint", Unit::GramsPerDay, &Record::MPMaint, kPoundsOfGrams},
    {"Pred. DMI", Unit::WeightPerDay, &Record::PredDMI, kPounds},
}};

std::string_view UnitText(Unit unit, bool metric) {
    switch (unit) {
        case Unit::None: return "";
        case Unit::Weight: return metric ? " (kg)" : " (lbs)";
        case Unit::WeightPerDay: return metric ? " (kg/day)" : " (lbs/day)";
        case Unit::GramsPerDay: return metric ? " (g/day)" : " (lbs/day)";
    }
    return "";
}

// Puts together the fields of a line.
class LineOfFields {
  public:
    explicit LineOfFields(bool metric) : metric_(metric) {}

    void Add(std::string_view text, double /*factor*/ = 1) { AddField(BatchText(text)); }
    void Add(int value, double /*factor*/ = 1) { AddField(NumberText(value)); }
    void Add(Single value, double factor) {
        std::string text = NumberText(metric_ ? value : Single(value * factor));
        std::replace(text.begin(), text.end(), DecimalSeparator(), '.');
        AddField(text);
    }
    void AddTitle(std::string_view title, Unit unit) {
        std::string text(title);
        Add(text += UnitText(unit, metric_));
    }

    template <class Columns>
    void AddTitles(const Columns& columns) {
        for (const Column& column : columns)
            AddTitle(column.Title, column.InTitle);
    }
    template <class Columns>
    void AddValues(const Columns& columns, const Record& record) {
        for (const Column& column : columns) {
            std::visit([&](const auto& field) { Add(record.*field, column.Factor); }, column.Value);
        }
    }

    std::string Text() { return std::move(line_); }

  private:
    void AddField(std::string_view field) {
        if (!line_.empty()) line_ += ',';
        line_ += field;
    }

    bool metric_;
    std::string line_;
};

}  // namespace

std::string BatchText(std::string_view text) {
    std::string field = "\"";
    for (const char c : WithGuard(std::string(text))) {
        field += c;
        if (c == '"') field += c;
    }
    return field += '"';
}

std::string BatchTitles(const std::vector<std::string>& feeds, bool metric) {
    LineOfFields line(metric);
    line.AddTitle("Simulation Name", Unit::None);
    line.AddTitles(kAnimalColumns);
    for (const std::string& feed : feeds)
        line.AddTitle(feed, Unit::WeightPerDay);
    line.AddTitles(kResultColumns);
    return line.Text();
}

std::string BatchRow(const std::string& path, const SimulationRecord& record, bool metric) {
    LineOfFields line(metric);
    line.Add(std::filesystem::path(path).filename().string());
    line.AddValues(kAnimalColumns, record);
    for (std::size_t i = 0; i < record.NumFeeds; ++i)
        line.Add(record.Feeds[i].Qty, kPounds);
    line.AddValues(kResultColumns, record);
    return line.Text();
}

}  // namespace tav

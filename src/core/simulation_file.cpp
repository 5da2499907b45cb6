#include "core/simulation_file.h"

#include "core/new_simulation.h"
#include "core/number_text.h"

#include <array>
#include <optional>
#include <variant>

namespace tav {
namespace {

constexpr std::string_view kFirstLine = "TAV Dairy Cattle Simulation Data File";
constexpr std::string_view kLastLine = "TAV Dairy Cattle Simulation Data File - END";
constexpr std::string_view kEndOfComments = "** End of Comments **";

// A Single that is written with its fraction and read as a whole number. This is meant: a distance
// of 1.5 m comes back as 2.
struct ReadAsInteger {
    Single SimulationRecord::*Field;
};

using Record = SimulationRecord;
using Feed = FeedRecord;

using AnimalField = std::variant<std::string Record::*, Single Record::*, std::int16_t Record::*,
                                 std::uint8_t Record::*, bool Record::*, ReadAsInteger>;
using FeedField = std::variant<std::string Feed::*, Single Feed::*, bool Feed::*>;

// The animal and its surroundings, in the order of the file.
constexpr std::array<AnimalField, 33> kAnimalFields = {
    &Record::AnimalType,      &Record::Age,
    &Record::BodyWeight,      &Record::DaysPregnant,
    &Record::ConditionScore,  &Record::DaysInMilk,
    &Record::LactationNumber, &Record::AgeAtFirstCalving,
    &Record::CalvingInterval, &Record::DesiredADG,
    &Record::UseTargetADG,    &Record::CalfBodyWeight,
    &Record::CalfTemperature, &Record::MatureWeight,
    &Record::MWFromBreed,     &Record::Breed,
    &Record::CalfBirthWeight, &Record::CBWFromMW,
    &Record::MilkProduction,  &Record::MilkFat,
    &Record::MilkTrueProtein, &Record::Lactose,
    &Record::Temperature,     &Record::Grazing,
    &Record::Topography,      ReadAsInteger{&Record::Distance},
    &Record::Trips,           &Record::PreviousTemperature,
    &Record::WindSpeed,       &Record::CoatCondition,
    &Record::HeatStress,      &Record::HairDepth,
    &Record::NightCooling,
};

// A feed, in the order of the file, which is its own. Cys and the computed energy values have no
// line.
constexpr std::array<FeedField, 79> kFeedFields = {
    &Feed::Name,
    &Feed::ReadOnly,
    &Feed::Category,
    &Feed::IFN,
    &Feed::EnergyEqClass,
    &Feed::ForageDescription,
    &Feed::PAF,
    &Feed::TDN,
    &Feed::DE,
    &Feed::DM,
    &Feed::NDF,
    &Feed::ADF,
    &Feed::Lignin,
    &Feed::CP,
    &Feed::NDFIP,
    &Feed::ADFIP,
    &Feed::PrtA,
    &Feed::PrtB,
    &Feed::PrtC,
    &Feed::Kd,
    &Feed::RUPDigest,
    &Feed::Fat,
    &Feed::Ash,
    // minerals, each with its absorption coefficient
    &Feed::Ca,
    &Feed::CaBio,
    &Feed::P,
    &Feed::PBio,
    &Feed::Mg,
    &Feed::MgBio,
    &Feed::Cl,
    &Feed::ClBio,
    &Feed::K,
    &Feed::KBio,
    &Feed::Na,
    &Feed::NaBio,
    &Feed::S,
    &Feed::SBio,
    &Feed::Co,
    &Feed::CoBio,
    &Feed::Cu,
    &Feed::CuBio,
    &Feed::I,
    &Feed::IBio,
    &Feed::Fe,
    &Feed::FeBio,
    &Feed::Mn,
    &Feed::MnBio,
    &Feed::Se,
    &Feed::SeBio,
    &Feed::Zn,
    &Feed::ZnBio,
    // vitamins, amino acids
    &Feed::VitA,
    &Feed::VitD,
    &Feed::VitE,
    &Feed::Arg,
    &Feed::His,
    &Feed::Ile,
    &Feed::Leu,
    &Feed::Lys,
    &Feed::Met,
    &Feed::Phe,
    &Feed::Thr,
    &Feed::Trp,
    &Feed::Val,
    // digestibilities, then the values of calf feeds
    &Feed::NFCDigest,
    &Feed::CPDigest,
    &Feed::NDFDigest,
    &Feed::FatDigest,
    &Feed::cGE,
    &Feed::cDE,
    &Feed::cME,
    &Feed::cNEm,
    &Feed::cNEg,
    &Feed::cCP,
    &Feed::cDCP,
    &Feed::cDM,
    &Feed::cEE,
    &Feed::cAsh,
    &Feed::Qty,
};

void ReadValue(std::string_view line, std::string& value) { value = line; }
void ReadValue(std::string_view line, Single& value) { value = TextToSingle(line); }
void ReadValue(std::string_view line, std::int16_t& value) { value = TextToInteger(line); }
void ReadValue(std::string_view line, std::uint8_t& value) { value = TextToByte(line); }
void ReadValue(std::string_view line, bool& value) { value = TextToBoolean(line); }

std::string_view ValueText(const std::string& value) { return value; }
std::string_view ValueText(bool value) { return BooleanText(value); }
std::string ValueText(Single value) { return NumberText(value); }
std::string ValueText(std::int16_t value) { return NumberText(int{value}); }
std::string ValueText(std::uint8_t value) { return NumberText(int{value}); }

// The name of the field at an address in a record.
template <class Owner>
std::string NameOfField(const Owner& owner, const void* address) {
    std::string result;
    VisitFields(owner, [&](std::string_view name, const auto& field) {
        if (static_cast<const void*>(&field) == address) result = name;
    });
    return result;
}

// Runs an operation on the next line; a failure is thrown on with the line and what was to be read.
template <class Operation, class NameOfItem>
void ReadItem(LineReader& file, Operation&& operation, NameOfItem&& nameOfItem) {
    try {
        operation(file.ReadLine());
    } catch (const RuntimeError& error) {
        FileFault fault(error, file.Line());
        fault.Item = nameOfItem();
        fault.Text = file.Text();
        throw fault;
    }
}

template <class Owner, class Fields, class Prefix>
void ReadFields(LineReader& file, Owner& owner, const Fields& fields, Prefix&& prefix) {
    for (const auto& field : fields) {
        std::visit(
            [&](const auto& member) {
                const void* address = nullptr;
                const auto name = [&] { return prefix() + NameOfField(owner, address); };
                if constexpr (std::is_same_v<std::decay_t<decltype(member)>, ReadAsInteger>) {
                    Single& value = owner.*member.Field;
                    address = &value;
                    ReadItem(
                        file, [&](std::string_view line) { value = TextToInteger(line); }, name);
                } else {
                    auto& value = owner.*member;
                    address = &value;
                    ReadItem(
                        file, [&](std::string_view line) { ReadValue(line, value); }, name);
                }
            },
            field);
    }
}

template <class Owner, class Fields>
void WriteFields(LineWriter& file, const Owner& owner, const Fields& fields) {
    for (const auto& field : fields) {
        std::visit(
            [&](const auto& member) {
                if constexpr (std::is_same_v<std::decay_t<decltype(member)>, ReadAsInteger>) {
                    file.WriteLine(ValueText(owner.*member.Field));
                } else {
                    file.WriteLine(ValueText(owner.*member));
                }
            },
            field);
    }
}

template <class Value>
void ReadNamed(LineReader& file, Value& value, const char* name) {
    ReadItem(
        file, [&](std::string_view line) { ReadValue(line, value); },
        [&] { return std::string(name); });
}

void ExpectLine(LineReader& file, std::string_view expected) {
    ReadItem(
        file,
        [&](std::string_view line) {
            if (line != expected) Raise(kTypeMismatch);
        },
        [&] { return "the line \"" + std::string(expected) + "\""; });
}

// Line breaks inside a paragraph are lost and a blank line comes back as two breaks. This is meant.
void ReadComments(LineReader& file, std::string& comments) {
    comments.clear();
    std::string_view line;
    const auto next = [&] {
        ReadItem(
            file, [&](std::string_view text) { line = text; },
            [] { return std::string("the comments"); });
    };
    next();
    if (line.empty()) return;
    while (line != kEndOfComments) {
        comments += line.empty() ? std::string_view("\r\n\r\n") : line;
        next();
    }
}

void WriteComments(LineWriter& file, const std::string& comments) {
    file.WriteLine(comments);
    if (!comments.empty()) file.WriteLine(kEndOfComments);
}

void ReadFeeds(LineReader& file, SimulationRecord& record) {
    if (record.NumFeeds == 0) return;
    record.Feeds.assign(record.NumFeeds, FeedRecord{});
    int number = 0;
    const auto prefix = [&] { return "feed " + NumberText(number) + ", "; };
    for (FeedRecord& feed : record.Feeds) {
        ++number;
        ReadFields(file, feed, kFeedFields, prefix);
    }
}

}  // namespace

void ReadSimulation(LineReader& file, SimulationRecord& record) {
    ExpectLine(file, kFirstLine);
    for (std::string& text : record.HeaderFields)
        ReadNamed(file, text, "a header field");
    for (std::string& text : record.FooterFields)
        ReadNamed(file, text, "a footer field");
    ReadComments(file, record.Comments);
    ReadFields(file, record, kAnimalFields, [] { return std::string(); });
    ReadNamed(file, record.NumFeeds, "NumFeeds");
    ReadFeeds(file, record);
    ReadNamed(file, record.TotalDMI, "TotalDMI");
    ExpectLine(file, kLastLine);
}

void ReadSimulation(const std::string& fileName, SimulationRecord& record) {
    std::optional<LineReader> file;
    try {
        file.emplace(fileName);
    } catch (const RuntimeError& error) {
        throw FileFault(error, 0);
    }
    ReadSimulation(*file, record);
}

void TakeSimulation(SimulationRecord& from, SimulationRecord& to) {
    from.HeaderFields.swap(to.HeaderFields);
    from.FooterFields.swap(to.FooterFields);
    from.Comments.swap(to.Comments);
    for (const AnimalField& field : kAnimalFields) {
        std::visit(
            [&](const auto& member) {
                if constexpr (std::is_same_v<std::decay_t<decltype(member)>, ReadAsInteger>) {
                    std::swap(from.*member.Field, to.*member.Field);
                } else {
                    std::swap(from.*member, to.*member);
                }
            },
            field);
    }
    to.NumFeeds = from.NumFeeds;
    if (from.NumFeeds != 0) from.Feeds.swap(to.Feeds);
    to.TotalDMI = from.TotalDMI;
}

void WriteSimulation(const std::string& fileName, const SimulationRecord& record) {
    LineWriter file(fileName);
    WriteSimulation(file, record);
}

void WriteSimulation(LineWriter& file, const SimulationRecord& record) {
    file.WriteLine(kFirstLine);
    for (const std::string& text : record.HeaderFields)
        file.WriteLine(text);
    for (const std::string& text : record.FooterFields)
        file.WriteLine(text);
    WriteComments(file, record.Comments);
    WriteFields(file, record, kAnimalFields);
    file.WriteLine(PrintedText(int{record.NumFeeds}));
    for (std::size_t i = 0; i < record.NumFeeds; ++i) {
        WriteFields(file, record.Feeds[i], kFeedFields);
    }
    file.WriteLine(PrintedText(record.TotalDMI));
    file.WriteLine(kLastLine);
    file.Close();
}

Message LoadFailureMessage(const RuntimeError& error, std::string_view consequence) {
    switch (error.Number) {
        case kFileNotFound:
            return {
                "No default simulation data file has been found.\r\r"
                "Therefore, a default simulation has been created.",
                "Default Simulation Data File Not Found", MessageIcon::Information};
        case kTypeMismatch:
            return {
                "The simulation data file has been corrupted.\r\r"
                "Therefore, a default simulation has been created.",
                "Corrupted File", MessageIcon::Information};
        default:
            return {"Error Number :  " + SignedText(error.Number) + "\rError Description :  " +
                        error.Description + "\r\r" + std::string(consequence),
                    "Error", MessageIcon::Critical};
    }
}

void RecoverFromLoadFailure(const RuntimeError& error) {
    ThePlatform().ShowMessage(LoadFailureMessage(error));
    NewSimulation();
}

void LoadSimulationData(const std::string& fileName) {
    try {
        ReadSimulation(fileName, TheSimulation());
    } catch (const RuntimeError& error) {
        RecoverFromLoadFailure(error);
    }
}

void SaveSimulationData(const std::string& fileName) { WriteSimulation(fileName, TheSimulation()); }

}  // namespace tav

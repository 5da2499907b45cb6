#include "support.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <utility>
#include <vector>

namespace tav {

testing::AssertionResult IsClose(const char* expectedText, const char* actualText, double expected,
                                 Number actual) {
    if (std::abs(actual.Value() - expected) <= std::abs(expected) * 1e-6) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << actualText << " is " << actual.Value() << ", expected "
                                       << expectedText << " = " << expected;
}

namespace {

std::string WithoutLeadingBlanks(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return std::string(text);
}

// Splits "a=1, b=2" into pairs.
std::vector<std::pair<std::string, std::string>> Parse(std::string_view text) {
    std::vector<std::pair<std::string, std::string>> pairs;
    while (!text.empty()) {
        const std::string_view item = text.substr(0, text.find(','));
        const std::size_t equals = item.find('=');
        if (equals == item.npos) throw std::invalid_argument(std::string(item));
        pairs.emplace_back(WithoutLeadingBlanks(item.substr(0, equals)), item.substr(equals + 1));
        text.remove_prefix(std::min(item.size() + 1, text.size()));
    }
    return pairs;
}

// Calls visit with the plain field of that name. It may write only where the owner is no constant.
template <class Owner, class Visitor>
bool VisitField(Owner& owner, std::string_view wanted, Visitor&& visit) {
    bool found = false;
    VisitFields(owner, [&]<class T>(std::string_view name, const T& field) {
        if (name != wanted) return;
        if constexpr (std::is_arithmetic_v<T> || std::is_same_v<T, Single> ||
                      std::is_same_v<T, std::string> || std::is_same_v<T, OptionalReal>) {
            visit(const_cast<T&>(field));
            found = true;
        }
    });
    return found;
}

template <class Visitor>
bool VisitElement(SimulationRecord& r, std::string_view wanted, std::size_t index,
                  Visitor&& visit) {
    bool found = false;
    VisitFields(r, [&]<class T>(std::string_view name, const T& field) {
        if constexpr (std::is_same_v<T, PerFeed> || std::is_same_v<T, PerScore>) {
            if (name != wanted) return;
            visit(const_cast<Single&>(field.at(index - 1)));
            found = true;
        }
    });
    return found;
}

template <class Visitor>
void VisitPath(SimulationRecord& r, const std::string& path, Visitor&& visit) {
    bool found = false;
    const std::size_t point = path.rfind('.'), bracket = path.find('[');
    if (bracket != path.npos && path.back() == ']') {
        found =
            VisitElement(r, path.substr(0, bracket), std::stoul(path.substr(bracket + 1)), visit);
    } else if (point == path.npos) {
        found = VisitField(r, path, visit);
    } else {
        const std::string owner = path.substr(0, point), name = path.substr(point + 1);
        for (FeedRecord& feed : r.Feeds)
            if (!found && feed.Name == owner) found = VisitField(feed, name, visit);
        for (MineralRow& row : r.MineralRows)
            if (!found && row.Name == owner) found = VisitField(row, name, visit);
        for (BalanceRow& row : r.BalanceTable)
            if (!found && row.Label == owner) found = VisitField(row, name, visit);
    }
    if (!found) throw std::invalid_argument("no field " + path);
}

// Writes a value's text into a field.
struct Setter {
    const std::string& Value;
    void operator()(std::string& field) const { field = Value; }
    void operator()(auto& field) const {
        field = static_cast<std::decay_t<decltype(field)>>(std::stod(Value));
    }
};

}  // namespace

std::string TextOf(const SimulationRecord& record, const std::string& path) {
    std::string text;
    VisitPath(const_cast<SimulationRecord&>(record), path, [&]<class T>(const T& field) {
        if constexpr (std::is_same_v<T, std::string>)
            text = field;
        else
            throw std::invalid_argument("no text: " + path);
    });
    return text;
}

double NumberOf(const SimulationRecord& record, const std::string& path) {
    double number = 0;
    VisitPath(const_cast<SimulationRecord&>(record), path, [&]<class T>(const T& field) {
        if constexpr (std::is_same_v<T, std::string>)
            throw std::invalid_argument("no number: " + path);
        else if constexpr (std::is_same_v<T, Single>)
            number = field.Value();
        else if constexpr (std::is_same_v<T, OptionalReal>)
            number = field.value();
        else
            number = field;
    });
    return number;
}

SimulationRecord With(SimulationRecord r, std::string_view settings) {
    for (const auto& [path, value] : Parse(settings))
        VisitPath(r, path, Setter{value});
    return r;
}

FeedRecord With(FeedRecord f, std::string_view settings) {
    for (const auto& [name, value] : Parse(settings))
        if (!VisitField(f, name, Setter{value})) throw std::invalid_argument("no field " + name);
    return f;
}

void Expect(const SimulationRecord& r, std::string_view expected) {
    for (const auto& [path, value] : Parse(expected)) {
        char* end = nullptr;
        const double number = std::strtod(value.c_str(), &end);
        if (!value.empty() && *end == '\0') {
            EXPECT_CLOSE(number, NumberOf(r, path)) << path;
        } else {
            EXPECT_EQ(value, TextOf(r, path)) << path;
        }
    }
}

int ErrorOf(Step& step, SimulationRecord& r) {
    try {
        step(r);
    } catch (const RuntimeError& error) {
        return error.Number;
    }
    return 0;
}

void ExpectCases(const SimulationRecord& animal, Step& step, std::initializer_list<Case> cases) {
    for (const Case& c : cases) {
        SCOPED_TRACE(c.Given);
        SimulationRecord r = With(animal, c.Given);
        std::string_view expected = c.Expected;
        int error = 0;
        if (expected.starts_with("error=")) {
            error = std::stoi(std::string(expected.substr(6)));
            expected.remove_prefix(std::min(expected.find(','), expected.size() - 1) + 1);
        }
        EXPECT_EQ(error, ErrorOf(step, r));
        Expect(r, expected);
    }
}

namespace {

SimulationRecord Animal(std::string_view type, std::string_view settings) {
    SimulationRecord r;
    r.AnimalType = type;
    r = With(r,
             "ConditionScore=3, AgeAtFirstCalving=24, CalvingInterval=12, MatureWeight=650, "
             "Breed=Holstein, CalfBirthWeight=45, Temperature=20, PreviousTemperature=20, "
             "Topography=Flat, CoatCondition=Clean/Dry, HeatStress=None, HairDepth=0.5");
    return With(r, settings);
}

FeedRecord Feed(const char* name, const char* category, const char* energyClass, const char* forage,
                std::string_view analysis) {
    FeedRecord f = With(FeedRecord(), "PAF=1, CPDigest=1, FatDigest=1");
    f.Name = name;
    f.Category = category;
    f.EnergyEqClass = energyClass;
    f.ForageDescription = forage;
    return With(f, analysis);
}

constexpr const char* kAminoAcids =
    "Arg=5, His=2.5, Ile=5, Leu=7.5, Lys=5, Met=2.5, Phe=5, Thr=5, Trp=2.5, Val=10";

}  // namespace

SimulationRecord LactatingCow() {
    return Animal(kLactatingCow,
                  "Age=60, BodyWeight=625, DaysInMilk=100, LactationNumber=3, "
                  "MilkProduction=30, MilkFat=4, MilkTrueProtein=3.1, Lactose=4.8");
}
SimulationRecord DryCow() {
    return Animal(kDryCow, "Age=60, BodyWeight=625, LactationNumber=3, DaysPregnant=250");
}
SimulationRecord Heifer() {
    return Animal(kReplacementHeifer, "Age=12, BodyWeight=256, DesiredADG=700");
}
SimulationRecord Calf() {
    return Animal(kYoungCalf, "Age=1, CalfBodyWeight=81, CalfTemperature=20");
}

FeedRecord Hay() {
    return With(Feed("Hay", "Grass/Legume Forage", "Forage", "Dry",
                     "NDF=50, ADF=35, CP=12, NDFIP=4, ADFIP=1, NDFDigest=0.5, PrtA=30, PrtB=60, "
                     "Kd=6, RUPDigest=70, Fat=2, Ash=8, Ca=1, CaBio=0.3, P=0.3, PBio=0.6, K=2"),
                kAminoAcids);
}
FeedRecord Maize() {
    return With(Feed("Maize", "Energy Source", "Concentrate", "Concentrate",
                     "NDF=10, ADF=3, CP=10, NDFIP=1, ADFIP=0.5, NDFDigest=0.5, PrtA=20, PrtB=75, "
                     "Kd=5, RUPDigest=90, Fat=4, Ash=2, P=0.3, PBio=0.7"),
                kAminoAcids);
}
FeedRecord FishMeal() {
    return With(Feed("Fish meal", "Animal Protein", "Concentrate", "Concentrate",
                     "PAF=0.9, NDF=4, CP=60, NDFIP=1, ADFIP=1, CPDigest=0.9, PrtA=20, PrtB=70, "
                     "Kd=2, RUPDigest=90, Fat=8, Ash=20"),
                kAminoAcids);
}
FeedRecord Tallow() {
    return Feed("Tallow", "Fat", "Fatty Acid", "Concentrate", "Fat=84, FatDigest=0.85");
}
FeedRecord Limestone() {
    return Feed("Limestone", "Vitamin/Mineral", "Vitamin/Mineral", "Concentrate", "Ash=100, Ca=38");
}
FeedRecord Milk() {
    return Feed("Milk", "Calf Feed - Milk", "", "",
                "cME=5, cNEm=4.3, cNEg=3.45, cCP=25, cDCP=23.25, cEE=20");
}
FeedRecord Starter() {
    return Feed("Calf Starter", "Calf Feed - Starter", "", "",
                "cME=3, cNEm=2.58, cNEg=2.07, cCP=20, cDCP=15, cEE=4");
}

FeedRecord FeedOfTDN(double tdn) {
    FeedRecord f = Feed("Test feed", "Animal Protein", "Concentrate", "Concentrate", "Fat=1");
    f.CP = tdn + 7;  // 1 * CP - 7, with nothing but fat and ash beside it
    f.Ash = 99 - f.CP;
    return f;
}

void Add(SimulationRecord& r, FeedRecord feed, double quantity) {
    feed.Qty = quantity;
    r.Feeds.push_back(std::move(feed));
    ++r.NumFeeds;
    r.TotalDMI += quantity;
}

SimulationRecord Fed(SimulationRecord r, const FeedRecord& feed, double quantity) {
    Add(r, feed, quantity);
    return r;
}

SimulationRecord Fed(SimulationRecord r) {
    if (r.AnimalType == kYoungCalf) return Fed(Fed(r, Milk(), 0.75), Starter(), 0.5);
    const double share = r.AnimalType == kLactatingCow ? 1 : 0.4;
    return Fed(Fed(Fed(r, Hay(), 10 * share), Maize(), 8 * share), FishMeal(), 2 * share);
}

}  // namespace tav

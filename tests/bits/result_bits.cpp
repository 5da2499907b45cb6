// Computes random simulations and prints one number that depends on every bit of every result.
#include "model/computations.h"

#include <bit>
#include <cstdio>

namespace {

constexpr int kSimulations = 5000;

// A small generator that is the same everywhere.
class Random {
  public:
    std::uint32_t Next() {
        state_ = state_ * 6364136223846793005U + 1442695040888963407U;
        return static_cast<std::uint32_t>(state_ >> 33U);
    }
    double Between(double low, double high) { return low + (high - low) * (Next() / 2147483648.0); }
    template <class Choices>
    auto OneOf(const Choices& choices) {
        return choices[Next() % std::size(choices)];
    }

  private:
    std::uint64_t state_ = 2026;
};

constexpr const char* kCategories[] = {
    "Grass/Legume Forage", "Energy Source",      "Fat",
    "Plant Protein",       "Animal Protein",     "Vitamin/Mineral",
    "Calf Feed - Milk",    "Calf Feed - Starter"};
constexpr const char* kClasses[] = {"Forage", "Concentrate", "Fat", "Fatty Acid"};
constexpr const char* kDescriptions[] = {"Dry", "Wet", "Concentrate", "None"};
constexpr const char* kHeatStress[] = {"None", "Rapid/Shallow", "Open Mouth"};
constexpr const char* kCoats[] = {"Clean/Dry", "Some Mud", "Wet/Matted", "Covered with Snow/Mud"};
constexpr const char* kBreeds[] = {"Holstein", "Jersey", "Ayrshire"};

tav::FeedRecord RandomFeed(Random& random) {
    tav::FeedRecord feed;
    tav::VisitFields(feed, [&](std::string_view, const auto& field) {
        if constexpr (std::is_same_v<std::decay_t<decltype(field)>, tav::Single>) {
            const_cast<tav::Single&>(field) = random.Between(0, 30);
        }
    });
    feed.Qty = random.Between(0, 4);
    feed.Category = random.OneOf(kCategories);
    feed.EnergyEqClass = random.OneOf(kClasses);
    feed.ForageDescription = random.OneOf(kDescriptions);
    feed.PAF = random.Between(0.9, 1.1);
    feed.NDFDigest = random.Between(0.3, 0.8);
    return feed;
}

tav::SimulationRecord RandomSimulation(Random& random) {
    tav::SimulationRecord record;
    record.AnimalType = tav::kAnimalTypes[random.Next() % tav::kAnimalTypes.size()];
    record.Age = random.Between(0, 80);
    record.BodyWeight = random.Between(200, 800);
    record.DaysPregnant = static_cast<std::int16_t>(random.Next() % 285);
    record.ConditionScore = random.Between(0.8, 5.2);
    record.DaysInMilk = static_cast<std::int16_t>(random.Next() % 300);
    record.LactationNumber = static_cast<std::uint8_t>(random.Next() % 5);
    record.AgeAtFirstCalving = random.Between(20, 30);
    record.CalvingInterval = random.Between(0, 14);
    record.DesiredADG = static_cast<std::int16_t>(random.Next() % 1000);
    record.CalfBodyWeight = random.Between(30, 100);
    record.CalfTemperature = random.Between(-35, 30);
    record.MatureWeight = random.Between(400, 750);
    record.Breed = random.OneOf(kBreeds);
    record.CalfBirthWeight = random.Between(20, 50);
    record.MilkProduction = random.Between(-1, 50);
    record.MilkFat = random.Between(2, 6);
    record.MilkTrueProtein = random.Between(2, 4);
    record.Temperature = random.Between(-30, 45);
    record.PreviousTemperature = random.Between(-10, 30);
    record.WindSpeed = random.Between(0, 40);
    record.CoatCondition = random.OneOf(kCoats);
    record.HeatStress = random.OneOf(kHeatStress);
    record.Grazing = random.Next() % 2 == 0;
    record.HairDepth = random.Between(0, 3);
    record.NumFeeds = static_cast<std::uint8_t>(random.Next() % 12);
    for (int i = 0; i < record.NumFeeds; ++i)
        record.Feeds.push_back(RandomFeed(random));
    tav::Number total;
    for (const tav::FeedRecord& feed : record.Feeds)
        total += feed.Qty;
    record.TotalDMI = total;
    return record;
}

class Sum {
  public:
    void Add(std::uint64_t value) { sum_ = (sum_ ^ value) * 1099511628211U; }
    void AddField(tav::Single value) { Add(std::bit_cast<std::uint32_t>(value.Value())); }
    void AddField(const tav::OptionalReal& value) {
        Add(std::bit_cast<std::uint64_t>(value.value_or(-1)));
    }
    void AddField(const std::string& text) {
        for (const char c : text)
            Add(static_cast<unsigned char>(c));
    }
    template <std::integral Whole>
    void AddField(Whole value) {
        Add(static_cast<std::uint64_t>(value));
    }
    template <class Record>
    requires requires(const Record& record) { record.size(); }
    void AddField(const Record& values) {
        for (const auto& value : values)
            AddField(value);
    }
    template <class Record>
    requires requires(const Record& record) {
        VisitFields(record, [](auto, const auto&) {});
    }
    void AddField(const Record& record) {
        VisitFields(record, [this](std::string_view, const auto& field) { AddField(field); });
    }
    unsigned long long Value() const { return sum_; }

  private:
    std::uint64_t sum_ = 14695981039346656037U;
};

}  // namespace

int main() {
    Random random;
    Sum sum;
    int faults = 0;
    for (int i = 0; i < kSimulations; ++i) {
        tav::SimulationRecord record = RandomSimulation(random);
        try {
            tav::RunComputations(record);
        } catch (const tav::RuntimeError& fault) {
            ++faults;
            sum.Add(static_cast<std::uint64_t>(fault.Number));
        }
        sum.AddField(record);
    }
    std::printf("%d simulations, %d faults, sum %016llx\n", kSimulations, faults, sum.Value());
    return 0;
}

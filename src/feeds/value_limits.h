// The limits within which a feed's values are accepted, and the words that a feed may use.
#pragma once

#include <array>
#include <string_view>

namespace tav {

struct ValueLimits {
    int Minimum = 0;
    int Maximum = 0;
};

// The limits of a value by the label of its row; both are accepted themselves. The first rule that
// fits decides.
ValueLimits LimitsFor(std::string_view label);

// The categories of the feed library, ordinary feeds first, and the words for the energy class and
// the forage description of an ordinary feed.
inline constexpr std::array<std::string_view, 11> kFeedCategories = {"Grass/Legume Forage",
                                                                     "Grain Crop Forage",
                                                                     "Energy Source",
                                                                     "Fat",
                                                                     "Plant Protein",
                                                                     "Animal Protein",
                                                                     "By-Product/Other",
                                                                     "Vitamin/Mineral",
                                                                     "Calf Feed - Milk",
                                                                     "Calf Feed - Starter",
                                                                     "Calf Feed - Vitamin/Mineral"};
inline constexpr std::array<std::string_view, 6> kEnergyClasses = {
    "Forage", "Concentrate", "Animal", "Fat", "Fatty Acid", "Vitamin/Mineral"};
inline constexpr std::array<std::string_view, 3> kForageDescriptions = {"Dry", "Wet",
                                                                        "Concentrate"};

}  // namespace tav

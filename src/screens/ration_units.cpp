#include "screens/ration_units.h"

#include "core/number_text.h"
#include "core/program_state.h"
#include "screens/quantity.h"

namespace tav {
namespace {

constexpr float kPoundsPerKilogram = 2.20462F;
constexpr double kKilogramsPerPound = 1 / 2.20462;

}  // namespace

FeedRecord& RationFeed(int feed) {
    return TheSimulation().Feeds.at(static_cast<std::size_t>(feed - 1));
}

std::string_view RationUnit() { return TheProgram().UseMetric ? "kg/day" : "lbs/day"; }

Single RationFactor() { return TheProgram().UseMetric ? 1.0F : kPoundsPerKilogram; }

Number DryMatterShare(const FeedRecord& feed) {
    if (TheProgram().DryMatterBasis) return 1;
    return (IsCalfCategory(feed.Category) ? feed.cDM : feed.DM) / 100;
}

Number StoredQuantity(const FeedRecord& feed, double shown) {
    const Number inUnit = shown * Number(TheProgram().UseMetric ? 1 : kKilogramsPerPound);
    return inUnit * DryMatterShare(feed);
}

std::string ShownQuantity(const FeedRecord& feed) {
    const std::string_view mask = QuantityMask(feed.Category);
    if (TheProgram().DryMatterBasis) return ScaledText(feed.Qty, RationFactor(), mask);
    return FormatNumber((RationFactor() * feed.Qty / DryMatterShare(feed)).Value(), mask);
}

std::string_view QuantityMask(std::string_view category) {
    return category == kVitaminMineralCategory ? "0.000000" : "0.000";
}

}  // namespace tav

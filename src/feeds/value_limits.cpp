#include "feeds/value_limits.h"

namespace tav {
namespace {

struct LimitRule {
    bool Whole;  // the label is the text; otherwise it holds the text
    std::string_view Text;
    ValueLimits Limits;
};

constexpr bool kWhole = true;
constexpr bool kPart = false;

// In order. Some labels stand in no grid; their rules are ready for them.
constexpr std::array kRules = {
    LimitRule{kWhole, "Feed Name", {0, 0}},
    LimitRule{kWhole, "Int-Ref-Num", {0, 0}},
    LimitRule{kWhole, "Category", {0, 0}},
    LimitRule{kWhole, "Cost ($/Ton)", {0, 10000}},
    LimitRule{kWhole, "Dry Matter (%As-Fed)", {1, 100}},
    LimitRule{kWhole, "CP Digestibility", {0, 1}},
    LimitRule{kWhole, "NDF Digestibility", {0, 1}},
    LimitRule{kWhole, "Fat Digestibility", {0, 1}},
    LimitRule{kWhole, "CP (%DM)", {0, 625}},  // urea and the like: nitrogen times 6.25
    LimitRule{kPart, "(%DM)", {0, 100}},
    LimitRule{kPart, "(%CP)", {0, 100}},
    LimitRule{kPart, "(% As-Fed)", {1, 100}},
    LimitRule{kPart, "(%NDF)", {0, 100}},
    LimitRule{kPart, "(%Sol-P)", {0, 100}},
    LimitRule{kPart, "(%NSC)", {0, 100}},
    LimitRule{kPart, "(%UIP)", {0, 100}},
    LimitRule{kWhole, "CHO-A (%/hr)", {0, 500}},
    LimitRule{kWhole, "CHO-B1 (%/hr)", {0, 75}},
    LimitRule{kWhole, "CHO-B2 (%/hr)", {0, 30}},
    LimitRule{kWhole, "Protein-B1 (%/hr)", {0, 500}},
    LimitRule{kWhole, "Protein-B2 (%/hr)", {0, 50}},
    LimitRule{kWhole, "Protein-B3 (%/hr)", {0, 5}},
    LimitRule{kWhole, "Protein Digestion Rate (%/hr)", {0, 500}},
    LimitRule{kPart, "(%)", {0, 100}},
    LimitRule{kPart, "(Mcal/kg)", {0, 1000}},
    LimitRule{kPart, "(1000 IU/kg)", {0, 500000}},
    LimitRule{kPart, "(IU/kg)", {0, 500000}},
    LimitRule{kPart, "(g/g)", {0, 1}},
};

constexpr ValueLimits kOtherwise = {0, 1000000};

}  // namespace

ValueLimits LimitsFor(std::string_view label) {
    for (const LimitRule& rule : kRules) {
        const bool fits =
            rule.Whole ? label == rule.Text : label.find(rule.Text) != std::string_view::npos;
        if (fits) return rule.Limits;
    }
    return kOtherwise;
}

}  // namespace tav

#include "shell/credits.h"

namespace tav {

const std::string_view kSourceOfFigures =
    "The equations and tables of this program are those of the TAV Feeding Standards for Milking "
    "Herds. Nutrient contents of feeds are means of analyses and no substitute for an analysis of "
    "the feeds on hand.";

const std::string_view kCommittee = "TAV Committee on Feeding Standards for Milking Herds";

const std::string_view kCommitteeMembers =
    "Working group on energy and intake\r\n"
    "Working group on protein and amino acids\r\n"
    "Working group on minerals and vitamins\r\n"
    "Working group on growth, reserves and the young calf\r\n"
    "Working group on the computer program";

const std::string_view kDisclaimer =
    "Many variables and judgments go into the choice of inputs and the reading of outputs. The "
    "publisher therefore makes no claim for the accuracy of this software, and the user is solely "
    "responsible for risk of use.";

}  // namespace tav

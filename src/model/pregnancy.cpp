#include "model/steps.h"

namespace tav {

// The requirements of the conceptus, which start with a jump at day 190 of pregnancy.
//
// Reads    DaysPregnant [days], CalfBirthWeight [kg]
// Writes   ConceptusWeight [kg], ADGPreg [g/day], MEPreg and NEPreg [Mcal/day], MPPreg [g/day], and
//          DaysPregnant itself, which never stays above 279
// Form     linear in the day of pregnancy and in birth weight relative to 45 kg; efficiency 0.14 of
//          metabolisable energy and 0.33 of metabolisable protein
void ComputePregnancy(SimulationRecord& r) {
    if (r.DaysPregnant < 190) {
        r.ConceptusWeight = 0;
        r.ADGPreg = 0;
        r.MEPreg = 0;
        r.MPPreg = 0;
    } else {
        if (r.DaysPregnant > 279) r.DaysPregnant = 279;
        const Number P = r.DaysPregnant;
        const Number R = r.CalfBirthWeight / 45;
        r.ConceptusWeight = ((P - 190) * 0.665 + 18) * R;
        r.ADGPreg = R * 665;
        r.MEPreg = R * (P * 0.00318 - 0.0352) / 0.14;
        r.MPPreg = (P * 0.69 - 69.2) * R / 0.33;
    }
    r.NEPreg = r.MEPreg * 0.64;
}

}  // namespace tav

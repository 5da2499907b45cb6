#include "reports/components.h"

namespace tav {

void WritePregnancyRequirements(ReportWriter& w) {
    const SimulationRecord& r = w.Record();
    const ReportUnits& units = w.Units();
    w.StartComponent(15, "Pregnancy Requirements");

    w.Heading("Major Inputs Used to Compute Pregnancy Requirements");
    w.Line("Days Pregnant :  ", Plain(r.DaysPregnant, "0", " days"));
    w.Line("Expected Calf Birth Weight :  ", units.Weight(r.CalfBirthWeight, "0"));
    w.Line("Breed :  ", r.Breed);

    w.Heading("Calculation of Pregnancy Requirements");
    w.Line("Average Daily Gain for Pregnancy :  ", units.Protein(r.ADGPreg));
    w.Line("Conceptus and Tissue Weight :  ", units.Weight(r.ConceptusWeight, "0"));
    w.Line("ME Requirement for Pregnancy :  ", Energy(r.MEPreg));
    w.Line("NE Requirement for Pregnancy :  ", Energy(r.NEPreg));
    w.Line("MP Requirement for Pregnancy :  ", units.Protein(r.MPPreg));
}

}  // namespace tav

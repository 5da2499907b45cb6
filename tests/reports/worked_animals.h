// Animals that the sample simulations don't have, with results that are easy to reckon with: 1 kg
// is 2.20462 lbs, 1000 g are 2.205 lbs.
#pragma once

#include "support/report_fixture.h"

namespace tav {

class WorkedPages : public ReportTest {
  protected:
    // What stands between header and footer of the only page of a report, from its title on.
    std::string Body(const std::string& report, bool metric) {
        TheProgram().UseMetric = metric;
        const auto document = Make({report});
        EXPECT_EQ(document->PageCount(), 1);
        return document->Pages[0].Text;
    }

    static SimulationRecord& Cow(std::string_view type, int lactation) {
        SimulationRecord& r = TheSimulation();
        r.AnimalType = type;
        r.LactationNumber = static_cast<std::uint8_t>(lactation);
        r.Age = 30.5;
        r.BodyWeight = 500;
        r.MatureWeight = 650;
        r.TotalDMI = 20;
        r.DietME = 2.5;
        r.DietNEl = 1.6;
        r.DietNEg = 1.1;
        r.SBW = 480;
        r.NEMaint = 9.5;
        r.DMIMaint = 6;
        r.MPMaint = 500;
        return r;
    }

    static SimulationRecord& Calf() {
        SimulationRecord& r = TheSimulation();
        r.AnimalType = kYoungCalf;
        r.CalfBodyWeight = 50;
        r.CalfTemperature = 5;
        r.CalfDietME = 4.5;
        r.CalfDietNEm = 3.75;
        r.CalfDietNEg = 3;
        r.CalfMilkDMI = 0.5;
        r.CalfStarterDMI = 0.25;
        r.CalfTempMultiplier = 0.27;
        r.CalfNEMaint = 2;
        r.CalfEffNEmME = 0.82;
        r.MEMaint = 2.44;
        r.CalfDMIMaint = 0.6;
        r.CalfADPMaint = 25;
        r.CalfCPMaint = 30;
        r.CalfEffNEgME = 0.69;
        r.CalfADPGrowth = 75;
        r.CalfCPGrowth = 80;
        r.CalfADPBalance = -12;
        r.CalfCPBalance = 14;
        r.CalfDietFat = 0.186;
        return r;
    }
};

}  // namespace tav

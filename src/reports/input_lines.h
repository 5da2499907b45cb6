// Lines that several reports show among their major inputs.
#pragma once

#include "reports/report_writer.h"

#include <string>
#include <vector>

namespace tav {

// "Animal Type :  ", "Age :  " and "Body Weight :  ".
std::vector<std::string> AnimalLines(const ReportWriter& writer);

// "Dry Matter Intake :  " and the energy concentrations of the diet.
std::vector<std::string> DietLines(const ReportWriter& writer);

}  // namespace tav

// How the user's country writes numbers and dates.
#pragma once

#include <QLocale>

namespace tav {

// Sets the decimal separator of the number texts and the form of dates in reports. Dates of the
// United States, and of a system without a country, keep the program's own form.
void TakeLocale(const QLocale& locale);

}  // namespace tav

// Temperatures in the two scales. The record knows degrees Celsius only.
#pragma once

#include "core/number.h"

namespace tav {

inline Number CelsiusToFahrenheit(Number celsius) { return Number(9) / 5 * celsius + 32; }

inline Number FahrenheitToCelsius(Number fahrenheit) { return (fahrenheit - 32) * (Number(5) / 9); }

}  // namespace tav

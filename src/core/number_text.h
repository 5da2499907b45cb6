// Every conversion between numbers and their text that the program makes.
//
// The decimal separator that is written is the one in force (DecimalSeparator); what is read may
// use that one or the point. Group separators are never taken.
#pragma once

#include "core/number.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tav {

// The decimal separator of the user's locale; a point until it is set.
char DecimalSeparator();
void SetDecimalSeparator(char separator);

// The general form: up to 7 significant digits for a Single, 15 for a 64-bit number, no trailing
// zeros, with an exponent (1.5E+07, 2E-05) for a magnitude below 0.0001 or beyond those digits.
std::string NumberText(Single value);
std::string NumberText(double value);
std::string NumberText(int value);

// The general form with a blank where a minus sign would stand: " 12", "-12".
std::string SignedText(Single value);
std::string SignedText(int value);

// The form in which an output statement prints a number: SignedText and a blank behind it.
std::string PrintedText(Single value);
std::string PrintedText(int value);

// The value with a fixed number of decimals, 0 to 9. Rounds half away from zero on the decimal
// digits of the general form, so that 0.125 gives "0.13" with two decimals. A number below zero
// keeps its sign: -0.04 gives "-0.0" with one. Raises 5 for other numbers of decimals.
std::string FixedText(Single value, int decimals);
std::string FixedText(double value, int decimals);

// FixedText by a mask: "0", "0.0", "0.00" and so on. Raises 5 for any other mask.
std::string FormatNumber(Single value, std::string_view mask);
std::string FormatNumber(double value, std::string_view mask);

// True when TextToNumber would take the text.
bool IsNumeric(std::string_view text);

// Reads blanks, a sign, digits with at most one decimal separator, an exponent (E or D). Raises 13
// for anything else, the empty text included, and 6 for a number beyond the range of 64 bits.
double TextToNumber(std::string_view text);

// The same, converted: to 32 bits, to a whole number with halves to even (error 6 beyond the
// range).
Single TextToSingle(std::string_view text);
std::int16_t TextToInteger(std::string_view text);
std::uint8_t TextToByte(std::string_view text);

// "True" and "False" in any case, or a number, of which only zero is false. Raises 13 otherwise.
bool TextToBoolean(std::string_view text);

// "True" or "False".
std::string_view BooleanText(bool value);

}  // namespace tav

// The checked arithmetic in which the model's equations are written.
//
// A Single is what the record holds: 32 bits. A Number is what an equation works with: 64 bits. An
// expression of Singles is evaluated in Numbers, from left to right as C++ does, and rounded once,
// when it is stored in a Single. What must not pass raises a RuntimeError:
//
//   x / 0                                   11, division by zero
//   0 / 0, a result beyond 64 bits          6, overflow
//   a store beyond the range of 32 bits     6, overflow
//   an invalid power or logarithm           5, invalid procedure call
//
// A sum, difference, product or quotient beyond 64 bits is noticed where it is first used for
// anything but a further one of these: stored, compared, divided by, raised to a power. So neither
// a NaN nor an infinity decides a branch or reaches a Single.
#pragma once

#include "core/runtime_error.h"

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <type_traits>

namespace tav {

template <class T>
concept Arithmetic = std::is_arithmetic_v<T>;

class Number {
  public:
    constexpr Number() = default;
    template <Arithmetic T>
    constexpr Number(T value) : value_(static_cast<double>(value)) {}

    // Raises 6 for a value beyond the range of 64 bits.
    double Value() const {
        if (!(std::abs(value_) <= DBL_MAX)) [[unlikely]]
            Raise(kOverflow);
        return value_;
    }

    // The bare value, for arithmetic that is checked later.
    constexpr double Unchecked() const { return value_; }

  private:
    double value_ = 0;
};

inline Number operator-(Number a) { return -a.Unchecked(); }
inline Number operator+(Number a, Number b) { return a.Unchecked() + b.Unchecked(); }
inline Number operator-(Number a, Number b) { return a.Unchecked() - b.Unchecked(); }
inline Number operator*(Number a, Number b) { return a.Unchecked() * b.Unchecked(); }
inline Number operator/(Number a, Number b) {
    if (b.Value() == 0) [[unlikely]]
        Raise(a.Value() == 0 ? kOverflow : kDivisionByZero);
    return a.Unchecked() / b.Unchecked();
}
inline Number& operator+=(Number& a, Number b) { return a = a + b; }

inline bool operator==(Number a, Number b) { return a.Value() == b.Value(); }
inline bool operator<(Number a, Number b) { return a.Value() < b.Value(); }
inline bool operator>(Number a, Number b) { return a.Value() > b.Value(); }
inline bool operator<=(Number a, Number b) { return a.Value() <= b.Value(); }
inline bool operator>=(Number a, Number b) { return a.Value() >= b.Value(); }

// A 32-bit float of the record.
class Single {
  public:
    constexpr Single() = default;
    // Rounds to the nearest 32-bit value. Raises 6 beyond the range.
    Single(Number value) : value_(Rounded(value.Unchecked())) {}
    template <Arithmetic T>
    Single(T value) : Single(Number(value)) {}

    constexpr operator Number() const { return value_; }
    constexpr float Value() const { return value_; }

    // Each addition is rounded: the sum in a Single field is kept in 32 bits throughout.
    Single& operator+=(Number other) {
        value_ = Rounded(static_cast<double>(value_) + other.Unchecked());
        return *this;
    }
    Single& operator*=(Number other) { return *this = Number(*this) * other; }

  private:
    static float Rounded(double value) {
        // The smallest magnitude that rounds away from the largest finite float.
        constexpr double kBeyond = 0x1.ffffffp127;
        if (!(std::abs(value) < kBeyond)) [[unlikely]]
            Raise(kOverflow);
        return static_cast<float>(value);
    }

    float value_ = 0;
};

// base raised to exponent. Raises 5 for a negative base with a fractional exponent and for zero
// with a negative one, 6 when the result is beyond the range.
inline Number Power(Number base, Number exponent) {
    const double b = base.Value();
    const double e = exponent.Value();
    if ((b < 0 && e != std::floor(e)) || (b == 0 && e < 0)) [[unlikely]]
        Raise(kInvalidProcedureCall);
    return std::pow(b, e);
}

inline Number Square(Number x) { return x * x; }
inline Number Cube(Number x) { return x * x * x; }

// e raised to x.
inline Number Exp(Number x) { return std::exp(x.Value()); }

// The natural logarithm. Raises 5 for zero and below.
inline Number Log(Number x) {
    if (x.Value() <= 0) [[unlikely]]
        Raise(kInvalidProcedureCall);
    return std::log(x.Value());
}

inline Number Abs(Number x) { return std::abs(x.Value()); }

// dividend / divisor, or 0 where the divisor is not greater than 0.
inline Number GuardedQuotient(Number dividend, Number divisor) {
    return divisor > 0 ? dividend / divisor : Number(0);
}

// The nearest whole number, halves to the even neighbour.
double RoundHalfEven(double value);

// Conversions into the record's whole numbers: halves to even, error 6 beyond the range.
std::int16_t ToInteger(double value);
std::uint8_t ToByte(double value);

}  // namespace tav

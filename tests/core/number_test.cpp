// The arithmetic of the equations: one rounding at the store, and an error at the very point of a
// fault.
#include "core/number.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace tav {
namespace {

template <class Operation>
int ErrorOf(Operation&& operation) {
    try {
        operation();
        return 0;
    } catch (const RuntimeError& error) {
        return error.Number;
    }
}

TEST(Single, IsRoundedOnlyWhenStored) {
    const Single third = Number(1) / 3;
    EXPECT_EQ(third.Value(), 1.0F / 3.0F);
    // 0.1 stored in 32 bits is 0.100000001490116; ten times that is not 1 in 64 bits.
    const Single tenth = 0.1;
    EXPECT_NE((tenth * 10).Value(), 1.0);
    EXPECT_EQ(Single(tenth * 10).Value(), 1.0F);
}

TEST(Single, AddsInThirtyTwoBits) {
    Single sum = 16777216;  // 2^24: the next odd number has no 32-bit float
    sum += 1;
    EXPECT_EQ(sum.Value(), 16777216.0F);
    EXPECT_EQ((Single(16777216) + 1).Value(), 16777217.0);
}

TEST(Single, RaisesOverflowAtTheEdgeOfItsRange) {
    const double largest = std::numeric_limits<float>::max();
    EXPECT_EQ(Single(largest).Value(), std::numeric_limits<float>::max());
    EXPECT_EQ(Single(0x1.fffffefp127).Value(), std::numeric_limits<float>::max());
    EXPECT_EQ(ErrorOf([] { return Single(0x1.ffffffp127); }), kOverflow);  // half-way, away
    EXPECT_EQ(ErrorOf([] { return Single(-1e39); }), kOverflow);
    EXPECT_EQ(Single(1e-60).Value(), 0.0F);
}

TEST(Number, RaisesTheErrorOfEachFault) {
    EXPECT_EQ(ErrorOf([] { return Number(1) / 0; }), kDivisionByZero);
    EXPECT_EQ(ErrorOf([] { return Number(0) / 0; }), kOverflow);
    EXPECT_EQ(ErrorOf([] { return (Number(1e200) * 1e200).Value(); }), kOverflow);
    EXPECT_EQ(ErrorOf([] { return (Number(1.7e308) + 1.7e308).Value(); }), kOverflow);
    EXPECT_EQ(ErrorOf([] { return (Number(1e200) / 1e-200).Value(); }), kOverflow);
    EXPECT_EQ(ErrorOf([] { return Power(-1, 0.75); }), kInvalidProcedureCall);
    EXPECT_EQ(ErrorOf([] { return Power(0, -0.22); }), kInvalidProcedureCall);
    EXPECT_EQ(ErrorOf([] { return (Power(1e30, 20)).Value(); }), kOverflow);
    EXPECT_EQ(ErrorOf([] { return Log(0); }), kInvalidProcedureCall);
    EXPECT_EQ(ErrorOf([] { return (Exp(1000)).Value(); }), kOverflow);
}

TEST(Number, NeitherHidesAnOverflowNorDecidesByIt) {
    const Number beyond = Number(1e200) * 1e200;
    EXPECT_EQ(ErrorOf([&] { return Single(beyond); }), kOverflow);
    EXPECT_EQ(ErrorOf([&] { return beyond > 0; }), kOverflow);
    EXPECT_EQ(ErrorOf([&] { return 1 / beyond; }), kOverflow);
    EXPECT_EQ(ErrorOf([&] { return beyond / 0; }), kOverflow);
    EXPECT_EQ(ErrorOf([&] { return Exp(-beyond); }), kOverflow);
    EXPECT_EQ(ErrorOf([&] { return GuardedQuotient(1, beyond - beyond); }), kOverflow);
    EXPECT_EQ(ErrorOf([&] { return Single(beyond - beyond); }), kOverflow);
}

TEST(Number, TakesWhatIsValid) {
    EXPECT_EQ(Power(0, 0.75).Value(), 0);
    EXPECT_EQ(Power(0, 0).Value(), 1);
    EXPECT_EQ(Power(-2, 3).Value(), -8);
    EXPECT_EQ(Exp(-1000).Value(), 0);
    EXPECT_EQ(GuardedQuotient(5, 0).Value(), 0);
    EXPECT_EQ(GuardedQuotient(5, -1).Value(), 0);
    EXPECT_EQ(GuardedQuotient(5, 2).Value(), 2.5);
}

TEST(WholeNumbers, RoundHalvesToEvenAndRaiseOverflow) {
    const struct {
        double Value;
        int Expected;
    } cases[] = {{1.5, 2},   {2.5, 2},   {3.5, 4},    {-0.5, 0},
                 {-1.5, -2}, {-2.5, -2}, {2.4999, 2}, {2.5001, 3}};
    for (const auto& c : cases)
        EXPECT_EQ(ToInteger(c.Value), c.Expected) << c.Value;
    EXPECT_EQ(ToInteger(32767.49), 32767);
    EXPECT_EQ(ErrorOf([] { return ToInteger(32767.5); }), kOverflow);
    EXPECT_EQ(ToInteger(-32768.5), -32768);
    EXPECT_EQ(ErrorOf([] { return ToInteger(-32768.6); }), kOverflow);
    EXPECT_EQ(ToByte(255.4), 255);
    EXPECT_EQ(ToByte(-0.5), 0);
    EXPECT_EQ(ErrorOf([] { return ToByte(255.5); }), kOverflow);
    EXPECT_EQ(ErrorOf([] { return ToByte(-1); }), kOverflow);
}

}  // namespace
}  // namespace tav

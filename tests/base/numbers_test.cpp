#include "base/numbers.h"

#include <gtest/gtest.h>

#include <cmath>

#include <limits>

namespace linecalc {
namespace {

struct ReadCase {
  const char* text;
  Real value;
  bool readable;
};

TEST(ZahlLesen, ReadsBothDecimalMarksAndRemovesBlanks) {
  const ReadCase cases[] =
      {
          {"1 000,5", 1000.5L, true}, {"1.5", 1.5L, true}, {"1,5", 1.5L, true},       {"", 0, true},
          {"   ", 0, true},           {"1e3", 1000, true}, {"-2,5", -2.5L, true},     {"+4", 4, true},
          {",5", 0.5L, true},         {"7,", 7, true},     {"2,5E-3", 0.0025L, true}, {"abc", 0, false},
          {"1,000.5", 1, false},  // two decimal marks: the parse stops at the second
          {"12abc", 12, false},       {"--1", 0, false},   {"+", 0, false},           {"inf", 0, false},
          {"nan", 0, false},          {"0x10", 0, false},  {"1e99999", 0, false},
      };
  for (const auto& c : cases) {
    bool werteingabe = true;
    const Real value = Zahl_lesen(c.text, werteingabe);
    EXPECT_EQ(werteingabe, c.readable) << "\"" << c.text << "\"";
    if (c.readable) {
      EXPECT_EQ(value, c.value) << "\"" << c.text << "\"";
    }
  }
}

TEST(ZahlLesen, LeavesTheFlagUntouchedOnSuccessAndOnEmptyText) {
  bool werteingabe = false;  // an earlier field already failed
  EXPECT_EQ(Zahl_lesen("3", werteingabe), 3);
  EXPECT_FALSE(werteingabe);
  EXPECT_EQ(Zahl_lesen("", werteingabe), 0);
  EXPECT_FALSE(werteingabe);
}

TEST(ZahlLesen, KeepsExtendedPrecision) {
  bool werteingabe = true;
  // 0.1 in 80-bit differs from 0.1 in 64-bit: the reader must not go through double.
  EXPECT_EQ(Zahl_lesen("0,1", werteingabe), 0.1L);
  EXPECT_NE(Zahl_lesen("0,1", werteingabe), static_cast<Real>(0.1));
}

TEST(Runden, RoundsHalvesAwayFromZero) {
  const std::pair<Real, std::int64_t> cases[] = {
      {2.5L, 3},
      {-2.5L, -3},
      {0.49999L, 0},
      {-0.49999L, 0},
      {0.5L, 1},
      {-0.5L, -1},
      {1.4999999L, 1},
      {2.0L, 2},
      {0, 0},
      {-1.5L, -2},
      {1e15L + 0.5L, 1000000000000001LL},
  };
  for (const auto& [value, expected] : cases) EXPECT_EQ(Runden(value), expected) << static_cast<double>(value);
}

TEST(Interpolieren, PassesThroughBothNodesAndExtrapolatesWithoutClamping) {
  EXPECT_EQ(Interpolieren(1, 1, 5, 1.5L, 1.45L), 1.5L);
  EXPECT_EQ(Interpolieren(5, 1, 5, 1.5L, 1.45L), 1.45L);
  EXPECT_DOUBLE_EQ(static_cast<double>(Interpolieren(3, 1, 5, 1.5L, 1.45L)), 1.475);
  EXPECT_DOUBLE_EQ(static_cast<double>(Interpolieren(7, 1, 5, 1.5L, 1.45L)), 1.425);  // beyond x1
  EXPECT_DOUBLE_EQ(static_cast<double>(Interpolieren(0, 10, 20, 100, 50)), 150);      // before x0
}

TEST(Power, AgreesWithTheLibraryPowerFunction) {
  const std::pair<Real, Real> cases[] = {
      {0.5L, 2}, {0.75L, 0.375L}, {2.89L, 12},           {65536, 0.875L}, {1e5L, -0.25L},  {7e-5L, 0.9L},
      {-2, 3},   {-2, -2},        {37530 / 2320.0L, 16}, {3, 0},          {0.2L, 1.0L / 3}};
  for (const auto& [base, exponent] : cases) {
    const Real expected = std::pow(base, exponent);
    EXPECT_LT(std::fabs(power(base, exponent) - expected) / std::fabs(expected), 1e-17L)
        << static_cast<double>(base) << "^" << static_cast<double>(exponent);
  }
  EXPECT_EQ(power(0.5L, 2), 0.25L);  // whole exponents are exact products
  EXPECT_EQ(power(0, 0.5L), 0);
  EXPECT_TRUE(std::isnan(power(-2, 0.5L)));
}

TEST(Formatting, FixedDecimalsWithTheChosenSeparator) {
  EXPECT_EQ(formatFixed(1234.5678L, 3, '.'), "1234.568");
  EXPECT_EQ(formatFixed(1234.5678L, 3, ','), "1234,568");
  EXPECT_EQ(formatFixed(0.0001L, 2, '.'), "0.00");
  EXPECT_EQ(formatFixed(-12.5L, 0, '.'), "-13");  // exact halves away from zero
  EXPECT_EQ(formatFixed(0.125L, 2, '.'), "0.13");
  EXPECT_EQ(formatFixed(998.2L, 1, ','), "998,2");
  EXPECT_EQ(formatFixed(1e6L, 2, '.'), "1000000.00");  // no digit grouping
}

TEST(Formatting, ShortestTextReadsBackExactly) {
  for (const Real value : {0.1L, 1.0L / 3, 998.2L, 1e-12L, 123456789.125L, -0.0625L}) {
    for (const char separator : {'.', ','}) {
      const std::string text = formatShortest(value, separator);
      bool werteingabe = true;
      EXPECT_EQ(Zahl_lesen(text, werteingabe), value) << text;
      EXPECT_TRUE(werteingabe);
    }
  }
  EXPECT_EQ(formatShortest(998.2L, ','), "998,2");
}

}  // namespace
}  // namespace linecalc

#include "standalone/import/RationalTime.h"

#include <gtest/gtest.h>

#include <string>

namespace standalone {
namespace {

constexpr std::int64_t kTicksPerSecond = qelmediatypes::TickTime::kTicksPerSecond;

RationalTime Time(const std::string& value, const std::string& rate) {
  return {ParseDecimal(value).value(), ParseRate(rate).value()};
}

std::int64_t Ticks(const std::string& value, const std::string& rate) {
  return ToTicks(Time(value, rate)).GetTicks();
}

TEST(Decimals, AreReadExactlyHoweverTheyAreWritten) {
  EXPECT_EQ(ParseDecimal("24"), ParseDecimal("24.0"));
  EXPECT_EQ(ParseDecimal("24"), ParseDecimal("2.4e1"));
  EXPECT_EQ(ParseDecimal("-0.5"), ParseDecimal("-5E-1"));
  EXPECT_EQ(ParseDecimal("1590.5")->units, Wide{15905} * 100'000'000'000'000'000);
  EXPECT_EQ(ParseDecimal("0.0000000000000000004")->units, 0);
  EXPECT_EQ(ParseDecimal("0.0000000000000000005")->units, 1);
}

TEST(Decimals, WhatIsNoNumberIsNone) {
  for (const char* text : {"", "-", "NaN", "Inf", "-Infinity", "1x", "e5", ".", "1e", "--1"}) {
    EXPECT_FALSE(ParseDecimal(text)) << text;
  }
}

TEST(Decimals, NumbersOfAnySizeSaturate) {
  const auto largest = ParseDecimal("1000000000000000");
  EXPECT_EQ(
      ParseDecimal("57896044618658097711785492504343953926634992332820282019728792003956564819968"),
      largest);
  EXPECT_EQ(ParseDecimal("1e300"), largest);
  EXPECT_EQ(ParseDecimal("-1e300")->units, -largest->units);
  EXPECT_EQ(ParseDecimal("1e-300")->units, 0);
  EXPECT_EQ(ParseDecimal("1e99999999999"), largest);
  EXPECT_EQ(ParseDecimal("0e99999999999")->units, 0);
  EXPECT_EQ(ParseDecimal("1e-99999999999")->units, 0);
}

TEST(Rates, DecimalsNearAPulledRateMeanIt) {
  const Rate r23976{24000, 1001};
  const Rate r2997{30000, 1001};
  const Rate r5994{60000, 1001};
  EXPECT_EQ(ParseRate("23.976"), r23976);
  EXPECT_EQ(ParseRate("23.98"), r23976);
  EXPECT_EQ(ParseRate("23.976023976023978"), r23976);
  EXPECT_EQ(ParseRate("29.97"), r2997);
  EXPECT_EQ(ParseRate("29.97002997002997"), r2997);
  EXPECT_EQ(ParseRate("59.94"), r5994);
  EXPECT_EQ(ParseRate("119.88"), (Rate{120000, 1001}));
  EXPECT_EQ(ParseRate("14.985014985014985"), (Rate{15000, 1001}));
  EXPECT_EQ(ParseRate("47952.047952047952"), (Rate{48000000, 1001}));
}

TEST(Rates, WholeAndOtherRatesStayAsTheyAre) {
  EXPECT_EQ(ParseRate("24"), (Rate{24, 1}));
  EXPECT_EQ(ParseRate("30.0"), (Rate{30, 1}));
  EXPECT_EQ(ParseRate("12.5"), (Rate{25, 2}));
  EXPECT_EQ(ParseRate("44100"), (Rate{44100, 1}));
  EXPECT_EQ(ParseRate("30000/1001"), (Rate{30000, 1001}));
  EXPECT_EQ(ParseRate("50/2"), (Rate{25, 1}));
}

TEST(Rates, WhatIsNoRateIsNone) {
  for (const char* text :
       {"0", "-25", "NaN", "Inf", "", "25/0", "0/1", "1e300", "1e-12", "a/b", "1.5/2"}) {
    EXPECT_FALSE(ParseRate(text)) << text;
  }
}

TEST(Rates, PictureRatesEndAt240) {
  EXPECT_TRUE(ParseRate("240")->IsPictureRate());
  EXPECT_FALSE(ParseRate("240.5")->IsPictureRate());
  EXPECT_FALSE(ParseRate("8000")->IsPictureRate());
}

TEST(Ticks, CommonRatesAreExact) {
  EXPECT_EQ(Ticks("1", "24"), 10584000000);
  EXPECT_EQ(Ticks("1", "25"), 10160640000);
  EXPECT_EQ(Ticks("1", "29.97"), 8475667200);
  EXPECT_EQ(Ticks("1", "23.976"), 10594584000);
  EXPECT_EQ(Ticks("1", "48000"), 5292000);
  EXPECT_EQ(Ticks("107892", "29.97002997002997"), 914456685542400);
  EXPECT_EQ(Ticks("9000000", "25"), 91445760000000000);
}

TEST(Ticks, AreRoundedOnceToTheNearest) {
  // One sample at 47952 is 254016000000 / 47952 = 5297297.297… ticks.
  EXPECT_EQ(Ticks("1", "47952"), 5297297);
  EXPECT_EQ(Ticks("2", "47952"), 10594595);
  EXPECT_EQ(Ticks("-1", "47952"), -5297297);
  EXPECT_EQ(Ticks("0.000000000001", "1"), 0);
  EXPECT_EQ(Ticks("0.000000000002", "1"), 1);
}

TEST(Ticks, Saturate) {
  EXPECT_EQ(ToTicks(Time("1e15", "0.000001")), qelmediatypes::TickTime::Highest());
  EXPECT_EQ(ToTicks(Time("-1e15", "0.000001")), qelmediatypes::TickTime::Lowest());
}

TEST(TimeSums, ThousandsOfPulledSamplesDoNotDrift) {
  TimeSum sum;
  for (int i = 0; i < 47952; ++i) sum.Add(Time("1", "47952"));
  EXPECT_EQ(sum.ToTicks().GetTicks(), kTicksPerSecond);
}

TEST(TimeSums, MixRatesExactly) {
  TimeSum sum;
  sum.Add(Time("1", "24"));
  sum.Add(Time("30", "30"));
  sum.Add(Time("232.0", "23.976"));
  EXPECT_EQ(sum.ToTicks().GetTicks(), 10584000000 + 254016000000 + 232 * 10594584000);
  sum.Subtract(Time("1", "24"));
  sum.Subtract(Time("30", "30"));
  EXPECT_EQ(sum.ToTicks().GetTicks(), 232 * 10594584000);
}

TEST(TimeSums, FractionsOfDifferentRatesAreRoundedTogether) {
  // 5297297.297… + 1324324.324… = 6621621.621…: each alone would round down.
  TimeSum sum;
  sum.Add(Time("1", "47952"));
  sum.Add(Time("1", "191808"));
  EXPECT_EQ(sum.ToTicks().GetTicks(), 6621622);
}

TEST(TimeSums, AnyNumberOfRatesIsSummed) {
  TimeSum sum;
  for (int rate = 1; rate <= 1000; ++rate) sum.Add(Time(std::to_string(rate), std::to_string(rate)));
  EXPECT_EQ(sum.ToTicks().GetTicks(), 1000 * kTicksPerSecond);
}

TEST(TimeSums, SaturateInsteadOfWrapping) {
  TimeSum sum;
  for (int i = 0; i < 10000; ++i) sum.Add(Time("1e15", "0.001"));
  EXPECT_EQ(sum.ToTicks(), qelmediatypes::TickTime::Highest());
}

TEST(TimeSums, OneSumAddsToAnother) {
  TimeSum first;
  first.Add(Time("10", "25"));
  TimeSum second;
  second.Add(Time("48000", "48000"));
  second.Add(first);
  EXPECT_EQ(second.ToTicks().GetTicks(), kTicksPerSecond + 10 * 10160640000);
}

}  // namespace
}  // namespace standalone

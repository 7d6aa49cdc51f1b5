#include "standalone/timeline/TimeEntry.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "host/ZSL/Timecode.h"
#include "host/qelmediatypes/FrameRate.h"

namespace standalone {
namespace {

using qelmediatypes::FrameRate;
using qelmediatypes::TickTime;
using Count = qelmediatypes::TimeDisplay::Count;

constexpr TickTime kNow{1234};

TimeNotation MakeNotation(Count count, std::int64_t numerator, std::int64_t denominator) {
  TimeNotation notation;
  notation.display.count = count;
  notation.frameDuration = FrameRate::FromRational(numerator, denominator).GetFrameDuration();
  return notation;
}

TimeNotation AtPalRate() {
  return MakeNotation(Count::kNonDropFrame, 25, 1);
}

TickTime Frames(std::int64_t count, const TimeNotation& notation) {
  return TickTime(count * notation.frameDuration.GetTicks());
}

std::optional<std::int64_t> ReadFrames(std::string_view text, const TimeNotation& notation) {
  const auto time = ReadTimeEntry(text, notation, kNow);
  if (!time) return std::nullopt;
  return time->ToFrame64(notation.frameDuration);
}

TEST(TimeEntry, FieldsCountFromTheRight) {
  const TimeNotation pal = AtPalRate();
  EXPECT_EQ(ReadFrames("01:00:00:00", pal), 90000);
  EXPECT_EQ(ReadFrames("10:00", pal), 250);
  EXPECT_EQ(ReadFrames("1:2:3", pal), (62 * 25) + 3);
  EXPECT_EQ(ReadFrames("7", pal), 7);
}

TEST(TimeEntry, EverySeparatorSeparates) {
  for (const char* text : {"1:00:00:00", "1;00;00;00", "1.00.00.00", "1,00,00,00", "01:00:00;00"}) {
    EXPECT_EQ(ReadFrames(text, AtPalRate()), 90000) << text;
  }
}

TEST(TimeEntry, DigitsAloneAreFieldsOfTwoFromTheRight) {
  EXPECT_EQ(ReadFrames("1000", AtPalRate()), 250);
  EXPECT_EQ(ReadFrames("100", AtPalRate()), 25);
  EXPECT_EQ(ReadFrames("1000000", AtPalRate()), 90000);
  EXPECT_EQ(ReadFrames("123000000", AtPalRate()), 123 * 90000);
}

TEST(TimeEntry, ANumberMayBeLargerThanItsField) {
  EXPECT_EQ(ReadFrames("0:75", AtPalRate()), 75);
  EXPECT_EQ(ReadFrames("90:00:00", AtPalRate()), 90 * 60 * 25);
}

TEST(TimeEntry, BlanksAroundItDoNotMatter) {
  EXPECT_EQ(ReadFrames(" \t10:00 ", AtPalRate()), 250);
}

TEST(TimeEntry, WithASignItCountsFromTheCurrentTime) {
  const TimeNotation pal = AtPalRate();
  EXPECT_EQ(ReadTimeEntry("+10", pal, kNow), kNow + Frames(10, pal));
  EXPECT_EQ(ReadTimeEntry("- 1:00", pal, kNow), kNow - Frames(25, pal));
}

TEST(TimeEntry, AnAbsoluteTimeLosesTheZeroPoint) {
  TimeNotation pal = AtPalRate();
  pal.zeroPoint = Frames(90000, pal);
  EXPECT_EQ(ReadTimeEntry("01:00:10:00", pal, kNow), Frames(250, pal));
  EXPECT_EQ(ReadTimeEntry("00:00:00:00", pal, kNow), Frames(-90000, pal));
  EXPECT_EQ(ReadTimeEntry("+1", pal, kNow), kNow + Frames(1, pal));
}

TEST(TimeEntry, ATimecodeThatDropFrameLeavesOutMeansTheFrameAfterIt) {
  const TimeNotation drop = MakeNotation(Count::kDropFrame, 30000, 1001);
  EXPECT_EQ(ReadFrames("00:01:00;00", drop), 1800);
  EXPECT_EQ(ReadFrames("00:01:00;01", drop), 1800);
  EXPECT_EQ(ReadFrames("00:01:00;02", drop), 1800);
  EXPECT_EQ(ReadFrames("00:00:59;29", drop), 1799);
  EXPECT_EQ(ReadFrames("00:10:00;00", drop), 17982);
}

TEST(TimeEntry, FeetAndFramesHaveAPlusBetween) {
  EXPECT_EQ(ReadFrames("12+05", MakeNotation(Count::kFeetAndFrames35mm, 24, 1)), 12 * 16 + 5);
  EXPECT_EQ(ReadFrames("12+05", MakeNotation(Count::kFeetAndFrames16mm, 24, 1)), 12 * 40 + 5);
  EXPECT_EQ(ReadFrames("48", MakeNotation(Count::kFeetAndFrames35mm, 24, 1)), 48);
}

TEST(TimeEntry, WhatMakesNoSenseIsNone) {
  for (const char* text : {"", "  ", "+", "-", "abc", "1:2:3:4:5", "1::2", "1:", ":1", "12+05", "1e3",
                           "99999999999999999999", "0x10"}) {
    EXPECT_EQ(ReadTimeEntry(text, AtPalRate(), kNow), std::nullopt) << text;
  }
}

TEST(TimeEntry, WithoutAKnownFrameDurationNothingCanBeCounted) {
  EXPECT_EQ(ReadTimeEntry("10", TimeNotation(), kNow), std::nullopt);
}

TEST(TimeEntry, ThousandthsTakeThreeDigits) {
  const TimeNotation notation = MakeNotation(Count::kMilliseconds, 48000, 1);
  const TickTime second(TickTime::kTicksPerSecond);
  EXPECT_EQ(ReadTimeEntry("1000", notation, kNow), second);
  EXPECT_EQ(ReadTimeEntry("0:01.500", notation, kNow), TickTime(second.GetTicks() * 3 / 2));
}

TEST(TimeEntry, HugeNumbersStayWithin64Bits) {
  EXPECT_EQ(ReadTimeEntry("999999999999", MakeNotation(Count::kFrames, 24, 1), kNow),
            TickTime::Highest());
  EXPECT_EQ(ReadTimeEntry("-999999999999", MakeNotation(Count::kFrames, 24, 1), TickTime(-5)),
            TickTime::Lowest());
}

/// Reading what the host writes gives the time back.
TEST(TimeEntry, EveryWrittenTimeReadsAsItself) {
  std::mt19937 random(20261121);
  std::uniform_int_distribution<std::int64_t> anyFrame(0, 30 * 3600 * 60);
  const TimeNotation notations[] = {
      AtPalRate(),
      MakeNotation(Count::kNonDropFrame, 24000, 1001),
      MakeNotation(Count::kNonDropFrame, 120, 1),
      MakeNotation(Count::kDropFrame, 30000, 1001),
      MakeNotation(Count::kDropFrame, 60000, 1001),
      MakeNotation(Count::kDropFrame, 120000, 1001),
      MakeNotation(Count::kFeetAndFrames16mm, 24, 1),
      MakeNotation(Count::kFeetAndFrames35mm, 24, 1),
      MakeNotation(Count::kFrames, 25, 1),
      MakeNotation(Count::kAudioSamples, 48000, 1),
  };
  for (const TimeNotation& notation : notations) {
    for (int i = 0; i < 2000; ++i) {
      const TickTime time = Frames(anyFrame(random), notation);
      const ZSL::Timecode timecode(time, notation.frameDuration, notation.display);
      const std::string text(timecode.GetStringUTF8().View());
      ASSERT_EQ(ReadTimeEntry(text, notation, kNow), time) << text;
    }
  }
}

TEST(TimeEntry, AHugeEntryIsCutAtTheLimitInEveryDisplayNotWrapped) {
  for (const Count count : {Count::kNonDropFrame, Count::kMilliseconds, Count::kAudioSamples}) {
    const TimeNotation notation =
        count == Count::kAudioSamples ? MakeNotation(count, 192000, 1) : MakeNotation(count, 25, 1);
    const auto time = ReadTimeEntry("999999999999:00:00:00", notation, kNow);
    ASSERT_TRUE(time);
    EXPECT_GT(*time, qelmediatypes::kOneHundredHours) << static_cast<int>(count);
  }
}

}  // namespace
}  // namespace standalone

#include "standalone/timeline/RulerMarks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "host/ZSL/Timecode.h"
#include "host/qelmediatypes/FrameRate.h"

namespace standalone {
namespace {

using qelmediatypes::FrameRate;
using qelmediatypes::TickTime;
using Count = qelmediatypes::TimeDisplay::Count;

constexpr double kLabelWidth = 90;

TimeNotation AtPalRate() {
  TimeNotation notation;
  notation.frameDuration = FrameRate::FromRational(25, 1).GetFrameDuration();
  return notation;
}

TimeNotation InDropFrame() {
  TimeNotation notation;
  notation.display.count = Count::kDropFrame;
  notation.frameDuration = FrameRate::FromRational(30000, 1001).GetFrameDuration();
  return notation;
}

TimeScale MakeScale(std::int64_t seconds) {
  TimeScale scale;
  scale.SetWidth(1000);
  scale.Fit(TickTime(seconds * TickTime::kTicksPerSecond));
  return scale;
}

std::string GetText(const RulerMark& mark, const TimeNotation& notation) {
  const ZSL::Timecode timecode(notation.zeroPoint + mark.time, notation.frameDuration,
                               notation.display);
  return std::string(timecode.GetStringUTF8().View());
}

TEST(RulerMarks, LabelsAreRoundTimesThatDoNotTouch) {
  const TimeScale scale = MakeScale(60);
  const auto marks = FindRulerMarks(scale, AtPalRate(), kLabelWidth);
  double last = -kLabelWidth;
  int labels = 0;
  for (const RulerMark& mark : marks) {
    if (!mark.hasLabel) continue;
    EXPECT_GE(scale.ToX(mark.time) - last, kLabelWidth - 1e-6);
    EXPECT_EQ(mark.time.GetTicks() % (10 * TickTime::kTicksPerSecond), 0);
    last = scale.ToX(mark.time);
    ++labels;
  }
  EXPECT_EQ(labels, 7);
}

TEST(RulerMarks, TheyAreRoundInTheSequencesOwnCounting) {
  TimeNotation notation = AtPalRate();
  notation.zeroPoint = TickTime(3 * notation.frameDuration.GetTicks());
  const auto marks = FindRulerMarks(MakeScale(60), notation, kLabelWidth);
  for (const RulerMark& mark : marks) {
    EXPECT_GE(mark.time, TickTime());
    if (!mark.hasLabel) continue;
    EXPECT_EQ(GetText(mark, notation).substr(7), "0:00") << GetText(mark, notation);
  }
}

TEST(RulerMarks, DropFrameLabelsAreRoundTimecodes) {
  const TimeNotation notation = InDropFrame();
  const TimeScale scale = MakeScale(7200);
  double last = -kLabelWidth;
  int labels = 0;
  for (const RulerMark& mark : FindRulerMarks(scale, notation, kLabelWidth)) {
    if (!mark.hasLabel) continue;
    const std::string text = GetText(mark, notation);
    const bool isWholeMinute = text.ends_with(":00;00") || text.ends_with(":00;02");
    EXPECT_TRUE(isWholeMinute) << text;
    EXPECT_EQ(text.ends_with(";00"), text[4] == '0') << text;
    EXPECT_GE(scale.ToX(mark.time) - last, kLabelWidth);
    last = scale.ToX(mark.time);
    ++labels;
  }
  EXPECT_EQ(labels, 9);
}

TEST(RulerMarks, NumbersThatDropFrameLeavesOutMakeNoFurtherMarks) {
  const TimeNotation notation = InDropFrame();
  const std::int64_t duration = notation.frameDuration.GetTicks();
  TimeScale scale = MakeScale(60);
  scale.SetFrameDuration(notation.frameDuration);
  for (int i = 0; i < 60; ++i) scale.ZoomBy(0.5, 0);
  scale.ScrollTo(TickTime(1795 * duration));
  const auto marks = FindRulerMarks(scale, notation, 1);
  ASSERT_GT(marks.size(), 10U);
  for (std::size_t i = 1; i < marks.size(); ++i) {
    EXPECT_EQ(marks[i].time.GetTicks() - marks[i - 1].time.GetTicks(), duration);
  }
}

TEST(RulerMarks, LabelsOfDropFrameDoNotTouchWhereNumbersAreLeftOut) {
  const TimeNotation notation = InDropFrame();
  TimeScale scale = MakeScale(60);
  scale.SetFrameDuration(notation.frameDuration);
  for (int i = 0; i < 40; ++i) {
    scale.ScrollTo(TickTime(60 * TickTime::kTicksPerSecond));
    scale.ZoomBy(0.8, 0);
    scale.ScrollTo(scale.ToTime(-500));
    double last = -2 * kLabelWidth;
    for (const RulerMark& mark : FindRulerMarks(scale, notation, kLabelWidth)) {
      if (!mark.hasLabel) continue;
      EXPECT_GE(scale.ToX(mark.time) - last, kLabelWidth - 1e-6);
      last = scale.ToX(mark.time);
    }
  }
}

TEST(RulerMarks, WhereSamplesAreCountedThereAreLabelsHoweverNearOneLooks) {
  TimeNotation notation;
  notation.display.count = Count::kAudioSamples;
  notation.frameDuration = FrameRate::FromRational(48000, 1).GetFrameDuration();
  TimeScale scale = MakeScale(60);
  scale.SetFrameDuration(AtPalRate().frameDuration);
  for (int i = 0; i < 60; ++i) {
    scale.ZoomBy(0.8, 0);
    const auto marks = FindRulerMarks(scale, notation, kLabelWidth);
    EXPECT_GE(std::ranges::count_if(marks, &RulerMark::hasLabel), 3);
  }
}

TEST(RulerMarks, AFrameIsTheFinestMark) {
  TimeScale scale = MakeScale(60);
  scale.SetFrameDuration(AtPalRate().frameDuration);
  for (int i = 0; i < 60; ++i) scale.ZoomBy(0.5, 0);
  const auto marks = FindRulerMarks(scale, AtPalRate(), kLabelWidth);
  ASSERT_GT(marks.size(), 2U);
  for (const RulerMark& mark : marks) {
    EXPECT_EQ(mark.time.GetTicks() % AtPalRate().frameDuration.GetTicks(), 0);
  }
}

TEST(RulerMarks, NoMoreMarksThanFitTheViewAtAnyScale) {
  TimeScale scale = MakeScale(1);
  for (int i = 0; i < 40; ++i) {
    const auto marks = FindRulerMarks(scale, AtPalRate(), kLabelWidth);
    EXPECT_LE(marks.size(), 130U);
    EXPECT_TRUE(std::ranges::is_sorted(marks, {}, &RulerMark::time));
    scale.ZoomBy(1.5, 300);
  }
}

TEST(RulerMarks, WithoutAKnownFrameDurationThereAreNone) {
  EXPECT_TRUE(FindRulerMarks(MakeScale(60), TimeNotation(), kLabelWidth).empty());
}

}  // namespace
}  // namespace standalone

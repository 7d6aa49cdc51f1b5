#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "host/ZSL/Timecode.h"
#include "host/qelmediatypes/FrameRate.h"

/// Times in frames, in feet and frames, in audio samples and in milliseconds.
namespace {

using qelmediatypes::FrameRate;
using qelmediatypes::TickTime;
using Count = qelmediatypes::TimeDisplay::Count;

constexpr std::int64_t kSecond = TickTime::kTicksPerSecond;
constexpr std::int64_t kMillisecond = 254016000;
constexpr TickTime k24{kSecond / 24};
constexpr TickTime k25{kSecond / 25};
constexpr TickTime k48000{kSecond / 48000};
constexpr std::int64_t kDay = std::int64_t{24} * 60 * 60;

std::string Text(TickTime time, TickTime frameDuration, Count count) {
  return std::string(ZSL::Timecode(time, frameDuration, {count}).GetStringUTF8().View());
}

std::string TextOfFrame(std::int64_t frame, TickTime frameDuration, Count count) {
  return Text(TickTime(frame * frameDuration.GetTicks()), frameDuration, count);
}

struct Expected {
  std::int64_t frame;
  const char* text;
};

void ExpectTexts(const std::vector<Expected>& table, TickTime frameDuration, Count count) {
  for (const Expected& line : table) {
    EXPECT_EQ(TextOfFrame(line.frame, frameDuration, count), line.text) << line.frame;
  }
}

TEST(Frames, AreTheirNumber) {
  const std::vector<Expected> table{{0, "0"},     {1, "1"},         {24, "24"},
                                    {99, "99"},   {100, "100"},     {-1, "-1"},
                                    {-12, "-12"}, {90000, "90000"}, {-1799, "-1799"}};
  ExpectTexts(table, k25, Count::kFrames);
  ExpectTexts(table, FrameRate::FromRational(30000, 1001).GetFrameDuration(), Count::kFrames);
}

TEST(FeetAndFrames, CountFortyFramesToTheFootOf16mm) {
  ExpectTexts({{0, "0+00"},
               {1, "0+01"},
               {39, "0+39"},
               {40, "1+00"},
               {485, "12+05"},
               {519, "12+39"},
               {3999, "99+39"},
               {4000, "100+00"},
               {86400, "2160+00"},
               {-1, "-0+01"},
               {-485, "-12+05"}},
              k24, Count::kFeetAndFrames16mm);
}

TEST(FeetAndFrames, CountSixteenFramesToTheFootOf35mm) {
  ExpectTexts({{0, "0+00"},
               {15, "0+15"},
               {16, "1+00"},
               {197, "12+05"},
               {1439, "89+15"},
               {1440, "90+00"},
               {16000, "1000+00"},
               {86400, "5400+00"},
               {-16, "-1+00"},
               {-197, "-12+05"}},
              k24, Count::kFeetAndFrames35mm);
}

TEST(AudioSamples, AreWrittenBehindTheSeconds) {
  ExpectTexts({{0, "00:00:00:00000"},
               {1, "00:00:00:00001"},
               {47999, "00:00:00:47999"},
               {48000, "00:00:01:00000"},
               {72000, "00:00:01:24000"},
               {std::int64_t{48000} * 60, "00:01:00:00000"},
               {std::int64_t{48000} * 3600, "01:00:00:00000"},
               {-1, "-00:00:00:00001"},
               {-72000, "-00:00:01:24000"}},
              k48000, Count::kAudioSamples);
}

TEST(AudioSamples, HaveAsManyDigitsAsTheHighestOfASecondNeeds) {
  const auto lastOfASecond = [](std::int64_t rate) {
    const TickTime duration = FrameRate::FromRational(rate, 1).GetFrameDuration();
    return TextOfFrame(rate - 1, duration, Count::kAudioSamples) + " " +
           TextOfFrame(rate + 7, duration, Count::kAudioSamples);
  };
  EXPECT_EQ(lastOfASecond(8000), "00:00:00:7999 00:00:01:0007");
  EXPECT_EQ(lastOfASecond(32000), "00:00:00:31999 00:00:01:00007");
  EXPECT_EQ(lastOfASecond(44100), "00:00:00:44099 00:00:01:00007");
  EXPECT_EQ(lastOfASecond(88200), "00:00:00:88199 00:00:01:00007");
  EXPECT_EQ(lastOfASecond(96000), "00:00:00:95999 00:00:01:00007");
  EXPECT_EQ(lastOfASecond(192000), "00:00:00:191999 00:00:01:000007");
}

TEST(Milliseconds, AreWorkedOutFromTheTimeItself) {
  const auto text = [](std::int64_t ticks) {
    return Text(TickTime(ticks), k48000, Count::kMilliseconds);
  };
  EXPECT_EQ(text(0), "00:00:00.000");
  EXPECT_EQ(text(kSecond * 3 / 2), "00:00:01.500");
  EXPECT_EQ(text(kSecond - 1), "00:00:00.999");
  EXPECT_EQ(text(kSecond), "00:00:01.000");
  EXPECT_EQ(text(kSecond * 3600 - 1), "00:59:59.999");
  EXPECT_EQ(text(-kSecond * 3 / 2), "-00:00:01.500");
  // A third of a second: 333.33… milliseconds.
  EXPECT_EQ(text(kSecond / 3), "00:00:00.333");
  // A millisecond is 44.1 samples; counted in whole samples first, it would be cut to none.
  EXPECT_EQ(Text(TickTime(kMillisecond), FrameRate::FromRational(44100, 1).GetFrameDuration(),
                 Count::kMilliseconds),
            "00:00:00.001");
}

TEST(Milliseconds, DoNotDependOnTheFrameDuration) {
  for (const TickTime duration :
       {k25, qelmediatypes::kUnknownFrameDuration, TickTime(0), TickTime(-1)}) {
    EXPECT_EQ(Text(TickTime(1234 * kMillisecond), duration, Count::kMilliseconds), "00:00:01.234");
  }
}

TEST(TimeDisplays, CutTheTimeTowardZeroAndAZeroHasNoSign) {
  struct Line {
    Count count;
    TickTime unit;
    const char* two;
    const char* zero;
  };
  const Line lines[] = {
      {Count::kFrames, k25, "2", "0"},
      {Count::kFeetAndFrames16mm, k24, "0+02", "0+00"},
      {Count::kFeetAndFrames35mm, k24, "0+02", "0+00"},
      {Count::kAudioSamples, k48000, "00:00:00:00002", "00:00:00:00000"},
      {Count::kMilliseconds, TickTime(kMillisecond), "00:00:00.002", "00:00:00.000"},
  };
  for (const Line& line : lines) {
    const std::int64_t unit = line.unit.GetTicks();
    EXPECT_EQ(Text(TickTime(3 * unit - 1), line.unit, line.count), line.two);
    EXPECT_EQ(Text(TickTime(2 * unit), line.unit, line.count), line.two);
    EXPECT_EQ(Text(TickTime(-3 * unit + 1), line.unit, line.count), std::string("-") + line.two);
    EXPECT_EQ(Text(TickTime(-2 * unit), line.unit, line.count), std::string("-") + line.two);
    EXPECT_EQ(Text(TickTime(unit - 1), line.unit, line.count), line.zero);
    EXPECT_EQ(Text(TickTime(-1), line.unit, line.count), line.zero);
    EXPECT_EQ(Text(TickTime(-unit + 1), line.unit, line.count), line.zero);
  }
}

TEST(TimeDisplays, GoOnBeyondADayAndBeyondOneHundredHours) {
  const TickTime day25(25 * 3600 * kSecond);
  EXPECT_EQ(Text(day25, k48000, Count::kAudioSamples), "25:00:00:00000");
  EXPECT_EQ(Text(day25, k25, Count::kMilliseconds), "25:00:00.000");
  EXPECT_EQ(Text(day25, k24, Count::kFrames), "2160000");
  EXPECT_EQ(Text(day25, k24, Count::kFeetAndFrames16mm), "54000+00");
  EXPECT_EQ(Text(day25, k24, Count::kFeetAndFrames35mm), "135000+00");
  const TickTime hundred = qelmediatypes::kOneHundredHours;
  EXPECT_EQ(Text(hundred, k48000, Count::kAudioSamples), "100:00:00:00000");
  EXPECT_EQ(Text(hundred, k25, Count::kMilliseconds), "100:00:00.000");
  EXPECT_EQ(Text(hundred - TickTime(1), k25, Count::kMilliseconds), "99:59:59.999");
  EXPECT_EQ(Text(hundred, k24, Count::kFrames), "8640000");
  EXPECT_EQ(Text(hundred, k24, Count::kFeetAndFrames16mm), "216000+00");
}

TEST(TimeDisplays, TheLowestAndHighestTimesAreWritten) {
  // 9223372036854775808 ticks are 36310201 seconds and 19638775808 ticks more.
  struct Line {
    Count count;
    TickTime unit;
    const char* highest;
  };
  const Line lines[] = {
      {Count::kFrames, k25, "907755026"},
      {Count::kFeetAndFrames16mm, k25, "22693875+26"},
      {Count::kFeetAndFrames35mm, k25, "56734689+02"},
      {Count::kAudioSamples, k48000, "10086:10:01:03711"},
      {Count::kMilliseconds, k48000, "10086:10:01.077"},
  };
  for (const Line& line : lines) {
    EXPECT_EQ(Text(TickTime::Highest(), line.unit, line.count), line.highest);
    EXPECT_EQ(Text(TickTime::Lowest(), line.unit, line.count), std::string("-") + line.highest);
  }
  const TickTime tick(1);
  EXPECT_EQ(Text(TickTime::Lowest(), tick, Count::kFrames), "-9223372036854775808");
  EXPECT_EQ(Text(TickTime::Highest(), tick, Count::kFrames), "9223372036854775807");
  EXPECT_EQ(Text(TickTime::Lowest(), tick, Count::kFeetAndFrames16mm), "-230584300921369395+08");
  EXPECT_EQ(Text(TickTime::Lowest(), tick, Count::kAudioSamples), "-10086:10:01:019638775808");
}

TEST(TimeDisplays, AnUnknownFrameDurationCountsEveryTimeAsFrameZero) {
  for (const TickTime unknown : {qelmediatypes::kUnknownFrameDuration, TickTime(0), TickTime(-5)}) {
    for (const TickTime time : {TickTime(kSecond), TickTime::Lowest(), TickTime::Highest()}) {
      EXPECT_EQ(Text(time, unknown, Count::kFrames), "0");
      EXPECT_EQ(Text(time, unknown, Count::kFeetAndFrames16mm), "0+00");
      EXPECT_EQ(Text(time, unknown, Count::kFeetAndFrames35mm), "0+00");
      EXPECT_EQ(Text(time, unknown, Count::kAudioSamples), "00:00:00:00");
    }
  }
}

/// A footage counter: its digits turn frame by frame.
class FootageCounter {
 public:
  explicit FootageCounter(char tensOfLast, char onesOfLast) : last{tensOfLast, onesOfLast} {}

  const std::string& Label() const { return label; }

  void Step() {
    const std::size_t ones = label.size() - 1;
    if (label[ones - 1] == last[0] && label[ones] == last[1]) {
      label[ones - 1] = label[ones] = '0';
      Turn(ones - 3);
    } else if (label[ones]++ == '9') {
      label[ones] = '0';
      ++label[ones - 1];
    }
  }

 private:
  /// Counts the feet on, whose last digit stands at `position`.
  void Turn(std::size_t position) {
    while (label[position] == '9') {
      label[position] = '0';
      if (position == 0) {
        label.insert(0, 1, '1');
        return;
      }
      --position;
    }
    ++label[position];
  }

  const char last[2];
  std::string label = "0+00";
};

struct Rate {
  const char* name;
  std::int64_t numerator;
  std::int64_t denominator;

  TickTime FrameDuration() const {
    return FrameRate::FromRational(numerator, denominator).GetFrameDuration();
  }
  std::int64_t FramesOfADay() const { return kDay * ((numerator + denominator - 1) / denominator); }
};

void PrintTo(const Rate& rate, std::ostream* out) {
  *out << rate.name;
}

class FramesOfADay : public testing::TestWithParam<Rate> {};

TEST_P(FramesOfADay, AreNumberedAndMeasuredAsACounterDoes) {
  const TickTime duration = GetParam().FrameDuration();
  // Fast film is looked at in steps that still meet every number of a foot.
  const std::int64_t step = GetParam().numerator / GetParam().denominator > 30 ? 7 : 1;
  FootageCounter narrow('3', '9');
  FootageCounter wide('1', '5');
  for (std::int64_t frame = 0; frame < GetParam().FramesOfADay(); ++frame) {
    if (frame % step == 0) {
      ASSERT_EQ(TextOfFrame(frame, duration, Count::kFeetAndFrames16mm), narrow.Label()) << frame;
      ASSERT_EQ(TextOfFrame(frame, duration, Count::kFeetAndFrames35mm), wide.Label()) << frame;
      ASSERT_EQ(TextOfFrame(frame, duration, Count::kFrames), std::to_string(frame));
    }
    narrow.Step();
    wide.Step();
  }
}

constexpr Rate kPictureRates[] = {
    {"23976", 24000, 1001}, {"24", 24, 1}, {"25", 25, 1},           {"2997", 30000, 1001},
    {"30", 30, 1},          {"48", 48, 1}, {"50", 50, 1},           {"5994", 60000, 1001},
    {"60", 60, 1},          {"96", 96, 1}, {"11988", 120000, 1001}, {"120", 120, 1},
};
INSTANTIATE_TEST_SUITE_P(AllRates, FramesOfADay, testing::ValuesIn(kPictureRates),
                         [](const auto& rate) { return std::string(rate.param.name); });

std::string PadTo(std::size_t digits, std::int64_t number) {
  const std::string text = std::to_string(number);
  return std::string(digits - text.size(), '0') + text;
}

/// Looks at chosen units of every second of a day: the first and last ones, and one that moves on.
void ExpectClockOfADay(TickTime unit, std::int64_t unitsPerSecond, Count count, char separator,
                       std::size_t digits) {
  std::int64_t second = 0;
  for (std::int64_t hour = 0; hour < 24; ++hour) {
    for (std::int64_t minute = 0; minute < 60; ++minute) {
      const std::string upToMinute = PadTo(2, hour) + ":" + PadTo(2, minute) + ":";
      for (std::int64_t part = 0; part < 60; ++part, ++second) {
        const std::string upToSecond = upToMinute + PadTo(2, part) + separator;
        for (const std::int64_t units :
             {std::int64_t{0}, second % unitsPerSecond, unitsPerSecond - 1}) {
          const std::int64_t position = second * unitsPerSecond + units;
          ASSERT_EQ(TextOfFrame(position, unit, count), upToSecond + PadTo(digits, units));
        }
      }
    }
  }
}

class SamplesOfADay : public testing::TestWithParam<std::int64_t> {};

TEST_P(SamplesOfADay, AreWrittenAsAClockShowsThem) {
  const std::int64_t rate = GetParam();
  const std::size_t digits = rate > 100000 ? 6 : 5;
  ExpectClockOfADay(TickTime(kSecond / rate), rate, Count::kAudioSamples, ':', digits);
}

TEST_P(SamplesOfADay, OfOneSecondAreAllDifferentAndInOrder) {
  const std::int64_t rate = GetParam();
  const TickTime sample(kSecond / rate);
  std::string before;
  for (std::int64_t i = 0; i < rate; ++i) {
    const std::string text = TextOfFrame(59 * rate + i, sample, Count::kAudioSamples);
    ASSERT_LT(before, text);
    before = text;
  }
  EXPECT_EQ(before, "00:00:59:" + std::to_string(rate - 1));
}

INSTANTIATE_TEST_SUITE_P(AllRates, SamplesOfADay, testing::Values(44100, 48000, 88200, 96000, 192000));

TEST(MillisecondsOfADay, AreWrittenAsAClockShowsThem) {
  ExpectClockOfADay(TickTime(kMillisecond), 1000, Count::kMilliseconds, '.', 3);
}

}  // namespace

#include "host/ZSL/Timecode.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

#include "host/qelmediatypes/FrameRate.h"

namespace {

using qelmediatypes::FrameRate;
using qelmediatypes::TickTime;
using qelmediatypes::TimeDisplay;

constexpr TimeDisplay kNonDrop{TimeDisplay::Count::kNonDropFrame};
constexpr TimeDisplay kDrop{TimeDisplay::Count::kDropFrame};

struct Rate {
  const char* name;
  std::int64_t numerator;
  std::int64_t denominator;
  bool isDropFrame;
  /// Counted by hand for the naive counter below.
  std::uint32_t nominal;
  std::uint32_t droppedEachMinute;

  TickTime FrameDuration() const {
    return FrameRate::FromRational(numerator, denominator).GetFrameDuration();
  }
  TimeDisplay Display() const { return isDropFrame ? kDrop : kNonDrop; }
};

void PrintTo(const Rate& rate, std::ostream* out) {
  *out << rate.name;
}

constexpr Rate kRates[] = {
    {"24", 24, 1, false, 24, 0},
    {"25", 25, 1, false, 25, 0},
    {"30", 30, 1, false, 30, 0},
    {"48", 48, 1, false, 48, 0},
    {"50", 50, 1, false, 50, 0},
    {"60", 60, 1, false, 60, 0},
    {"72", 72, 1, false, 72, 0},
    {"96", 96, 1, false, 96, 0},
    {"100", 100, 1, false, 100, 0},
    {"120", 120, 1, false, 120, 0},
    {"23976", 24000, 1001, false, 24, 0},
    {"2997", 30000, 1001, false, 30, 0},
    {"2997Drop", 30000, 1001, true, 30, 2},
    {"47952", 48000, 1001, false, 48, 0},
    {"5994", 60000, 1001, false, 60, 0},
    {"5994Drop", 60000, 1001, true, 60, 4},
    {"71928", 72000, 1001, false, 72, 0},
    {"95904", 96000, 1001, false, 96, 0},
    {"11988", 120000, 1001, false, 120, 0},
    {"11988Drop", 120000, 1001, true, 120, 8},
};

/// A label that is stepped from frame to frame, digit by digit, as the counter of a tape machine is.
class Odometer {
 public:
  explicit Odometer(const Rate& rate)
      : rate(rate), frameDigits(rate.nominal > 100 ? 3 : 2), label("00:00:00:") {
    if (rate.droppedEachMinute != 0) label.back() = ';';
    label.append(frameDigits, '0');
  }

  const std::string& Label() const { return label; }

  void Step() {
    if (Count(kFrames, frameDigits, rate.nominal)) return;
    if (Count(kSeconds, 2, 60)) return;
    if (!Count(kMinutes, 2, 60)) Count(kHours, 2, 100);
    if (label[kMinutes + 1] != '0') label.back() = static_cast<char>('0' + rate.droppedEachMinute);
  }

 private:
  static constexpr std::size_t kHours = 0;
  static constexpr std::size_t kMinutes = 3;
  static constexpr std::size_t kSeconds = 6;
  static constexpr std::size_t kFrames = 9;

  /// Counts a field on by one; false when it came to its limit and begins again at zero.
  bool Count(std::size_t field, std::size_t digits, std::uint32_t limit) {
    std::uint32_t number = 0;
    for (std::size_t i = field; i < field + digits; ++i) {
      number = number * 10 + static_cast<std::uint32_t>(label[i] - '0');
    }
    const std::uint32_t next = number + 1 == limit ? 0 : number + 1;
    std::uint32_t rest = next;
    for (std::size_t i = field + digits; i-- > field; rest /= 10) {
      label[i] = static_cast<char>('0' + rest % 10);
    }
    return next != 0;
  }

  const Rate& rate;
  const std::size_t frameDigits;
  std::string label;
};

std::string TextOf(std::int64_t frame, const Rate& rate) {
  const TickTime time(frame * rate.FrameDuration().GetTicks());
  return std::string(ZSL::Timecode(time, rate.FrameDuration(), rate.Display()).GetStringUTF8().View());
}

class TimecodeOfADay : public testing::TestWithParam<Rate> {};

TEST_P(TimecodeOfADay, NamesEveryFrameAsACounterDoes) {
  const Rate& rate = GetParam();
  const TickTime frameDuration = rate.FrameDuration();
  const std::int64_t framesPerDay = std::int64_t{86400} * rate.nominal;
  Odometer odometer(rate);
  for (std::int64_t frame = 0; frame < framesPerDay; ++frame) {
    const TickTime time(frame * frameDuration.GetTicks());
    const auto text = ZSL::Timecode(time, frameDuration, rate.Display()).GetStringUTF8();
    if (text.View() != odometer.Label()) FAIL() << frame << ": " << text.View();
    odometer.Step();
  }
}

INSTANTIATE_TEST_SUITE_P(AllRates, TimecodeOfADay, testing::ValuesIn(kRates),
                         [](const auto& rate) { return std::string(rate.param.name); });

class Timecode : public testing::Test {
 protected:
  static constexpr const Rate& k25 = kRates[1];
  static constexpr const Rate& k100 = kRates[8];
  static constexpr const Rate& k120 = kRates[9];
  static constexpr const Rate& k2997Drop = kRates[12];

  static std::string Text(TickTime time, TickTime frameDuration, TimeDisplay display = kNonDrop) {
    return std::string(ZSL::Timecode(time, frameDuration, display).GetStringUTF8().View());
  }
};

TEST_F(Timecode, DropFrameSkipsTheFirstNumbersOfAMinuteButNotOfATenth) {
  EXPECT_EQ(TextOf(1799, k2997Drop), "00:00:59;29");
  EXPECT_EQ(TextOf(1800, k2997Drop), "00:01:00;02");
  EXPECT_EQ(TextOf(17981, k2997Drop), "00:09:59;29");
  EXPECT_EQ(TextOf(17982, k2997Drop), "00:10:00;00");
  EXPECT_EQ(TextOf(107892, k2997Drop), "01:00:00;00");
}

TEST_F(Timecode, CutsTheTimeToTheFrameTowardZero) {
  const auto frame = k25.FrameDuration().GetTicks();
  EXPECT_EQ(Text(TickTime(6 * frame - 1), TickTime(frame)), "00:00:00:05");
  EXPECT_EQ(Text(TickTime(-6 * frame + 1), TickTime(frame)), "-00:00:00:05");
}

TEST_F(Timecode, ANegativeTimeHasOneSignBeforeTheDigits) {
  EXPECT_EQ(TextOf(-1, k25), "-00:00:00:01");
  EXPECT_EQ(TextOf(-90000, k25), "-01:00:00:00");
  EXPECT_EQ(TextOf(-1800, k2997Drop), "-00:01:00;02");
}

TEST_F(Timecode, ATimeThatIsCutToFrameZeroHasNoSign) {
  EXPECT_EQ(Text(TickTime(-1), k25.FrameDuration()), "00:00:00:00");
}

TEST_F(Timecode, HoursGoOnBeyondADayAndBeyondTwoDigits) {
  EXPECT_EQ(TextOf(std::int64_t{25} * 90000, k25), "25:00:00:00");
  EXPECT_EQ(TextOf(std::int64_t{100} * 90000, k25), "100:00:00:00");
}

TEST_F(Timecode, FramesHaveAsManyDigitsAsTheHighestNumberNeeds) {
  EXPECT_EQ(TextOf(99, k100), "00:00:00:99");
  EXPECT_EQ(TextOf(119, k120), "00:00:00:119");
  EXPECT_EQ(TextOf(1, k120), "00:00:00:001");
  const TickTime sample(TickTime::kTicksPerSecond / 48000);
  EXPECT_EQ(Text(TickTime(TickTime::kTicksPerSecond + 7 * sample.GetTicks()), sample),
            "00:00:01:00007");
}

TEST_F(Timecode, DropFrameIsIgnoredAtRatesItIsNotDefinedFor) {
  for (const Rate& rate : kRates) {
    if (rate.droppedEachMinute != 0) continue;
    const bool hasDropFrame = rate.denominator == 1001 && rate.nominal % 30 == 0;
    const std::int64_t minute = std::int64_t{60} * rate.nominal;
    const TickTime time(minute * rate.FrameDuration().GetTicks());
    const std::string text = Text(time, rate.FrameDuration(), kDrop);
    EXPECT_EQ(text == "00:01:00:00" || text == "00:01:00:000", !hasDropFrame) << rate.name << text;
  }
}

TEST_F(Timecode, DropFrameIsIgnoredNearTheRatesItIsDefinedFor) {
  const TickTime near(k2997Drop.FrameDuration().GetTicks() + 1);
  EXPECT_EQ(Text(TickTime(1800 * near.GetTicks()), near, kDrop), "00:01:00:00");
}

TEST_F(Timecode, AnUnknownFrameDurationCountsEveryTimeAsFrameZero) {
  for (const TickTime unknown : {qelmediatypes::kUnknownFrameDuration, TickTime(0), TickTime(-5)}) {
    EXPECT_EQ(Text(TickTime(TickTime::kTicksPerSecond), unknown), "00:00:00:00");
    EXPECT_EQ(Text(TickTime::Lowest(), unknown, kDrop), "00:00:00:00");
  }
}

TEST_F(Timecode, TheLowestAndHighestTimesAreWritten) {
  // 9223372036854775808 ticks are 36310201 seconds and 19638775808 more.
  EXPECT_EQ(Text(TickTime::Lowest(), k25.FrameDuration()), "-10086:10:01:01");
  EXPECT_EQ(Text(TickTime::Highest(), k25.FrameDuration()), "10086:10:01:01");
  EXPECT_EQ(Text(TickTime::Lowest(), TickTime(1)), "-10086:10:01:019638775808");
}

TEST_F(Timecode, FramesLongerThanASecondCountOneASecond) {
  const TickTime slow(3 * TickTime::kTicksPerSecond);
  EXPECT_EQ(Text(TickTime(61 * slow.GetTicks()), slow), "00:01:01:00");
}

}  // namespace

#include "data/TimeText.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "host/MZ/Sequences.h"
#include "host/ZSL/Timecode.h"
#include "support/CollectedRows.h"
#include "support/Drafts.h"
#include "support/HostCalls.h"

namespace {

/// What the host's edits snap to, in place of the host's own answer.
std::optional<std::uint32_t> frameAlignment;

}  // namespace

namespace MZ {

std::uint32_t SequenceActions::GetFrameAlignment(const qelcore::Ref<BE::ISequence>& sequence) {
  if (frameAlignment) return *frameAlignment;
  using Function = std::uint32_t (*)(const qelcore::Ref<BE::ISequence>&);
  static const auto real = hostcalls::Real<Function>(
      "_ZN2MZ15SequenceActions17GetFrameAlignmentERKN7qelcore3RefIN2BE9ISequenceEEE");
  return real(sequence);
}

}  // namespace MZ

namespace Vantrel {
namespace {

using qelmediatypes::FrameRate;
using qelmediatypes::TickTime;
using standalone::TimeFormat;

class TimeTexts : public testing::Test {
 protected:
  ~TimeTexts() override { frameAlignment.reset(); }

  std::string Text(standalone::SequenceDraft draft, TickTime time) {
    return std::string(TimeText(host.Add(std::move(draft)), time).View());
  }
  /// At 29.97 pictures a second, counted drop-frame, and 44100 samples.
  std::string Text(TimeFormat format, TickTime time) {
    auto draft = drafts::MakeSequence();
    draft.videoRate = FrameRate::FromRational(30000, 1001);
    draft.audioRate = FrameRate::FromRational(44100, 1);
    draft.isDropFrame = true;
    draft.timeFormat = format;
    return Text(std::move(draft), time);
  }

  rows::Host host;
};

TEST_F(TimeTexts, EachFormatOfASequenceHasItsText) {
  const TickTime picture = FrameRate::FromRational(30000, 1001).GetFrameDuration();
  const TickTime time(1805 * picture.GetTicks());
  EXPECT_EQ(Text(TimeFormat::kTimecode, time), "00:01:00;07");
  EXPECT_EQ(Text(TimeFormat::kFrames, time), "1805");
  EXPECT_EQ(Text(TimeFormat::kFeetAndFrames16mm, time), "45+05");
  EXPECT_EQ(Text(TimeFormat::kFeetAndFrames35mm, time), "112+13");
  // 1805 pictures last 60.226833… seconds.
  EXPECT_EQ(Text(TimeFormat::kAudioSamples, time), "00:01:00:10003");
  EXPECT_EQ(Text(TimeFormat::kMilliseconds, time), "00:01:00.226");
}

TEST_F(TimeTexts, EachFormatOfASequenceHasNegativeTimes) {
  const TickTime time(-TickTime::kTicksPerSecond * 3 / 2);
  EXPECT_EQ(Text(TimeFormat::kTimecode, time), "-00:00:01;14");
  EXPECT_EQ(Text(TimeFormat::kFrames, time), "-44");
  EXPECT_EQ(Text(TimeFormat::kFeetAndFrames16mm, time), "-1+04");
  EXPECT_EQ(Text(TimeFormat::kFeetAndFrames35mm, time), "-2+12");
  EXPECT_EQ(Text(TimeFormat::kAudioSamples, time), "-00:00:01:22050");
  EXPECT_EQ(Text(TimeFormat::kMilliseconds, time), "-00:00:01.500");
}

TEST_F(TimeTexts, EditsThatSnapToFramesCountInFramesOfPicture) {
  auto draft = drafts::MakeSequence();
  draft.timeFormat = TimeFormat::kAudioSamples;
  frameAlignment = 0;
  EXPECT_EQ(Text(draft, drafts::Frame(26)), "00:00:01:01");
}

TEST_F(TimeTexts, EditsThatSnapToAnythingElseCountInFramesOfSound) {
  for (const std::uint32_t alignment : {1U, 2U, 0xFFFFFFFFU}) {
    frameAlignment = alignment;
    EXPECT_EQ(Text(drafts::MakeSequence(), drafts::Frame(26)), "00:00:01:01920") << alignment;
  }
}

TEST_F(TimeTexts, WithoutSequenceTheAlignmentIsNotAsked) {
  frameAlignment = 1;
  const TickTime minute = drafts::Frame(1500);
  const auto wanted = ZSL::Timecode(minute, TickTime(9223372036854775807), qelmediatypes::TimeDisplay())
                          .GetStringUTF8();
  EXPECT_EQ(TimeText({}, minute), wanted);
}

}  // namespace
}  // namespace Vantrel

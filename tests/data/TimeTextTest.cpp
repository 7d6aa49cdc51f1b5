#include "data/TimeText.h"

#include <gtest/gtest.h>

#include "host/MZ/Sequences.h"
#include "host/ZSL/Timecode.h"
#include "support/CollectedRows.h"
#include "support/Drafts.h"

namespace {

/// What the host's edits snap to, for this program.
std::uint32_t frameAlignment = 0;

constexpr qelmediatypes::TimeDisplay kSoundDisplay{qelmediatypes::TimeDisplay::Count::kDropFrame};

}  // namespace

// These take the place of the host's answers, which never name audio samples.
namespace MZ {

std::uint32_t SequenceActions::GetFrameAlignment(const qelcore::Ref<BE::ISequence>& /*sequence*/) {
  return frameAlignment;
}

qelmediatypes::TimeDisplay SequencePlayback::GetAudioTimeDisplayFormat(
    const qelcore::Ref<BE::ISequence>& /*sequence*/) {
  return kSoundDisplay;
}

}  // namespace MZ

namespace Vantrel {
namespace {

/// Frames of sound last 1001/30000 of a second here, so that the way they are counted shows.
class TimeTexts : public testing::Test {
 protected:
  TimeTexts() {
    auto draft = drafts::MakeSequence();
    draft.audioRate = qelmediatypes::FrameRate::FromRational(30000, 1001);
    sequence = host.Add(draft);
    minute = qelmediatypes::TickTime(draft.audioRate.GetFrameDuration().GetTicks() * 1800);
  }
  ~TimeTexts() override { frameAlignment = 0; }

  rows::Host host;
  qelcore::Ref<BE::ISequence> sequence;
  qelmediatypes::TickTime minute;
};

TEST_F(TimeTexts, EditsThatSnapToFramesCountInFramesOfPicture) {
  EXPECT_EQ(TimeText(sequence, minute), "00:01:00:01");
}

TEST_F(TimeTexts, EditsThatSnapToSamplesCountInFramesOfSound) {
  for (const std::uint32_t alignment : {1U, 2U, 0xFFFFFFFFU}) {
    frameAlignment = alignment;
    EXPECT_EQ(TimeText(sequence, minute), "00:01:00;02") << alignment;
  }
}

TEST_F(TimeTexts, WithoutSequenceTheAlignmentIsNotAsked) {
  frameAlignment = 1;
  const auto wanted =
      ZSL::Timecode(minute, qelmediatypes::TickTime(9223372036854775807), qelmediatypes::TimeDisplay())
          .GetStringUTF8();
  EXPECT_EQ(TimeText({}, minute), wanted);
}

}  // namespace
}  // namespace Vantrel

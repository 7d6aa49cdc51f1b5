#include "host/MZ/Sequences.h"

#include <gtest/gtest.h>

#include "model/ModelFixture.h"
#include "standalone/model/PlayerNode.h"
#include "standalone/model/TimeFormat.h"
#include "support/Fakes.h"

namespace {

using qelmediatypes::TimeDisplay;
using standalone::TimeFormat;

/// How the times of a sequence are written.
class SequenceTimes : public ModelTest {
 protected:
  qelcore::Ref<BE::ISequence> Add(TimeFormat format, bool isDropFrame = false) {
    auto draft = drafts::MakeSequence("Cut");
    draft.timeFormat = format;
    draft.isDropFrame = isDropFrame;
    return model.Add(draft);
  }

  TimeDisplay::Count GetPictureCount(TimeFormat format, bool isDropFrame = false) {
    constexpr int kForDisplay = 1;
    const auto sequence = Add(format, isDropFrame);
    return MZ::SequencePlayback::GetVideoTimeDisplayFormat(sequence, kForDisplay).count;
  }

  TimeDisplay::Count GetSampleCount(TimeFormat format, bool isDropFrame = false) {
    return MZ::SequencePlayback::GetAudioTimeDisplayFormat(Add(format, isDropFrame)).count;
  }
};

TEST_F(SequenceTimes, EditsSnapToSamplesWhereTimesAreFinerThanPicturesAlone) {
  const auto alignment = [this](TimeFormat format) {
    return MZ::SequenceActions::GetFrameAlignment(Add(format));
  };
  EXPECT_EQ(alignment(TimeFormat::kTimecode), 0U);
  EXPECT_EQ(alignment(TimeFormat::kFrames), 0U);
  EXPECT_EQ(alignment(TimeFormat::kFeetAndFrames16mm), 0U);
  EXPECT_EQ(alignment(TimeFormat::kFeetAndFrames35mm), 0U);
  EXPECT_NE(alignment(TimeFormat::kAudioSamples), 0U);
  EXPECT_NE(alignment(TimeFormat::kMilliseconds), 0U);
}

TEST_F(SequenceTimes, TimecodeCountsDropFramesWhereTheSequenceSaysSo) {
  EXPECT_EQ(GetPictureCount(TimeFormat::kTimecode, false), TimeDisplay::Count::kNonDropFrame);
  EXPECT_EQ(GetPictureCount(TimeFormat::kTimecode, true), TimeDisplay::Count::kDropFrame);
}

TEST_F(SequenceTimes, FramesAndFeetAreCountedWhetherTheSequenceDropsNumbersOrNot) {
  for (const bool isDropFrame : {false, true}) {
    EXPECT_EQ(GetPictureCount(TimeFormat::kFrames, isDropFrame), TimeDisplay::Count::kFrames);
    EXPECT_EQ(GetPictureCount(TimeFormat::kFeetAndFrames16mm, isDropFrame),
              TimeDisplay::Count::kFeetAndFrames16mm);
    EXPECT_EQ(GetPictureCount(TimeFormat::kFeetAndFrames35mm, isDropFrame),
              TimeDisplay::Count::kFeetAndFrames35mm);
  }
}

TEST_F(SequenceTimes, PicturesHaveTimecodeWhereTimesAreFinerThanPictures) {
  for (const TimeFormat format : {TimeFormat::kAudioSamples, TimeFormat::kMilliseconds}) {
    EXPECT_EQ(GetPictureCount(format, false), TimeDisplay::Count::kNonDropFrame);
    EXPECT_EQ(GetPictureCount(format, true), TimeDisplay::Count::kDropFrame);
  }
}

TEST_F(SequenceTimes, SoundIsCountedInSamplesUnlessTheSequenceCountsMilliseconds) {
  for (const bool isDropFrame : {false, true}) {
    EXPECT_EQ(GetSampleCount(TimeFormat::kMilliseconds, isDropFrame),
              TimeDisplay::Count::kMilliseconds);
    for (const TimeFormat format :
         {TimeFormat::kTimecode, TimeFormat::kFrames, TimeFormat::kFeetAndFrames16mm,
          TimeFormat::kFeetAndFrames35mm, TimeFormat::kAudioSamples}) {
      EXPECT_EQ(GetSampleCount(format, isDropFrame), TimeDisplay::Count::kAudioSamples);
    }
  }
}

TEST_F(SequenceTimes, APublishedChangeOfTheFormatIsAnsweredAtOnce) {
  const auto sequence = Add(TimeFormat::kTimecode);
  auto draft = drafts::MakeSequence("Cut");
  draft.timeFormat = TimeFormat::kMilliseconds;
  model.project.ReplaceSequence(sequence, draft);
  EXPECT_NE(MZ::SequenceActions::GetFrameAlignment(sequence), 0U);
  EXPECT_EQ(MZ::SequencePlayback::GetAudioTimeDisplayFormat(sequence).count,
            TimeDisplay::Count::kMilliseconds);
}

using SequencePlayer = ModelTest;

TEST_F(SequencePlayer, IsThereForAnOpenedSequenceAlone) {
  const auto opened = model.Add(drafts::MakeSequence("A"));
  model.project.ActivateSequence(opened);
  EXPECT_TRUE(MZ::GetSequencePlayer(opened, 0));
  EXPECT_FALSE(MZ::GetSequencePlayer(model.Add(drafts::MakeSequence("B")), 0));
}

TEST_F(SequencePlayer, IsTheOneThatTheUserSees) {
  const auto sequence = model.Add(drafts::MakeSequence("A"));
  model.project.ActivateSequence(sequence);
  const auto player = MZ::GetSequencePlayer(sequence, 0);
  EXPECT_EQ(player, standalone::FindPlayer(sequence));
  EXPECT_EQ(MZ::GetSequencePlayer(sequence, 1), player);
}

TEST_F(SequencePlayer, NothingAndForeignSequencesHaveNone) {
  const qelcore::Ref<BE::ISequence> foreign(new fakes::Sequence(drafts::Frame(1)));
  EXPECT_FALSE(MZ::GetSequencePlayer({}, 0));
  EXPECT_FALSE(MZ::GetSequencePlayer(foreign, 0));
  EXPECT_FALSE(standalone::FindPlayer({}));
  EXPECT_FALSE(standalone::FindPlayer(foreign));
}

TEST_F(SequencePlayer, NestedSequencesHaveNone) {
  auto document = drafts::MakeDocument({drafts::MakeSequence("A"), drafts::MakeSequence("Inner")});
  document.timelineCount = 1;
  model.project.ActivateSequence(model.project.AddDocument(std::move(document)).front());
  EXPECT_FALSE(MZ::GetSequencePlayer(model.project.GetNestedSequences().front(), 0));
}

}  // namespace

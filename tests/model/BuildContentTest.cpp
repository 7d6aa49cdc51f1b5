#include <gtest/gtest.h>

#include "host/BE/MediaTypes.h"
#include "host/BE/Utilities.h"
#include "host/MZ/Sequences.h"
#include "model/ModelFixture.h"

namespace {

constexpr auto kGap = BE::kTrackItemType_Empty;
constexpr auto kClip = BE::kTrackItemType_Clip;
constexpr auto kTransition = BE::kTrackItemType_Transition;

using Spans = std::vector<ItemSpan>;
using standalone::TrackKind;

class BuildContent : public ModelTest {
 protected:
  standalone::SequenceDraft draft = drafts::MakeSequence("Cut");
};

TEST_F(BuildContent, AHoleBetweenItemsBecomesAGap) {
  auto& track = drafts::AddTrack(draft);
  drafts::AddClip(track, "A", 0, 10);
  drafts::AddClip(track, "B", 15, 20);
  EXPECT_EQ(CollectSpans(model.Add(draft)),
            (Spans{{kClip, 0, 10}, {kGap, 10, 15}, {kClip, 15, 20}, {kGap, 20, -1}}));
}

TEST_F(BuildContent, AHoleBeforeTheFirstItemBecomesAGap) {
  drafts::AddClip(drafts::AddTrack(draft), "A", 4, 10);
  EXPECT_EQ(CollectSpans(model.Add(draft)), (Spans{{kGap, 0, 4}, {kClip, 4, 10}, {kGap, 10, -1}}));
}

TEST_F(BuildContent, TheOpenFillerEndsAtOneHundredHoursExactly) {
  drafts::AddClip(drafts::AddTrack(draft), "A", 0, 10);
  EXPECT_EQ(CollectItems(model.Add(draft)).back()->GetEnd().GetTicks(), 91445760000000000);
}

TEST_F(BuildContent, ATrackWithoutItemsHoldsTheOpenFillerAlone) {
  drafts::AddTrack(draft);
  EXPECT_EQ(CollectSpans(model.Add(draft)), (Spans{{kGap, 0, -1}}));
}

TEST_F(BuildContent, TrailingGapsMergeIntoTheOpenFiller) {
  auto& track = drafts::AddTrack(draft);
  drafts::AddClip(track, "A", 0, 10);
  drafts::AddGap(track, 10, 20);
  drafts::AddGap(track, 20, 20);
  drafts::AddGap(track, 20, 30);
  EXPECT_EQ(CollectSpans(model.Add(draft)), (Spans{{kClip, 0, 10}, {kGap, 10, -1}}));
}

TEST_F(BuildContent, ATrackOfGapsAloneHoldsTheOpenFillerAlone) {
  drafts::AddGap(drafts::AddTrack(draft), 0, 20);
  EXPECT_EQ(CollectSpans(model.Add(draft)), (Spans{{kGap, 0, -1}}));
}

TEST_F(BuildContent, NeighbouringGapsStayApart) {
  auto& track = drafts::AddTrack(draft);
  drafts::AddGap(track, 0, 5);
  drafts::AddGap(track, 5, 8);
  drafts::AddClip(track, "A", 8, 10);
  EXPECT_EQ(CollectSpans(model.Add(draft)),
            (Spans{{kGap, 0, 5}, {kGap, 5, 8}, {kClip, 8, 10}, {kGap, 10, -1}}));
}

TEST_F(BuildContent, AGapWithoutLengthIsKept) {
  auto& track = drafts::AddTrack(draft);
  drafts::AddClip(track, "A", 0, 10);
  drafts::AddGap(track, 10, 10);
  drafts::AddClip(track, "B", 10, 20);
  EXPECT_EQ(CollectSpans(model.Add(draft)),
            (Spans{{kClip, 0, 10}, {kGap, 10, 10}, {kClip, 10, 20}, {kGap, 20, -1}}));
}

TEST_F(BuildContent, ATrackThatIsFullHasNoOpenFiller) {
  auto& track = drafts::AddTrack(draft);
  drafts::AddClip(track, "A", 0, 10);
  track.items.back().end = qelmediatypes::kOneHundredHours;
  EXPECT_EQ(CollectSpans(model.Add(draft)), (Spans{{kClip, 0, -1}}));
}

TEST_F(BuildContent, AnItemThatStartsBeforeThePreviousEndIsKeptAsItIs) {
  auto& track = drafts::AddTrack(draft);
  drafts::AddClip(track, "Long", 0, 100);
  drafts::AddClip(track, "Within", 10, 20);
  drafts::AddClip(track, "Backward", 50, 40);
  drafts::AddClip(track, "After", 110, 120);
  EXPECT_EQ(CollectSpans(model.Add(draft)), (Spans{{kClip, 0, 100},
                                                   {kClip, 10, 20},
                                                   {kClip, 50, 40},
                                                   {kGap, 100, 110},
                                                   {kClip, 110, 120},
                                                   {kGap, 120, -1}}));
}

TEST_F(BuildContent, AnItemBeforeTimeZeroIsKept) {
  drafts::AddClip(drafts::AddTrack(draft), "A", -10, 5);
  EXPECT_EQ(CollectSpans(model.Add(draft)), (Spans{{kClip, -10, 5}, {kGap, 5, -1}}));
}

TEST_F(BuildContent, TransitionsAreItemsOfTheirOwnAtTheCut) {
  auto& track = drafts::AddTrack(draft);
  drafts::AddClip(track, "A", 0, 10).headTransition = {"Fade In", false};
  auto& last = drafts::AddClip(track, "B", 10, 20);
  last.tailTransition = {"Fade Out", false};
  EXPECT_EQ(CollectSpans(model.Add(draft)), (Spans{{kTransition, 0, 0},
                                                   {kClip, 0, 10},
                                                   {kClip, 10, 20},
                                                   {kTransition, 20, 20},
                                                   {kGap, 20, -1}}));
}

TEST_F(BuildContent, TheTransitionBetweenTwoClipsIsOneItem) {
  auto& track = drafts::AddTrack(draft);
  drafts::AddClip(track, "A", 0, 10).tailTransition = {"Dissolve", false};
  drafts::AddClip(track, "B", 10, 20).headTransition = {"Dissolve", false};
  const auto sequence = model.Add(draft);
  EXPECT_EQ(CollectSpans(sequence),
            (Spans{{kClip, 0, 10}, {kTransition, 10, 10}, {kClip, 10, 20}, {kGap, 20, -1}}));
  const auto clips = CollectClips(sequence);
  EXPECT_EQ(BE::TrackItemUtils::GetTailTransition(clips[0]),
            BE::TrackItemUtils::GetHeadTransition(clips[1]));
}

TEST_F(BuildContent, DifferentTransitionsAtOneCutStayTwo) {
  auto& track = drafts::AddTrack(draft);
  drafts::AddClip(track, "A", 0, 10).tailTransition = {"Fade Out", false};
  drafts::AddClip(track, "B", 10, 20).headTransition = {"Fade In", true};
  const auto sequence = model.Add(draft);
  EXPECT_EQ(CollectSpans(sequence), (Spans{{kClip, 0, 10},
                                           {kTransition, 10, 10},
                                           {kTransition, 10, 10},
                                           {kClip, 10, 20},
                                           {kGap, 20, -1}}));
  EXPECT_TRUE(BE::TrackItemUtils::GetHeadTransition(CollectClips(sequence)[1])->IsMissing());
}

TEST_F(BuildContent, AGapBetweenTwoClipsKeepsTheirTransitionsApart) {
  auto& track = drafts::AddTrack(draft);
  drafts::AddClip(track, "A", 0, 10).tailTransition = {"Dissolve", false};
  drafts::AddGap(track, 10, 10);
  drafts::AddClip(track, "B", 10, 20).headTransition = {"Dissolve", false};
  const auto clips = CollectClips(model.Add(draft));
  EXPECT_FALSE(BE::TrackItemUtils::GetTailTransition(clips[0]) ==
               BE::TrackItemUtils::GetHeadTransition(clips[1]));
}

TEST_F(BuildContent, TheTransitionAtTheEndOfATrackDoesNotReachTheNextTrack) {
  drafts::AddClip(drafts::AddTrack(draft), "A", 0, 0).tailTransition = {"Dissolve", false};
  drafts::AddClip(drafts::AddTrack(draft), "B", 0, 10).headTransition = {"Dissolve", false};
  const auto clips = CollectClips(model.Add(draft));
  EXPECT_FALSE(BE::TrackItemUtils::GetTailTransition(clips[0]) ==
               BE::TrackItemUtils::GetHeadTransition(clips[1]));
}

TEST_F(BuildContent, TracksAreNumberedWithinTheirMediaTypeFromZero) {
  for (const TrackKind kind :
       {TrackKind::kAudio, TrackKind::kVideo, TrackKind::kAudio, TrackKind::kVideo}) {
    drafts::AddClip(drafts::AddTrack(draft, kind), "A", 0, 10);
  }
  const auto clips = CollectClips(model.Add(draft));
  ASSERT_EQ(clips.size(), 4U);
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(clips[i]->GetMediaType(), i < 2 ? BE::kMediaType_Video : BE::kMediaType_Audio) << i;
    EXPECT_EQ(clips[i]->GetTrackIndex(), i % 2) << i;
  }
}

TEST_F(BuildContent, ATrackIsDisabledOrMutedWhenItIsEither) {
  for (int state = 0; state < 4; ++state) {
    auto& track = drafts::AddTrack(draft);
    track.isDisabled = (state & 1) != 0;
    track.isMuted = (state & 2) != 0;
    drafts::AddClip(track, "A", 0, 10);
  }
  const auto clips = CollectClips(model.Add(draft));
  for (int state = 0; state < 4; ++state) {
    const auto track = qelcore::QueryInterface<BE::ITrack>(clips[state]->GetTrack());
    ASSERT_TRUE(track);
    EXPECT_EQ(track->IsDisabledOrMuted(), state != 0) << state;
  }
}

TEST_F(BuildContent, UnknownRatesBecomeTwentyFourPicturesAndFortyEightThousandSamples) {
  draft.videoRate = {};
  draft.audioRate = {};
  const auto sequence = model.Add(draft);
  EXPECT_EQ(sequence->GetVideoFrameDuration().GetTicks(), 254016000000 / 24);
  EXPECT_EQ(sequence->GetAudioFrameDuration().GetTicks(), 254016000000 / 48000);
}

TEST_F(BuildContent, ASequenceAnswersWhatItsDraftSays) {
  draft.zeroPoint = drafts::Frame(-90000);
  const auto sequence = model.Add(draft);
  EXPECT_EQ(sequence->GetName(), "Cut");
  EXPECT_EQ(sequence->GetVideoFrameDuration(), drafts::Frame(1));
  EXPECT_EQ(sequence->GetAudioFrameDuration().GetTicks(), 254016000000 / 48000);
  EXPECT_EQ(BE::SequenceUtils::GetZeroPoint(sequence), drafts::Frame(-90000));
  EXPECT_EQ(MZ::SequenceActions::GetFrameAlignment(sequence), 0U);
}

TEST_F(BuildContent, EqualTextsOfADocumentShareOneBuffer) {
  auto& track = drafts::AddTrack(draft);
  drafts::AddClip(track, "Same", 0, 10);
  drafts::AddClip(track, "Same", 10, 20);
  const auto added = model.project.AddDocument(drafts::MakeDocument({draft, draft}));
  const auto first = CollectClips(added[0]);
  const auto second = CollectClips(added[1]);
  EXPECT_TRUE(first[0]->GetClip()->GetName().SharesBufferWith(first[1]->GetClip()->GetName()));
  EXPECT_TRUE(first[0]->GetClip()->GetName().SharesBufferWith(second[0]->GetClip()->GetName()));
}

}  // namespace

#include "standalone/timeline/TimelineContent.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/Drafts.h"
#include "support/SteppedHost.h"

namespace standalone {
namespace {

using drafts::Frame;
using qelmediatypes::TickTime;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

SequenceDraft MakeCut() {
  auto draft = drafts::MakeSequence("Cut");
  auto& v1 = drafts::AddTrack(draft);
  v1.name = "V1";
  drafts::AddClip(v1, "A", 0, 50);
  auto& b = drafts::AddClip(v1, "B", 60, 80);
  b.isDisabled = true;
  b.media.isOffline = true;
  b.labelColor = {1, 2, 3, 255};
  b.tailTransition = TransitionDraft{"Dissolve", false};
  auto& c = drafts::AddClip(v1, "C", 80, 100);
  c.headTransition = TransitionDraft{"Dissolve", false};
  auto& v2 = drafts::AddTrack(draft);
  v2.name = "Titles";
  v2.isLocked = true;
  drafts::AddClip(v2, "T", 10, 20);
  auto& a1 = drafts::AddTrack(draft, TrackKind::kAudio);
  a1.isMuted = true;
  drafts::AddClip(a1, "S", 0, 120);
  return draft;
}

class TimelineContentTest : public testing::Test {
 protected:
  TimelineContent Show(SequenceDraft draft) { return TimelineContent(AddSequence(std::move(draft))); }

  static std::vector<std::string> Visit(const TimelineContent& content, std::size_t lane, TickTime from,
                                        TickTime to) {
    std::vector<std::string> names;
    content.VisitItems(lane, from, to, [&](const TimelineItem& item) {
      names.emplace_back(item.isGap ? "gap" : item.name.View());
      return item.end;
    });
    return names;
  }

  SteppedHost host;
};

TEST_F(TimelineContentTest, LanesStandFromTheHighestVideoTrackDownThenAudio) {
  const auto content = Show(MakeCut());
  std::vector<std::string> names;
  for (const auto& lane : content.GetLanes()) names.emplace_back(lane.name.View());
  EXPECT_THAT(names, ElementsAre("V2 Titles", "V1", "A1"));
  EXPECT_TRUE(content.GetLanes()[0].isLocked);
  EXPECT_FALSE(content.GetLanes()[1].isLocked);
  EXPECT_TRUE(content.GetLanes()[2].isDisabledOrMuted);
  EXPECT_FALSE(content.GetLanes()[2].isVideo);
}

TEST_F(TimelineContentTest, ItemsInViewAreVisitedWithoutTheOpenEndAndTransitions) {
  const auto content = Show(MakeCut());
  EXPECT_THAT(Visit(content, 1, TickTime(), Frame(1000)), ElementsAre("A", "gap", "B", "C"));
  EXPECT_THAT(Visit(content, 1, Frame(50), Frame(80)), ElementsAre("gap", "B"));
  EXPECT_THAT(Visit(content, 1, Frame(100), Frame(1000)), IsEmpty());
  EXPECT_THAT(Visit(content, 0, TickTime(), Frame(15)), ElementsAre("gap", "T"));
}

TEST_F(TimelineContentTest, AVisitorPassesOverWhatItDoesNotWantToSee) {
  const auto content = Show(MakeCut());
  std::vector<std::string> names;
  content.VisitItems(1, TickTime(), Frame(1000), [&](const TimelineItem& item) {
    names.emplace_back(item.name.View());
    return Frame(80);
  });
  EXPECT_THAT(names, ElementsAre("A", "C"));
}

TEST_F(TimelineContentTest, AnItemTellsWhatTheClipIs) {
  const auto content = Show(MakeCut());
  const auto b = content.FindItemAt(1, Frame(79));
  ASSERT_TRUE(b);
  EXPECT_EQ(b->name.View(), "B");
  EXPECT_TRUE(b->isDisabled);
  EXPECT_TRUE(b->isOffline);
  EXPECT_TRUE(b->hasTailTransition);
  EXPECT_FALSE(b->hasHeadTransition);
  EXPECT_EQ(b->labelColor, (ZSL::Color{1, 2, 3, 255}));
  EXPECT_EQ(b->trackItem->GetStart(), Frame(60));
  const auto c = content.FindItemAt(1, Frame(80));
  ASSERT_TRUE(c);
  EXPECT_EQ(c->name.View(), "C");
  EXPECT_TRUE(c->hasHeadTransition);
}

TEST_F(TimelineContentTest, NothingStandsAtTheOpenEndNorOnALaneThatIsNotThere) {
  const auto content = Show(MakeCut());
  EXPECT_FALSE(content.FindItemAt(1, Frame(100)));
  EXPECT_FALSE(content.FindItemAt(7, Frame(0)));
}

TEST_F(TimelineContentTest, CutsAreFoundOnAllTracks) {
  const auto content = Show(MakeCut());
  EXPECT_THAT(content.FindCutAfter(Frame(0)), Optional(Frame(10)));
  EXPECT_THAT(content.FindCutAfter(Frame(10)), Optional(Frame(20)));
  EXPECT_THAT(content.FindCutAfter(Frame(50)), Optional(Frame(60)));
  EXPECT_THAT(content.FindCutAfter(Frame(100)), Optional(Frame(120)));
  EXPECT_EQ(content.FindCutAfter(Frame(120)), std::nullopt);
  EXPECT_THAT(content.FindCutBefore(Frame(1000)), Optional(Frame(120)));
  EXPECT_THAT(content.FindCutBefore(Frame(120)), Optional(Frame(100)));
  EXPECT_THAT(content.FindCutBefore(Frame(80)), Optional(Frame(60)));
  EXPECT_THAT(content.FindCutBefore(Frame(60)), Optional(Frame(50)));
  EXPECT_THAT(content.FindCutBefore(Frame(15)), Optional(Frame(10)));
  EXPECT_EQ(content.FindCutBefore(Frame(0)), std::nullopt);
}

TEST_F(TimelineContentTest, ACutIsFoundBeforeSeveralGapsInARow) {
  auto draft = drafts::MakeSequence("Gaps");
  auto& track = drafts::AddTrack(draft);
  drafts::AddClip(track, "A", 0, 10);
  drafts::AddGap(track, 10, 20);
  drafts::AddGap(track, 20, 30);
  drafts::AddGap(track, 30, 40);
  drafts::AddClip(track, "B", 40, 50);
  const auto content = Show(std::move(draft));
  EXPECT_THAT(content.FindCutBefore(Frame(35)), Optional(Frame(10)));
  EXPECT_THAT(content.FindCutBefore(Frame(40)), Optional(Frame(10)));
  EXPECT_THAT(content.FindCutBefore(Frame(41)), Optional(Frame(40)));
  EXPECT_THAT(content.FindCutAfter(Frame(10)), Optional(Frame(40)));
}

TEST_F(TimelineContentTest, TheNotationIsTheSequences) {
  auto draft = MakeCut();
  draft.zeroPoint = Frame(90000);
  const auto content = Show(draft);
  EXPECT_EQ(content.GetNotation().frameDuration, Frame(1));
  EXPECT_EQ(content.GetNotation().zeroPoint, Frame(90000));
  EXPECT_EQ(content.GetEnd(), Frame(120));
  draft.timeFormat = TimeFormat::kAudioSamples;
  const auto samples = Show(draft);
  EXPECT_EQ(samples.GetNotation().frameDuration.GetTicks(), TickTime::kTicksPerSecond / 48000);
  EXPECT_EQ(samples.GetFrameDuration(), Frame(1));
}

TEST_F(TimelineContentTest, WithoutASequenceThereIsNothing) {
  const TimelineContent content{qelcore::Ref<BE::ISequence>()};
  EXPECT_THAT(content.GetLanes(), IsEmpty());
  EXPECT_EQ(content.FindCutAfter(TickTime()), std::nullopt);
}

TEST_F(TimelineContentTest, ItKeepsWhatWasPublishedWhenTheSequenceIsReplaced) {
  const auto sequence = AddSequence(MakeCut());
  const TimelineContent before(sequence);
  host->GetProject().ReplaceSequence(sequence, drafts::MakeOneClip("New"));
  host.Settle();
  EXPECT_THAT(Visit(before, 1, TickTime(), Frame(1000)), ElementsAre("A", "gap", "B", "C"));
  EXPECT_THAT(Visit(TimelineContent(sequence), 0, TickTime(), Frame(1000)), ElementsAre("New"));
}

}  // namespace
}  // namespace standalone

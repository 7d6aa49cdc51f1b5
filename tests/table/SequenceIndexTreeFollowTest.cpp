#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <utility>

#include "table/SelectionFixture.h"
#include "table/SelectionWatch.h"

namespace Vantrel {
namespace {

using drafts::Frame;

/// The table follows the playhead.
using Following = SelectionFixture;

// What is selected

TEST_F(Following, OnACutOnlyTheLaterClipIsSelected) {
  Open(MakeClips("A", 4));
  Follow(20);
  EXPECT_EQ(GetSelectedNames(), Names{"A3"});
  tree->FollowPlayerPosition(Frame(20) - qelmediatypes::TickTime(1));
  EXPECT_EQ(GetSelectedNames(), Names{"A2"});
}

TEST_F(Following, TheRowUnderThePlayheadOnEachTrackIsSelected) {
  auto draft = drafts::MakeSequence();
  drafts::AddClip(drafts::AddTrack(draft), "long", 0, 100);
  auto& second = drafts::AddTrack(draft);
  drafts::AddClip(second, "early", 0, 10);
  drafts::AddClip(second, "late", 40, 60);
  drafts::AddClip(drafts::AddTrack(draft, standalone::TrackKind::kAudio), "sound", 30, 45);
  Open(std::move(draft));
  Follow(42);
  EXPECT_EQ(GetSelectedNames(), (Names{"long", "sound", "late"}));
  EXPECT_EQ(heard.back(), "counts 3/4");
}

TEST_F(Following, InAGapItsRowIsSelectedIfGapsAreKept) {
  Open(MakeClipGapClip());
  Follow(11);
  EXPECT_TRUE(GetSelectedNames().empty());
  tree->SetOptions(KeepingGaps());
  host.Settle();
  Follow(11);
  EXPECT_EQ(GetSelectedNames(), Names{"Gap"});
}

TEST_F(Following, TheZeroPointHasNoPartInIt) {
  auto draft = MakeClips("A", 4);
  draft.zeroPoint = Frame(90000);
  Open(std::move(draft));
  Follow(25);
  EXPECT_EQ(GetSelectedNames(), Names{"A3"});
}

TEST_F(Following, RowsThatAFilterHidesAreNotMissed) {
  Open(MakeClips("A", 12));
  tree->SetSearchText(qelcore::UTF8String("a1"));
  host.Settle();
  Follow(105);
  EXPECT_EQ(GetSelectedNames(), Names{"A11"});
  Follow(25);
  EXPECT_TRUE(GetSelectedNames().empty());
}

TEST_F(Following, RowsAreSelectedInTheirOrderEachAddedToTheOthers) {
  auto draft = MakeClips("A", 3);
  for (int track = 0; track < 2; ++track) {
    drafts::AddClip(drafts::AddTrack(draft), "B", 5, 25);
  }
  Open(std::move(draft));
  const hostcalls::Recording recording;
  Follow(15);
  EXPECT_EQ(recording.GetCalls({"DeselectAllRows", "SelectRow", "ScrollRowIntoView", "CountRows",
                                "BroadcastMessageOnMainThread"}),
            (Calls{"DeselectAllRows(true)", "CountRows()",
                   "BroadcastMessageOnMainThread(" + GetStation() + ")", "SelectRow(1, true)",
                   "SelectRow(2, true)", "SelectRow(3, true)", "ScrollRowIntoView(2, true, true, true)",
                   "CountRows()", "BroadcastMessageOnMainThread(" + GetStation() + ")"}))
      << "the first broadcast says that nothing is selected";
}

// The same time

TEST_F(Following, TheSameTimeAgainChangesNothingWhileAnythingIsSelected) {
  Open(MakeClips("A", 4));
  Follow(25);
  Click(0);
  heard.clear();
  const hostcalls::Recording recording;
  Follow(25);
  EXPECT_EQ(GetSelectedNames(), Names{"A1"});
  EXPECT_TRUE(heard.empty());
  EXPECT_EQ(recording.Count("DeselectAllRows"), 0U);
  EXPECT_EQ(recording.Count("ScrollRowIntoView"), 0U);
}

TEST_F(Following, TheSameTimeSelectsAgainAfterTheUserHasDeselected) {
  Open(MakeClips("A", 4));
  Follow(25);
  ClickBelow();
  heard.clear();
  Follow(25);
  EXPECT_EQ(GetSelectedNames(), Names{"A3"});
  EXPECT_EQ(heard, Names{"counts 1/4"});
}

TEST_F(Following, TheTimeIsRememberedBeforeTheSelectionChanges) {
  Open(MakeClips("A", 4));
  Follow(5);
  int follows = 0;
  const hostcalls::Hook again("DeselectAllRows", [&] {
    if (++follows == 1) Follow(25);
  });
  Follow(25);
  EXPECT_EQ(follows, 1) << "the one inside finds that time shown";
  EXPECT_EQ(GetSelectedNames(), Names{"A3"});
}

TEST_F(Following, TimeZeroCountsAsShownAtFirst) {
  ShowSequence(MakeClips("A", 4));
  Click(2);
  Follow(0);
  EXPECT_EQ(GetSelectedNames(), Names{"A3"});
  ClickBelow();
  Follow(0);
  EXPECT_EQ(GetSelectedNames(), Names{"A1"});
}

TEST_F(Following, ANewSequenceDoesNotHideBehindTheTimeOfTheOneBefore) {
  Open(MakeClips("A", 4));
  Follow(25);
  Open(MakeClips("B", 4));
  GetPlayer()->SetCurrentPosition(Frame(25));
  Follow(25);
  EXPECT_EQ(GetSelectedNames(), Names{"B3"});
}

// Who hears of it

TEST_F(Following, TheTimelineHearsThatRowsWereDeselectedButNotWhichAreFollowed) {
  Open(MakeClips("A", 4));
  Follow(5);
  tree->SetUpdateTimelineSelection(true);
  heard.clear();
  Follow(25);
  EXPECT_EQ(heard, (Names{"activation", "counts 0/4", "counts 1/4"}));
}

TEST_F(Following, WhereNothingWasSelectedNobodyHearsOfDeselecting) {
  Open(MakeClips("A", 4));
  ClickBelow();
  tree->SetUpdateTimelineSelection(true);
  heard.clear();
  Follow(25);
  EXPECT_EQ(heard, Names{"counts 1/4"});
}

TEST_F(Following, NeverMovesThePlayhead) {
  Open(MakeClips("A", 40));
  tree->SetOnDuty(true);
  GetPlayer()->SetCurrentPosition(Frame(7));
  const hostcalls::Recording recording;
  for (std::int64_t frame = 0; frame < 400; frame += 3) Follow(frame);
  EXPECT_EQ(recording.Count("GetSequencePlayer"), 0U);
  EXPECT_EQ(GetPlayerFrame(), 7);
}

TEST_F(Following, OffTheMainThreadTheCountsAreQueued) {
  Open(MakeClips("A", 4));
  ClickBelow();
  heard.clear();
  const hostcalls::Recording recording;
  {
    SelectionWatch watch;
    watch.isOffMainThread = true;
    Follow(25);
  }
  EXPECT_TRUE(heard.empty());
  EXPECT_EQ(recording.GetCalls({"AsyncBroadcastMessagePtr", "BroadcastMessageOnMainThread"}),
            Calls{"AsyncBroadcastMessagePtr(" + GetStation() + ")"});
  host.Settle();
  EXPECT_EQ(heard, Names{"counts 1/4"});
}

// Scrolling

TEST_F(Following, TheRowBehindThePlayheadStandsSevenTenthsDown) {
  Open(MakeClips("A", 100));
  Follow(495);
  EXPECT_EQ(GetTopPosition(), 43U);
  EXPECT_EQ(tree->GetVisibleRows().size(), kVisibleRows);
  EXPECT_EQ(tree->GetRowIndex(tree->GetVisibleRows()[7]), 50U) << "the next row";
}

TEST_F(Following, ItScrollsAlsoWhereNoRowIs) {
  auto draft = MakeClips("A", 100);
  draft.tracks.front().items.erase(draft.tracks.front().items.begin() + 49);
  Open(std::move(draft));
  Follow(495);
  EXPECT_TRUE(GetSelectedNames().empty());
  EXPECT_EQ(GetTopPosition(), 42U);
}

TEST_F(Following, BeforeTheFirstRowTheTableIsAtItsTop) {
  auto draft = drafts::MakeSequence();
  auto& track = drafts::AddTrack(draft);
  for (int i = 1; i <= 50; ++i) drafts::AddClip(track, "A", i * 10, i * 10 + 10);
  Open(std::move(draft));
  Follow(400);
  ASSERT_NE(GetTopPosition(), 0U);
  Follow(0);
  EXPECT_EQ(GetTopPosition(), 0U);
}

TEST_F(Following, BehindTheLastRowTheTargetIsNeverBeyondIt) {
  Open(MakeClips("A", 50));
  const std::vector<std::pair<std::size_t, std::string>> targets{
      {1, "49"}, {2, "49"}, {3, "49"}, {4, "48"}, {10, "44"}};
  for (const auto& [visible, target] : targets) {
    ShowRows(visible);
    Follow(0);
    const hostcalls::Recording recording;
    Follow(100000);
    EXPECT_EQ(recording.GetCalls({"ScrollRowIntoView"}),
              Calls{"ScrollRowIntoView(" + target + ", true, true, true)"})
        << visible;
  }
}

TEST_F(Following, WithoutVisibleRowsItScrollsNowhere) {
  Open(MakeClips("A", 50));
  ShowRows(0);
  const hostcalls::Recording recording;
  Follow(100);
  EXPECT_EQ(recording.Count("ScrollRowIntoView"), 0U);
  EXPECT_EQ(GetSelectedNames(), Names{"A11"});
}

TEST_F(Following, AnEmptyTableOnlyAnnouncesThatItIsEmpty) {
  Open(drafts::MakeSequence("Empty"));
  const hostcalls::Recording recording;
  Follow(100);
  EXPECT_EQ(recording.Count("ScrollRowIntoView"), 0U);
  EXPECT_EQ(heard, Names{"counts 0/0"});
}

TEST_F(Following, ANegativeTimeIsBeforeEveryRow) {
  Open(MakeClips("A", 50));
  Follow(400);
  Follow(-3);
  EXPECT_TRUE(GetSelectedNames().empty());
  EXPECT_EQ(GetTopPosition(), 0U);
}

// Two panels

TEST_F(Following, TwoPanelsOnOnePlayerComeToRest) {
  Open(MakeClips("A", 6));
  const auto secondOwner = std::make_shared<Ear>();
  const qelcore::Ref second(new SequenceIndexTree(secondOwner, 0, kRowHeight));
  second->SetSequence(sequence);
  host.Settle();
  int moves = 0;
  const auto follow = [&moves](SequenceIndexTree& table) {
    return [&moves, &table](const qelcore::messaging::Message& message) {
      ASSERT_LT(++moves, 100) << "they fight over the playhead";
      table.FollowPlayerPosition(
          static_cast<const ML::PlayerPositionChangedMessage&>(message).GetPosition());
    };
  };
  owner->hear = follow(*tree);
  secondOwner->hear = follow(*second);
  for (const auto& table : {tree, second}) {
    table->SetOnDuty(true);
    table->SetUpdateTimelineSelection(true);
  }
  GetPlayer()->SetCurrentPosition(Frame(25));
  EXPECT_EQ(moves, 2) << "one follow each";
  Click(4);
  EXPECT_EQ(moves, 3) << "the other one's";
  EXPECT_EQ(GetPlayerFrame(), 40);
  EXPECT_EQ(GetSelectedPositions(), std::vector<std::size_t>{4});
  ASSERT_EQ(second->GetSelectedRows().size(), 1U);
  EXPECT_EQ(second->GetRowIndex(second->GetSelectedRows().front()), 4U);
  host.Settle();
  EXPECT_EQ(moves, 3);
}

}  // namespace
}  // namespace Vantrel

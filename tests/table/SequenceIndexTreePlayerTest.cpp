#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

#include "standalone/runtime/StationRegistry.h"
#include "table/SelectionFixture.h"
#include "table/SelectionWatch.h"

namespace Vantrel {
namespace {

using drafts::Frame;
using Player = SelectionFixture;

/// On duty in a sequence of clips "A1", "A2", …, with nothing selected.
class PlayerOnDuty : public SelectionFixture {
 protected:
  PlayerOnDuty() {
    Open(MakeClips("A", 6));
    ClickBelow();
    tree->SetOnDuty(true);
    heard.clear();
  }
  void SubscribeOwnerTo(const qelcore::messaging::StationID& station) {
    qelcore::messaging::AddWeakPtrListener(station, owner);
  }
};

// Moving it

TEST_F(PlayerOnDuty, SelectingOneRowMovesThePlayheadToItsStart) {
  Click(3);
  EXPECT_EQ(GetPlayerFrame(), 30);
}

TEST_F(PlayerOnDuty, TheOwnerDoesNotHearAMoveThatCameFromTheTable) {
  Click(3);
  EXPECT_EQ(heard, Names{"counts 1/6"});
  EXPECT_EQ(GetSelectedNames(), Names{"A4"});
  GetPlayer()->SetCurrentPosition(Frame(5));
  EXPECT_EQ(heard, (Names{"counts 1/6", "position 3 at 5"})) << "it hears every other one again";
}

TEST_F(PlayerOnDuty, ATableWhoseOwnerFollowsThePlayerKeepsTheUsersSelection) {
  owner->hear = [this](const auto&) { Follow(GetPlayerFrame()); };
  tree->SetUpdateTimelineSelection(true);
  Click(3);
  EXPECT_EQ(heard, (Names{"activation A4", "counts 1/6"}));
  Click(3, {4});
  EXPECT_EQ(GetSelectedNames(), (Names{"A4", "A5"}));
  EXPECT_EQ(GetPlayerFrame(), 30);
}

TEST_F(PlayerOnDuty, AfterTenMovesTheOwnerHearsEachOtherMoveOnce) {
  for (std::size_t i = 0; i < 10; ++i) Click(i % 6);
  heard.clear();
  GetPlayer()->SetCurrentPosition(Frame(25));
  EXPECT_EQ(heard, Names{"position 3 at 25"});
}

TEST_F(Player, OffDutyThePlayheadStaysWhereItIs) {
  Open(MakeClips("A", 6));
  Click(3);
  EXPECT_EQ(GetPlayerFrame(), 0);
}

TEST_F(PlayerOnDuty, SeveralRowsOrNoneLeaveThePlayheadWhereItIs) {
  Click(3);
  const hostcalls::Recording recording;
  Click(3, {4});
  tree->GetControl().SelectAll();
  ClickBelow();
  EXPECT_EQ(recording.Count("GetSequencePlayer"), 0U);
  EXPECT_EQ(GetPlayerFrame(), 30);
}

TEST_F(Player, TheTimeHandedOverIsTheStoredStartWithoutTheZeroPoint) {
  auto draft = MakeClips("A", 6);
  draft.zeroPoint = Frame(90000);
  Open(std::move(draft));
  tree->SetOnDuty(true);
  ClickBelow();
  Click(2);
  EXPECT_EQ(GetPlayerFrame(), 20);
}

TEST_F(Player, InAFilteredTableTheStartOfTheShownRowCounts) {
  Open(MakeClips("A", 12));
  tree->SetSearchText(qelcore::UTF8String("a1"));
  host.Settle();
  tree->SetOnDuty(true);
  Click(2);
  EXPECT_EQ(GetPlayerFrame(), 100) << "A11 in the third row";
}

TEST_F(PlayerOnDuty, AsksForThePlayerTheUserSeesAndPausesTheListenerAroundTheMove) {
  SelectionWatch watch;
  watch.player = qelcore::Ref<ML::IPlayer>(new FakePlayer);
  const hostcalls::Recording recording;
  Click(3);
  EXPECT_EQ(recording.GetCalls({"GetSequencePlayer", "RemoveListener", "SetCurrentPosition",
                                "AddWeakPtrListener", "BroadcastMessageOnMainThread"}),
            (Calls{"GetSequencePlayer(0)", "RemoveListener()", "SetCurrentPosition(30)",
                   "AddWeakPtrListener()", "BroadcastMessageOnMainThread(" + GetStation() + ")"}));
}

TEST_F(PlayerOnDuty, TheTimelineIsToldAfterThePlayheadHasMoved) {
  tree->SetUpdateTimelineSelection(true);
  const auto other = std::make_shared<Ear>([this](const auto&) { heard.emplace_back("moved"); });
  qelcore::messaging::AddWeakPtrListener(GetPlayer()->GetStationID(), other);
  Click(3);
  EXPECT_EQ(heard, (Names{"moved", "activation A4", "counts 1/6"}));
}

TEST_F(PlayerOnDuty, TheTimeHandedOverIsTheLastSynchronisedOne) {
  Click(3);
  heard.clear();
  Follow(30);
  EXPECT_TRUE(heard.empty()) << "the table shows that time already";
  Follow(31);
  EXPECT_EQ(heard.back(), "counts 1/6");
}

TEST_F(PlayerOnDuty, TheListenerIsBackWhenThePlayerFails) {
  SelectionWatch watch;
  const qelcore::Ref<FakePlayer> fake(new FakePlayer);
  watch.player = fake;
  qelcore::messaging::RegisterStation(fake->station);
  SubscribeOwnerTo(fake->station);
  {
    const hostcalls::Hook fault("SetCurrentPosition", [] { throw std::runtime_error("stuck"); });
    Click(3);
  }
  EXPECT_EQ(host->GetRuntime().GetStations().CountListeners(fake->station), 1U);
  EXPECT_EQ(host.TakeFailures().size(), 1U);
  const hostcalls::Recording recording;
  Follow(30);
  EXPECT_EQ(recording.Count("DeselectAllRows"), 1U) << "that time was never synchronised";
  qelcore::messaging::DisposeStation(fake->station);
}

TEST_F(PlayerOnDuty, AListenerThatCannotBeAddedAgainStopsNothing) {
  const hostcalls::Hook fault("AddWeakPtrListener", [] { throw std::bad_alloc(); });
  Click(3);
  EXPECT_EQ(GetPlayerFrame(), 30);
  EXPECT_EQ(heard, Names{"counts 1/6"});
  EXPECT_TRUE(host.TakeFailures().empty());
}

TEST_F(PlayerOnDuty, WithoutItsOwnerTheTableStillMovesThePlayhead) {
  owner.reset();
  const hostcalls::Recording recording;
  Click(3);
  EXPECT_EQ(GetPlayerFrame(), 30);
  EXPECT_EQ(recording.Count("RemoveListener"), 0U);
  EXPECT_EQ(recording.Count("AddWeakPtrListener"), 0U);
  Follow(30);
  EXPECT_EQ(recording.Count("DeselectAllRows"), 0U) << "and remembers the time";
}

TEST_F(PlayerOnDuty, TheOwnerIsHeldWeaklyAfterAMove) {
  Click(3);
  const std::weak_ptr<Ear> watched = owner;
  owner.reset();
  EXPECT_TRUE(watched.expired());
}

TEST_F(PlayerOnDuty, WithoutAPlayerNothingMovesAndTheLastTimeStays) {
  Follow(10);
  SelectionWatch watch;
  watch.player.emplace();
  const hostcalls::Recording recording;
  Click(3);
  EXPECT_EQ(recording.Count("RemoveListener"), 0U);
  EXPECT_EQ(recording.Count("AddWeakPtrListener"), 0U);
  Follow(10);
  EXPECT_EQ(recording.Count("DeselectAllRows"), 0U) << "still the last synchronised time";
}

TEST_F(PlayerOnDuty, ItemsAreThoseSelectedEvenIfThePlayersListenersBringOtherRows) {
  tree->SetUpdateTimelineSelection(true);
  const auto other = std::make_shared<Ear>([this](const auto&) {
    tree->SetSequence({});
    host.Settle();
  });
  qelcore::messaging::AddWeakPtrListener(GetPlayer()->GetStationID(), other);
  Click(3);
  EXPECT_EQ(heard, (Names{"activation", "counts 0/0", "counts 0/0", "activation A4", "counts 0/0"}))
      << "first of the rows that go away, then of none, then of the click";
}

TEST_F(PlayerOnDuty, TheTableOutlivesAMoveInWhichItIsClosed) {
  const auto station = tree->GetStationID();
  bool wasAlive = false;
  const auto other = std::make_shared<Ear>([&](const auto&) {
    tree.Reset();
    wasAlive = host->GetRuntime().GetStations().IsRegistered(station);
  });
  qelcore::messaging::AddWeakPtrListener(GetPlayer()->GetStationID(), other);
  tree->GetControl().Click(3, 0);
  EXPECT_TRUE(wasAlive);
  EXPECT_FALSE(host->GetRuntime().GetStations().IsRegistered(station));
}

// Which one

TEST_F(Player, ANewSequenceIsStoredThenBuiltThenItsPlayerHeard) {
  sequence = AddSequence(MakeClips("A", 2));
  host->GetProject().ActivateSequence(sequence);
  const hostcalls::Recording recording;
  tree->SetSequence(sequence);
  EXPECT_EQ(recording.GetCalls({"Lock", "Unlock", "Schedule", "GetSequencePlayer", "RemoveListener",
                                "AddWeakPtrListener", "DeselectAllRows", "GetSelectedRows",
                                "BroadcastMessageOnMainThread"}),
            (Calls{"Lock(null, 60000)", "Unlock()", "Lock(null, 60000)", "Schedule()", "Unlock()",
                   "GetSequencePlayer(0)", "AddWeakPtrListener()"}));
  GetPlayer()->SetCurrentPosition(Frame(4));
  EXPECT_EQ(heard, Names{"position 3 at 4"});
}

TEST_F(Player, TheOwnersOtherSubscriptionsStay) {
  Open(MakeClips("A", 2));
  const auto first = sequence;
  Open(MakeClips("B", 2));
  heard.clear();
  MZ::GetSequencePlayer(first, 0)->SetCurrentPosition(Frame(4));
  EXPECT_EQ(heard, Names{"position 3 at 4"}) << "to end it is the owner's affair";
}

TEST_F(Player, TheSameSequenceAgainIsBuiltAgainAndHeardOnce) {
  Open(MakeClips("A", 2));
  const hostcalls::Recording recording;
  tree->SetSequence(sequence);
  EXPECT_EQ(recording.Count("Schedule"), 1U);
  host.Settle();
  heard.clear();
  GetPlayer()->SetCurrentPosition(Frame(4));
  EXPECT_EQ(heard, Names{"position 3 at 4"});
}

TEST_F(Player, NoSequenceHasNoPlayerToHear) {
  Open(MakeClips("A", 2));
  const hostcalls::Recording recording;
  tree->SetSequence({});
  EXPECT_EQ(recording.Count("Schedule"), 1U);
  EXPECT_EQ(recording.Count("GetSequencePlayer"), 0U);
  EXPECT_EQ(recording.Count("AddWeakPtrListener"), 0U);
  EXPECT_EQ(recording.Count("RemoveListener"), 0U);
}

TEST_F(Player, ASequenceThatWasNeverOpenedHasNoneToHear) {
  sequence = AddSequence(MakeClips("A", 2));
  const hostcalls::Recording recording;
  tree->SetSequence(sequence);
  EXPECT_EQ(recording.GetCalls({"GetSequencePlayer", "AddWeakPtrListener"}),
            Calls{"GetSequencePlayer(0)"});
}

TEST_F(Player, ATableWithoutOwnerHearsNone) {
  sequence = AddSequence(MakeClips("A", 2));
  host->GetProject().ActivateSequence(sequence);
  tree = MakeTree();
  const hostcalls::Recording recording;
  tree->SetSequence(sequence);
  EXPECT_EQ(recording.Count("AddWeakPtrListener"), 0U);
}

}  // namespace
}  // namespace Vantrel

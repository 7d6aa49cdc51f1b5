#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <new>
#include <string>
#include <utility>

#include "standalone/runtime/StationRegistry.h"
#include "table/SelectionFixture.h"

namespace Vantrel {
namespace {

using drafts::Frame;

/// A listener that runs an event loop of its own, as a modal dialog does, while the table tells it
/// something.
class NestedLoop : public SelectionFixture {
 protected:
  NestedLoop() { qelcore::messaging::AddWeakPtrListener(tree->GetStationID(), listener); }

  /// With the table's next message, does that and then runs everything that waits, nested.
  void AtTheNextMessage(std::function<void()> function) {
    listener->hear = [this, function = std::move(function)](const auto&) {
      listener->hear = nullptr;
      function();
      const standalone::MainQueue::NestedLoop loop(host.GetMainQueue());
      host.Settle();
    };
  }
  /// Queues the step that shows another content.
  void PrepareStep(standalone::SequenceDraft draft) {
    Replace(sequence, std::move(draft));
    tree->RefreshDataListsAndTreeViewAsync();
    host.GetPool().RunUntilEmpty();
  }
  void ExpectRowsOf(const std::string& prefix, std::size_t count) {
    EXPECT_EQ(tree->CountRows(), count);
    ASSERT_EQ(tree->GetFilteredList().size(), count);
    for (std::size_t i = 0; i < count; ++i) {
      EXPECT_EQ(tree->GetFilteredList()[i].name, prefix + std::to_string(i + 1));
    }
  }

  std::shared_ptr<Ear> listener = std::make_shared<Ear>();
};

TEST_F(NestedLoop, NewerRowsThatArriveWhileRowsAreRemovedAreTheOnesShown) {
  for (const int newer : {2, 5, 9}) {
    Open(MakeClips("A", 4));
    Click(3);
    PrepareStep(MakeClips("B", 6));
    AtTheNextMessage([&] { PrepareStep(MakeClips("C", newer)); });
    host.Settle();
    ExpectRowsOf("C", static_cast<std::size_t>(newer));
    EXPECT_EQ(GetSelectedNames(), Names{"C1"});
    EXPECT_EQ(heard.back(), "counts 1/" + std::to_string(newer));
  }
}

TEST_F(NestedLoop, WhileRowsAreExchangedThereIsNoRowWithoutItsData) {
  Open(MakeClips("A", 4));
  Click(3);
  PrepareStep(MakeClips("B", 6));
  AtTheNextMessage([&] {
    EXPECT_EQ(tree->CountRows(), 0U);
    PrepareStep(MakeClips("C", 2));
    host.GetMainQueue().RunUntilEmpty();
    EXPECT_LE(tree->CountRows(), tree->GetFilteredList().size());
  });
  host.Settle();
  ExpectRowsOf("C", 2);
}

TEST_F(NestedLoop, NewerListsAreBroughtIntoLineWithThePlayheadOnce) {
  Open(MakeClips("A", 4));
  Click(3);
  PrepareStep(MakeClips("B", 6));
  AtTheNextMessage([&] { PrepareStep(MakeClips("C", 5)); });
  const hostcalls::Recording recording;
  host.Settle();
  EXPECT_EQ(recording.Count("GetSequencePlayer"), 1U);
  EXPECT_EQ(recording.Count("CreateAndAppendRow"), 10U) << "the newer ones, begun twice";
}

TEST_F(NestedLoop, TheSameRowNumberStaysAtTheTop) {
  ShowSequence(MakeClips("A", 40));
  tree->GetControl().ScrollTo(18 * 12);
  Click(13);
  PrepareStep(MakeClips("B", 40));
  AtTheNextMessage([&] { PrepareStep(MakeClips("C", 50)); });
  host.Settle();
  ExpectRowsOf("C", 50);
  EXPECT_EQ(GetTopPosition(), 12U);
}

TEST_F(NestedLoop, AFollowThatBringsNewerRowsLeavesThemAsTheyAre) {
  Open(MakeClips("A", 4));
  GetPlayer()->SetCurrentPosition(Frame(15));
  AtTheNextMessage([&] { PrepareStep(MakeClips("B", 6)); });
  Follow(35);
  ExpectRowsOf("B", 6);
  EXPECT_EQ(GetSelectedNames(), Names{"B2"}) << "where the playhead is, not where it was said to be";
  EXPECT_EQ(heard.back(), "counts 1/6");
}

TEST_F(NestedLoop, AFollowThatBringsRowsWithoutAPlayerSelectsNoneOfThem) {
  Open(MakeClips("A", 4));
  const auto other = AddSequence(MakeClips("B", 6));
  AtTheNextMessage([&] { tree->SetSequence(other); });
  Follow(35);
  ExpectRowsOf("B", 6);
  EXPECT_TRUE(GetSelectedNames().empty());
  EXPECT_EQ(heard.back(), "counts 0/6");
}

TEST_F(NestedLoop, OfTwoFollowsTheOneInsideIsTheLater) {
  Open(MakeClips("A", 4));
  AtTheNextMessage([&] { Follow(25); });
  Follow(35);
  EXPECT_EQ(GetSelectedNames(), Names{"A3"});
  EXPECT_EQ(heard.back(), "counts 1/4");
}

TEST_F(NestedLoop, NewerRowsThatArriveAfterTheExchangeAreShownWhole) {
  // With the follow's counts, with the activation, and with the handling's counts.
  for (int message = 1; message <= 3; ++message) {
    Open(MakeClips("A", 4));
    ClickBelow();
    tree->SetUpdateTimelineSelection(true);
    PrepareStep(MakeClips("B", 6));
    int heardMessages = 0;
    const auto deep = std::make_shared<Ear>([&](const auto&) {
      if (++heardMessages != message) return;
      PrepareStep(MakeClips("C", 3));
      host.Settle();
    });
    qelcore::messaging::AddWeakPtrListener(tree->GetStationID(), deep);
    qelcore::messaging::AddWeakPtrListener(MZ::kStation_TrackItemActivation, deep);
    host.Settle();
    EXPECT_GE(heardMessages, message);
    ExpectRowsOf("C", 3);
    EXPECT_EQ(GetSelectedNames(), Names{"C1"});
    EXPECT_EQ(heard.back(), "counts 1/3");
  }
}

TEST_F(NestedLoop, APanelClosedWhileItsRowsAreExchangedLivesToTheEndOfTheStep) {
  Open(MakeClips("A", 4));
  Click(3);
  PrepareStep(MakeClips("B", 6));
  const auto station = tree->GetStationID();
  bool wasAlive = false;
  AtTheNextMessage([&] {
    tree.Reset();
    wasAlive = host->GetRuntime().GetStations().IsRegistered(station);
  });
  host.Settle();
  EXPECT_TRUE(wasAlive);
  EXPECT_FALSE(host->GetRuntime().GetStations().IsRegistered(station));
  EXPECT_TRUE(host.TakeFailures().empty());
}

TEST_F(NestedLoop, APanelClosedByAFollowLivesToItsEnd) {
  Open(MakeClips("A", 4));
  const auto station = tree->GetStationID();
  AtTheNextMessage([&] { tree.Reset(); });
  tree->FollowPlayerPosition(Frame(25));
  EXPECT_FALSE(host->GetRuntime().GetStations().IsRegistered(station));
}

TEST_F(NestedLoop, AFailureWhileRowsAreAppendedDoesNotStopLaterExchanges) {
  Open(MakeClips("A", 4));
  {
    int appended = 0;
    const hostcalls::Hook fault("CreateAndAppendRow", [&] {
      if (++appended == 3) throw std::bad_alloc();
    });
    PrepareStep(MakeClips("B", 6));
    host.Settle();
  }
  EXPECT_EQ(host.TakeFailures().size(), 1U);
  EXPECT_EQ(tree->CountRows(), 2U);
  for (std::size_t i = 0; i < 2; ++i) Click(i);
  PrepareStep(MakeClips("C", 5));
  host.Settle();
  ExpectRowsOf("C", 5);
}

}  // namespace
}  // namespace Vantrel

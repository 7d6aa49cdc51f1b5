#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "table/MessageIDs.h"
#include "view/ViewFixture.h"

namespace Vantrel {
namespace {

using qelcore::Ref;
using Sequence = Ref<BE::ISequence>;

class Messages : public ViewFixture {
 protected:
  /// A table that shows `first`, with another sequence at hand.
  void ShowFirst() {
    CreateContents();
    view->ReceiveMessage(MZ::SequenceActivatedMessage(first));
    host.Settle();
    ASSERT_EQ(view->GetTree()->GetSequence(), first);
    ASSERT_TRUE(IsSubscribedTo(first));
  }
  /// What the view does to subscriptions when it gets a message.
  Calls GetSubscriptionCalls(const qelcore::messaging::Message& message) {
    const hostcalls::Recording recording;
    view->ReceiveMessage(message);
    return recording.GetCalls({"AddWeakPtrListener", "RemoveListener"});
  }
  std::size_t CountSchedules(const qelcore::messaging::Message& message) {
    const hostcalls::Recording recording;
    view->ReceiveMessage(message);
    return recording.Count("Schedule");
  }

  Sequence first = AddSequence(MakeOneClip("first"));
  Sequence second = AddSequence(MakeOneClip("second"));
};

TEST_F(Messages, SubscribesToInfoActivationTrackItemActivationAndTheProjectInThisOrder) {
  const auto project = qelcore::RequireInterface<BE::INotification>(host->GetProject().GetProject());
  const hostcalls::Recording recording;
  view->SubscribeToStations();
  Calls expected;
  for (const auto& station : {MZ::kStation_Info, MZ::kStation_SequenceActivation,
                              MZ::kStation_TrackItemActivation, project->GetStationID()}) {
    expected.push_back("AddWeakPtrListener(" + std::string(station.View()) + ")");
  }
  EXPECT_EQ(recording.GetCalls({"AddWeakPtrListener"}), expected);
}

TEST_F(Messages, SubscriptionsDoNotKeepTheViewAlive) {
  view->SubscribeToStations();
  const std::weak_ptr<SequenceIndexView> watched = view;
  view.reset();
  EXPECT_TRUE(watched.expired());
  host->GetProject().ActivateSequence(first);
}

TEST_F(Messages, WithoutAProjectSubscribingRaisesTheNullPointerErrorNamingTheInterface) {
  hostcalls::activeProjectInstead = Ref<BE::IProject>();
  const hostcalls::Recording recording;
  try {
    view->SubscribeToStations();
    FAIL() << "nothing was raised";
  } catch (const qelcore::config::null_pointer_exception& failure) {
    EXPECT_EQ(failure.GetObject(), "BE::INotification");
  }
  EXPECT_EQ(recording.Count("AddWeakPtrListener"), 3U);
}

class ProjectWithoutStation final : public fakes::Counted<BE::IProject> {
 public:
  void* QueryInterface(qelcore::InterfaceID) noexcept override { return nullptr; }
};

TEST_F(Messages, AProjectWithoutNotificationRaisesTheSame) {
  hostcalls::activeProjectInstead = Ref<BE::IProject>(Ref(new ProjectWithoutStation()));
  EXPECT_THROW(view->SubscribeToStations(), qelcore::config::null_pointer_exception);
}

TEST_F(Messages, BeforeTheContentsExistNothingHappensAtAll) {
  const hostcalls::Recording recording;
  view->ReceiveMessage(MZ::SequenceActivatedMessage(first));
  view->ReceiveMessage(MZ::SequenceOpenedMessage(first, true));
  view->ReceiveMessage(MZ::SequenceClosedMessage(first));
  view->ReceiveMessage(BE::SequenceChangedMessage(first));
  view->ReceiveMessage(ML::PlayerPositionChangedMessage(ML::PlayerMessageKind::kPositionSet, {}));
  view->ReceiveMessage(TreeViewItemsSelectionChangedMessage(1, 2));
  EXPECT_TRUE(recording.GetCalls().empty());
}

TEST_F(Messages, AnActivationMovesTheSubscriptionsAndShowsTheSequence) {
  ShowFirst();
  EXPECT_EQ(GetSubscriptionCalls(MZ::SequenceActivatedMessage(second)),
            Join(MakeCalls("RemoveListener", first), MakeCalls("AddWeakPtrListener", second)));
  EXPECT_EQ(view->GetTree()->GetSequence(), second);
  host.Settle();
  EXPECT_EQ(view->GetTree()->GetFilteredList().front().name, "second");
  EXPECT_FALSE(IsSubscribedTo(first));
  EXPECT_TRUE(IsSubscribedTo(second));
}

TEST_F(Messages, AnActivationOfNoneUnsubscribesAndEmptiesTheTable) {
  ShowFirst();
  EXPECT_EQ(GetSubscriptionCalls(MZ::SequenceActivatedMessage({})), MakeCalls("RemoveListener", first));
  host.Settle();
  EXPECT_FALSE(view->GetTree()->GetSequence());
  EXPECT_EQ(view->GetTree()->CountRows(), 0U);
}

TEST_F(Messages, AnActivationWithoutASequenceBeforeItOnlySubscribes) {
  CreateContents();
  EXPECT_EQ(GetSubscriptionCalls(MZ::SequenceActivatedMessage(first)),
            MakeCalls("AddWeakPtrListener", first));
}

TEST_F(Messages, AnOpenedSequenceThatIsToBeShownIsShown) {
  ShowFirst();
  EXPECT_EQ(GetSubscriptionCalls(MZ::SequenceOpenedMessage(second, true)),
            Join(MakeCalls("RemoveListener", first), MakeCalls("AddWeakPtrListener", second)));
  EXPECT_EQ(view->GetTree()->GetSequence(), second);
}

TEST_F(Messages, AnOpenedSequenceThatIsNotToBeShownOnlyTakesTheSubscriptions) {
  ShowFirst();
  EXPECT_EQ(GetSubscriptionCalls(MZ::SequenceOpenedMessage(second, false)),
            Join(MakeCalls("RemoveListener", first), MakeCalls("AddWeakPtrListener", second)));
  EXPECT_EQ(view->GetTree()->GetSequence(), first);
  EXPECT_EQ(host.GetPool().CountWaiting(), 0U) << "no rebuild";
}

TEST_F(Messages, SubscriptionsMoveFromTheTablesSequenceNotFromWhereTheyAre) {
  ShowFirst();
  view->ReceiveMessage(MZ::SequenceOpenedMessage(second, false));
  const auto third = AddSequence(MakeOneClip("third"));
  EXPECT_EQ(GetSubscriptionCalls(MZ::SequenceActivatedMessage(third)),
            Join(MakeCalls("RemoveListener", first), MakeCalls("AddWeakPtrListener", third)));
  EXPECT_TRUE(IsSubscribedTo(second)) << "left where it was";
}

TEST_F(Messages, AClosedSequenceGetsTheSubscriptionsAndTheTableNone) {
  ShowFirst();
  EXPECT_EQ(GetSubscriptionCalls(MZ::SequenceClosedMessage(second)),
            Join(MakeCalls("RemoveListener", first), MakeCalls("AddWeakPtrListener", second)));
  EXPECT_FALSE(view->GetTree()->GetSequence());
  host.Settle();
  EXPECT_EQ(view->GetTree()->CountRows(), 0U);
}

TEST_F(Messages, ClosingTheShownSequenceLeavesItSubscribed) {
  ShowFirst();
  EXPECT_EQ(GetSubscriptionCalls(MZ::SequenceClosedMessage(first)),
            Join(MakeCalls("RemoveListener", first), MakeCalls("AddWeakPtrListener", first)));
}

TEST_F(Messages, AClosedMessageWithoutSequenceUnsubscribesFully) {
  ShowFirst();
  EXPECT_EQ(GetSubscriptionCalls(MZ::SequenceClosedMessage({})), MakeCalls("RemoveListener", first));
  EXPECT_FALSE(view->GetTree()->GetSequence());
}

TEST_F(Messages, AChangedSequenceRefreshesWhicheverItIs) {
  ShowFirst();
  EXPECT_EQ(CountSchedules(BE::SequenceChangedMessage(first)), 1U);
  EXPECT_EQ(CountSchedules(BE::SequenceChangedMessage(second)), 1U);
  EXPECT_EQ(CountSchedules(BE::SequenceChangedMessage({})), 1U);
}

TEST_F(Messages, AChangedTrackGroupRefreshes) {
  ShowFirst();
  EXPECT_EQ(CountSchedules(BE::TrackGroupChangedMessage()), 1U);
}

TEST_F(Messages, AClosedProjectChangesNothing) {
  ShowFirst();
  const hostcalls::Recording recording;
  view->ReceiveMessage(BE::ProjectClosedMessage());
  EXPECT_TRUE(recording.GetCalls().empty());
  EXPECT_EQ(view->GetTree()->GetSequence(), first);
}

class OtherMessage final : public qelcore::messaging::Message {
 public:
  OtherMessage() : Message(12345) {}
};

TEST_F(Messages, OtherMessagesAreIgnored) {
  ShowFirst();
  const hostcalls::Recording recording;
  view->ReceiveMessage(OtherMessage());
  view->ReceiveMessage(MZ::TrackItemActivationMessage({{{}, first}}));
  EXPECT_TRUE(recording.GetCalls().empty());
}

TEST_F(Messages, AnEditOfTheShownSequenceReachesTheTable) {
  view->SubscribeToStations();
  CreateContents();
  host->GetProject().ActivateSequence(first);
  host.Settle();
  host->GetProject().ReplaceSequence(first, MakeOneClip("edited"));
  host.Settle();
  ASSERT_EQ(view->GetTree()->CountRows(), 1U);
  EXPECT_EQ(view->GetTree()->GetFilteredList().front().name, "edited");
}

TEST_F(Messages, ActivatingAgainSubscribesOnce) {
  view->SubscribeToStations();
  CreateContents();
  for (int i = 0; i < 3; ++i) host->GetProject().ActivateSequence(first);
  for (const auto& station : GetStations(first)) {
    EXPECT_EQ(CountListeners(station), 1U);
  }
}

/// Answers its own stations as far as it has them.
class PartialSequence final : public fakes::Counted<BE::ISequence>, public BE::ISequenceContent {
 public:
  explicit PartialSequence(bool hasContent) : hasContent(hasContent) {}
  void AddRef() const noexcept override { Counted::AddRef(); }
  void Release() const noexcept override { Counted::Release(); }
  void* QueryInterface(qelcore::InterfaceID id) noexcept override {
    if (id == BE::ISequence::kInterfaceID) return static_cast<BE::ISequence*>(this);
    const bool isContent = hasContent && id == BE::ISequenceContent::kInterfaceID;
    return isContent ? static_cast<BE::ISequenceContent*>(this) : nullptr;
  }
  qelcore::UTF8String GetName() const override { return {}; }
  qelmediatypes::TickTime GetVideoFrameDuration() const override { return drafts::Frame(1); }
  qelmediatypes::TickTime GetAudioFrameDuration() const override { return drafts::Frame(1); }
  qelcore::messaging::StationID GetStationID() const override {
    return qelcore::messaging::StationID("partial");
  }

 private:
  const bool hasContent;
};

std::string GetMissingInterface(SequenceIndexView& view, const Sequence& sequence) {
  try {
    view.ReceiveMessage(MZ::SequenceActivatedMessage(sequence));
  } catch (const qelcore::config::null_pointer_exception& failure) {
    return failure.GetObject();
  }
  return {};
}

TEST_F(Messages, ASequenceWithoutAStationRaisesItsInterfacesNameAndIsNotSubscribedAtAll) {
  CreateContents();
  const hostcalls::Recording recording;
  EXPECT_EQ(GetMissingInterface(*view, Ref<BE::ISequence>(new PartialSequence(false))),
            "BE::ISequenceContent");
  EXPECT_EQ(GetMissingInterface(*view, Ref<BE::ISequence>(new PartialSequence(true))),
            "BE::ISequenceTrackGroups");
  EXPECT_EQ(recording.Count("AddWeakPtrListener"), 0U);
  EXPECT_FALSE(view->GetTree()->GetSequence()) << "and not shown";
}

TEST_F(Messages, AnOldSequenceThatLostAStationKeepsItsSubscriptionsAndTheTableItsSequence) {
  CreateContents();
  const Ref<BE::ISequence> partial(new PartialSequence(true));
  view->GetTree()->SetSequence(partial);
  const hostcalls::Recording recording;
  EXPECT_EQ(GetMissingInterface(*view, second), "BE::ISequenceTrackGroups");
  EXPECT_TRUE(recording.GetCalls({"AddWeakPtrListener", "RemoveListener"}).empty());
  EXPECT_EQ(view->GetTree()->GetSequence(), partial);
  view->GetTree()->SetSequence({});
}

TEST(MessageIDs, AllDiffer) {
  const std::set<qelcore::messaging::MessageID> ids{
      MessageIDOf<BE::MessageNameForProjectClosedMessage>(),
      MessageIDOf<BE::MessageNameForSequenceChangedMessage>(),
      MessageIDOf<BE::MessageNameForTrackGroupChangedMessage>(),
      MessageIDOf<MZ::MessageNameForSequenceOpenedMessage>(),
      MessageIDOf<MZ::MessageNameForSequenceActivatedMessage>(),
      MessageIDOf<MZ::MessageNameForSequenceClosedMessage>(),
      MessageIDOf<MZ::MessageNameForTrackItemActivationMessage>(),
      MessageIDOf<ML::MessageNameForPlayerPositionChangedMessage>(),
      MessageIDOf<MessageNameForTreeViewItemsSelectionChangedMessage>()};
  EXPECT_EQ(ids.size(), 9U);
}

}  // namespace
}  // namespace Vantrel

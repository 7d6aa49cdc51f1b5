#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "view/ViewFixture.h"

namespace Vantrel {
namespace {

using drafts::Frame;
using ML::PlayerMessageKind;
using ML::PlayerPositionChangedMessage;
using qelcore::Ref;
using Sequence = Ref<BE::ISequence>;
using testing::ElementsAre;
using testing::IsEmpty;

/// Two opened sequences, which have players; the second is the active one.
class SequencesWithPlayers : public ViewFixture {
 protected:
  SequencesWithPlayers() {
    for (const Sequence& sequence : {first, second}) host->GetProject().ActivateSequence(sequence);
    CreateContents();
    host.Settle();
  }
  static Calls Attach(const Sequence& sequence) {
    return {MakeCall("AddWeakPtrListener", GetStations(sequence).back())};
  }
  Calls GetSubscriptionCalls(const qelcore::messaging::Message& message) {
    const hostcalls::Recording recording;
    view->ReceiveMessage(message);
    return recording.GetCalls({"AddWeakPtrListener", "RemoveListener"});
  }

  Sequence first = AddSequence(MakeOneClip("first"));
  Sequence second = AddSequence(MakeOneClip("second"));
};

TEST_F(SequencesWithPlayers, AnActivationMovesTheThreeSubscriptions) {
  ASSERT_EQ(GetStations(first).size(), 3U);
  ASSERT_TRUE(IsSubscribedTo(second));
  // The table attaches the view to its sequence's player once more, which changes nothing.
  EXPECT_EQ(GetSubscriptionCalls(MZ::SequenceActivatedMessage(first)),
            Join(Join(MakeCalls("RemoveListener", second), MakeCalls("AddWeakPtrListener", first)),
                 Attach(first)));
  EXPECT_TRUE(IsSubscribedTo(first));
  for (const auto& station : GetStations(second)) EXPECT_EQ(CountListeners(station), 0U);
}

TEST_F(SequencesWithPlayers, TheViewAsksForThePlayerThatTheUserSees) {
  const hostcalls::Recording recording;
  view->ReceiveMessage(MZ::SequenceActivatedMessage(first));
  const Calls calls = recording.GetCalls({"GetSequencePlayer"});
  EXPECT_THAT(calls, testing::Each("GetSequencePlayer(0)"));
  EXPECT_GE(calls.size(), 2U);
}

TEST_F(SequencesWithPlayers, AnOpenedSequenceThatIsNotToBeShownTakesTheThreeSubscriptions) {
  EXPECT_EQ(GetSubscriptionCalls(MZ::SequenceOpenedMessage(first, false)),
            Join(MakeCalls("RemoveListener", second), MakeCalls("AddWeakPtrListener", first)));
  EXPECT_EQ(view->GetTree()->GetSequence(), second);
}

TEST_F(SequencesWithPlayers, ThePlayerListenedToIsFollowedWhicheverSequenceIsShown) {
  view->ReceiveMessage(MZ::SequenceOpenedMessage(first, false));
  ASSERT_EQ(view->GetTree()->GetSelectedRows().size(), 1U);
  MZ::GetSequencePlayer(first, 0)->SetCurrentPosition(Frame(500));
  EXPECT_THAT(view->GetTree()->GetSelectedRows(), IsEmpty());
}

TEST_F(SequencesWithPlayers, AClosedSequenceGetsTheThreeSubscriptions) {
  EXPECT_EQ(GetSubscriptionCalls(MZ::SequenceClosedMessage(second)),
            Join(MakeCalls("RemoveListener", second), MakeCalls("AddWeakPtrListener", second)));
}

TEST_F(SequencesWithPlayers, AClosedMessageWithoutSequenceUnsubscribesFully) {
  EXPECT_EQ(GetSubscriptionCalls(MZ::SequenceClosedMessage({})), MakeCalls("RemoveListener", second));
}

TEST_F(SequencesWithPlayers, ASequenceThatWasNeverOpenedHasNoPlayerToListenTo) {
  const Sequence closed = AddSequence(MakeOneClip("closed"));
  ASSERT_EQ(GetStations(closed).size(), 2U);
  EXPECT_EQ(GetSubscriptionCalls(MZ::SequenceActivatedMessage(closed)),
            Join(MakeCalls("RemoveListener", second), MakeCalls("AddWeakPtrListener", closed)));
}

/// A table of three clips of ten frames, the view without subscriptions of its own.
class PlayerMessages : public ViewFixture {
 protected:
  PlayerMessages() {
    CreateContents();
    auto draft = drafts::MakeSequence();
    auto& track = drafts::AddTrack(draft);
    for (int i = 0; i < 3; ++i) drafts::AddClip(track, "clip", 10 * i, 10 * i + 10);
    view->GetTree()->SetSequence(AddSequence(std::move(draft)));
    host.Settle();
  }
  void Send(PlayerMessageKind kind, std::int64_t frame) {
    view->ReceiveMessage(PlayerPositionChangedMessage(kind, Frame(frame)));
  }
  std::vector<std::size_t> GetSelection() const {
    std::vector<std::size_t> positions;
    for (const auto* row : view->GetTree()->GetSelectedRows()) {
      positions.push_back(view->GetTree()->GetRowIndex(row));
    }
    return positions;
  }
};

TEST_F(PlayerMessages, APlayheadThatWasSetIsFollowed) {
  Send(PlayerMessageKind::kPositionSet, 15);
  EXPECT_THAT(GetSelection(), ElementsAre(1));
  EXPECT_EQ(GetStatus(), "1 of 3 Item(s) Selected");
}

TEST_F(PlayerMessages, APlayheadThatPlaysIsFollowed) {
  Send(PlayerMessageKind::kPositionPlayed, 25);
  EXPECT_THAT(GetSelection(), ElementsAre(2));
}

TEST_F(PlayerMessages, TheKindsFollowedAreThreeAndFive) {
  for (std::uint32_t kind = 0; kind < 8; ++kind) {
    Send(PlayerMessageKind::kPositionSet, 5);
    ASSERT_THAT(GetSelection(), ElementsAre(0));
    Send(static_cast<PlayerMessageKind>(kind), 15);
    const std::size_t expected = kind == 3 || kind == 5 ? 1 : 0;
    EXPECT_THAT(GetSelection(), ElementsAre(expected)) << "kind " << kind;
  }
}

TEST_F(PlayerMessages, ANegativePositionCountsAsZero) {
  Send(PlayerMessageKind::kPositionSet, 15);
  Send(PlayerMessageKind::kPositionSet, -5);
  EXPECT_THAT(GetSelection(), ElementsAre(0));
  // The same time again: a row that the user selected meanwhile stays.
  view->GetTree()->SelectRow(view->GetTree()->GetRow(2), false);
  Send(PlayerMessageKind::kPositionPlayed, -7);
  EXPECT_THAT(GetSelection(), ElementsAre(2));
}

TEST_F(PlayerMessages, APositionWithoutRowsDeselectsAll) {
  Send(PlayerMessageKind::kPositionSet, 15);
  Send(PlayerMessageKind::kPositionSet, 500);
  EXPECT_THAT(GetSelection(), IsEmpty());
  EXPECT_EQ(GetStatus(), "3 Items");
}

}  // namespace
}  // namespace Vantrel

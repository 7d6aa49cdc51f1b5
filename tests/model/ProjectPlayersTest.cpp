#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <typeinfo>
#include <vector>

#include "host/qelcore/Exceptions.h"
#include "model/ProjectModelFixture.h"

namespace projectmodel {
namespace {

class ProjectPlayers : public ProjectModelTest {};

TEST_F(ProjectPlayers, ASequenceHasNoPlayerBeforeItsFirstOpening) {
  const auto sequence = Add("A");
  EXPECT_FALSE(MZ::GetSequencePlayer(sequence, 0));
  EXPECT_FALSE(standalone::FindPlayer(sequence));
  project->ReplaceSequence(sequence, drafts::MakeSequence("B"));
  project->CloseSequence(sequence);
  EXPECT_FALSE(MZ::GetSequencePlayer(sequence, 0));
}

TEST_F(ProjectPlayers, APlayerIsThereWhenTheOpeningIsAnnounced) {
  class Asking final : public qelcore::messaging::Listener {
   public:
    void ReceiveMessage(const Message& message) override {
      const auto& opened = dynamic_cast<const MZ::SequenceOpenedMessage&>(message);
      player = MZ::GetSequencePlayer(opened.GetSequence(), 0);
    }
    Ref<ML::IPlayer> player;
  };
  const auto asking = std::make_shared<Asking>();
  qelcore::messaging::AddWeakPtrListener(MZ::kStation_Info, asking);
  const auto sequence = Add("A");
  project->ActivateSequence(sequence);
  ASSERT_TRUE(asking->player);
  EXPECT_EQ(asking->player, MZ::GetSequencePlayer(sequence, 0));
}

TEST_F(ProjectPlayers, ASequenceKeepsItsPlayerForLife) {
  const auto sequence = AddOpened("A");
  const auto player = MZ::GetSequencePlayer(sequence, 0);
  player->SetCurrentPosition(drafts::Frame(4));
  project->ActivateSequence(sequence);
  EXPECT_EQ(MZ::GetSequencePlayer(sequence, 0), player);
  project->CloseSequence(sequence);
  EXPECT_EQ(MZ::GetSequencePlayer(sequence, 0), player);
  project->ActivateSequence(sequence);
  EXPECT_EQ(MZ::GetSequencePlayer(sequence, 0), player);
  EXPECT_EQ(player->GetCurrentPosition(), drafts::Frame(4));
}

TEST_F(ProjectPlayers, EachSequenceHasAPlayerOfItsOwn) {
  EXPECT_NE(standalone::FindPlayer(AddOpened("A")), standalone::FindPlayer(AddOpened("B")));
}

TEST_F(ProjectPlayers, ThePlayersStationLivesAsLongAsTheSequence) {
  auto sequence = AddOpened("A");
  const auto station = standalone::FindPlayer(sequence)->GetStationID();
  project->CloseSequence(sequence);
  EXPECT_TRUE(runtime.GetStations().IsRegistered(station));
  ListenToPlayer(sequence);
  EXPECT_EQ(CountListeners(station), 1U);
  recorders.clear();
  project.reset();
  EXPECT_TRUE(runtime.GetStations().IsRegistered(station));
  sequence.Reset();
  EXPECT_FALSE(runtime.GetStations().IsRegistered(station));
}

TEST_F(ProjectPlayers, APlayerMayOutliveItsSequence) {
  auto sequence = AddOpened("A");
  const auto player = MZ::GetSequencePlayer(sequence, 0);
  ListenToPlayer(sequence);
  project.reset();
  sequence.Reset();
  TakeNotes();
  player->SetCurrentPosition(drafts::Frame(-2));
  EXPECT_EQ(player->GetCurrentPosition(), drafts::Frame(-2));
  EXPECT_EQ(TakeNotes(), (Notes{"player: kind 3"}));
}

TEST_F(ProjectPlayers, AReplacedSequenceKeepsPlayerAndPositionAndSaysNothingOfThem) {
  const auto sequence = AddOpened("A");
  const auto player = standalone::FindPlayer(sequence);
  player->SetCurrentPosition(drafts::Frame(500));
  player->Play(-1);
  ListenToPlayer(sequence);
  project->ReplaceSequence(sequence, drafts::MakeOneClip("A"));
  EXPECT_EQ(TakeNotes(), Notes());
  EXPECT_EQ(standalone::FindPlayer(sequence), player);
  EXPECT_EQ(player->GetCurrentPosition(), drafts::Frame(500));
  EXPECT_TRUE(player->IsPlaying());
}

TEST_F(ProjectPlayers, PlaybackEndsWithTheLastClipOfAnyTrackNotWithTheFiller) {
  auto draft = drafts::MakeSequence("A");
  drafts::AddClip(drafts::AddTrack(draft), "short", 0, 10);
  auto& longest = drafts::AddTrack(draft, standalone::TrackKind::kAudio);
  drafts::AddClip(longest, "long", 0, 30);
  drafts::AddGap(longest, 30, 90);
  drafts::AddClip(drafts::AddTrack(draft), "late", 12, 20);
  const auto sequence = project->AddDocument(drafts::MakeDocument(draft)).front();
  project->ActivateSequence(sequence);
  const auto player = standalone::FindPlayer(sequence);
  player->Play(1);
  player->Advance(drafts::Frame(1000));
  EXPECT_EQ(player->GetCurrentPosition(), drafts::Frame(30));
  EXPECT_FALSE(player->IsPlaying());
}

TEST_F(ProjectPlayers, PlaybackEndsWhereTheContentPublishedNowEnds) {
  const auto sequence = AddOpened("A");
  const auto player = standalone::FindPlayer(sequence);
  player->Play(1);
  auto draft = drafts::MakeSequence("A");
  drafts::AddClip(drafts::AddTrack(draft), "longer", 0, 25);
  project->ReplaceSequence(sequence, draft);
  player->Advance(drafts::Frame(1000));
  EXPECT_EQ(player->GetCurrentPosition(), drafts::Frame(25));
  project->ReplaceSequence(sequence, drafts::MakeSequence("A"));
  player->Play(1);
  player->Advance(drafts::Frame(1));
  EXPECT_EQ(player->GetCurrentPosition(), drafts::Frame(25)) << "beyond the end nothing moves";
  EXPECT_FALSE(player->IsPlaying());
}

TEST_F(ProjectPlayers, AContentPublishedBeforeTheFirstOpeningSaysWherePlaybackEnds) {
  const auto sequence = Add("A");
  project->ReplaceSequence(sequence, drafts::MakeOneClip("A"));
  project->ActivateSequence(sequence);
  const auto player = standalone::FindPlayer(sequence);
  player->Play(1);
  player->Advance(drafts::Frame(1000));
  EXPECT_EQ(player->GetCurrentPosition(), drafts::Frame(10));
}

TEST_F(ProjectPlayers, ClosingStopsPlaybackBeforeItIsAnnounced) {
  const auto sequence = AddOpened("A");
  const auto player = standalone::FindPlayer(sequence);
  player->Play(1);
  ListenToPlayer(sequence);
  project->CloseSequence(sequence);
  EXPECT_EQ(TakeNotes(), (Notes{"player: kind 2", "info: closed A", "activation: activated none"}));
  player->Play(1);
  EXPECT_FALSE(player->IsPlaying()) << "a closed sequence does not play";
  project->ActivateSequence(sequence);
  player->Play(1);
  EXPECT_TRUE(player->IsPlaying());
}

TEST_F(ProjectPlayers, ClosingASequenceThatDoesNotPlaySaysNothingOfItsPlayer) {
  const auto sequence = AddOpened("A");
  ListenToPlayer(sequence);
  project->CloseSequence(sequence);
  EXPECT_EQ(TakeNotes(), (Notes{"info: closed A", "activation: activated none"}));
}

TEST_F(ProjectPlayers, TheEndOfTheProjectStopsPlaybackFirst) {
  const auto sequence = AddOpened("A");
  const auto player = standalone::FindPlayer(sequence);
  player->Play(1);
  ListenToPlayer(sequence);
  project.reset();
  EXPECT_EQ(TakeNotes(), (Notes{"player: kind 2", "project: project closed"}));
  player->Play(1);
  EXPECT_FALSE(player->IsPlaying());
  runtime.Drain();
}

TEST_F(ProjectPlayers, AllPlaybackCanBeStopped) {
  const auto first = standalone::FindPlayer(AddOpened("A"));
  const auto second = standalone::FindPlayer(AddOpened("B"));
  first->Play(1);
  second->Play(-2);
  project->StopPlayback();
  EXPECT_FALSE(first->IsPlaying());
  EXPECT_FALSE(second->IsPlaying());
  first->Play(1);
  EXPECT_TRUE(first->IsPlaying());
}

/// Does something to the project when a message comes.
class Reacting final : public qelcore::messaging::Listener {
 public:
  explicit Reacting(std::function<void(const Message&)> react) : react(std::move(react)) {}
  void ReceiveMessage(const Message& message) override { react(message); }

 private:
  std::function<void(const Message&)> react;
};

TEST_F(ProjectPlayers, AListenerMayCloseTheSequenceThatPlays) {
  const auto sequence = AddOpened("A");
  const auto player = standalone::FindPlayer(sequence);
  ListenToPlayer(sequence);
  const auto closing = std::make_shared<Reacting>([&](const Message& message) {
    const auto& moved = dynamic_cast<const ML::PlayerPositionChangedMessage&>(message);
    if (moved.GetKind() != ML::PlayerMessageKind::kStarted) project->CloseSequence(sequence);
  });
  qelcore::messaging::AddWeakPtrListener(player->GetStationID(), closing);
  player->Play(1);
  player->Advance(drafts::Frame(3));
  EXPECT_EQ(TakeNotes(), (Notes{"player: kind 1", "player: kind 5", "player: kind 2", "info: closed A",
                                "activation: activated none"}));
  EXPECT_EQ(player->GetCurrentPosition(), drafts::Frame(3));
  EXPECT_FALSE(player->IsPlaying());
}

TEST_F(ProjectPlayers, AListenerMayCloseTheSequenceThatWasJustOpened) {
  const auto first = AddOpened("A");
  const auto second = Add("B");
  const auto closing = std::make_shared<Reacting>([&](const Message& message) {
    if (dynamic_cast<const MZ::SequenceOpenedMessage*>(&message) != nullptr) {
      project->CloseSequence(second);
    }
  });
  qelcore::messaging::AddWeakPtrListener(MZ::kStation_Info, closing);
  project->ActivateSequence(second);
  EXPECT_EQ(TakeNotes(), (Notes{"info: opened B shown", "info: closed B", "activation: activated A"}));
  EXPECT_EQ(project->GetActiveSequence(), first);
}

TEST_F(ProjectPlayers, AListenerMayActivateAgainWhatIsBeingClosed) {
  const auto sequence = AddOpened("A");
  const auto player = standalone::FindPlayer(sequence);
  const auto activating =
      std::make_shared<Reacting>([&](const Message&) { project->ActivateSequence(sequence); });
  player->Play(1);
  qelcore::messaging::AddWeakPtrListener(player->GetStationID(), activating);
  project->CloseSequence(sequence);
  EXPECT_EQ(TakeNotes(),
            (Notes{"activation: activated A", "info: closed A", "activation: activated none"}));
  player->Play(1);
  EXPECT_FALSE(player->IsPlaying());
}

TEST_F(ProjectPlayers, AListenerMayCloseOtherSequencesWhilePlaybackEnds) {
  const auto first = AddOpened("A");
  const auto second = AddOpened("B");
  standalone::FindPlayer(first)->Play(1);
  standalone::FindPlayer(second)->Play(1);
  const auto closing = std::make_shared<Reacting>([&](const Message&) {
    project->CloseSequence(first);
    project->CloseSequence(second);
  });
  qelcore::messaging::AddWeakPtrListener(standalone::FindPlayer(first)->GetStationID(), closing);
  project->StopPlayback();
  EXPECT_FALSE(standalone::FindPlayer(second)->IsPlaying());
  EXPECT_FALSE(project->GetActiveSequence());
}

}  // namespace
}  // namespace projectmodel

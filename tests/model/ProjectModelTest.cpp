#include "standalone/model/ProjectModel.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <typeinfo>
#include <vector>

#include "host/BE/Messages.h"
#include "host/ML/Player.h"
#include "host/MZ/Messages.h"
#include "host/MZ/Sequences.h"
#include "host/qelcore/Exceptions.h"
#include "model/ModelFixture.h"
#include "standalone/model/PlayerNode.h"
#include "standalone/runtime/StationRegistry.h"

namespace {

using qelcore::Ref;
using qelcore::messaging::Message;
using qelcore::messaging::StationID;

std::string NameOf(const Ref<BE::ISequence>& sequence) {
  return sequence ? std::string(sequence->GetName().View()) : "none";
}

/// Writes down what a message says, and what the active sequence was meanwhile.
std::string Describe(const Message& message) {
  if (const auto* opened = dynamic_cast<const MZ::SequenceOpenedMessage*>(&message)) {
    return "opened " + NameOf(opened->GetSequence()) + (opened->IsToBeShown() ? " shown" : "");
  }
  if (const auto* activated = dynamic_cast<const MZ::SequenceActivatedMessage*>(&message)) {
    return "activated " + NameOf(activated->GetSequence());
  }
  if (const auto* closed = dynamic_cast<const MZ::SequenceClosedMessage*>(&message)) {
    return "closed " + NameOf(closed->GetSequence());
  }
  if (const auto* changed = dynamic_cast<const BE::SequenceChangedMessage*>(&message)) {
    return "changed " + NameOf(changed->GetSequence());
  }
  if (dynamic_cast<const BE::TrackGroupChangedMessage*>(&message) != nullptr) return "tracks";
  if (dynamic_cast<const BE::ProjectClosedMessage*>(&message) != nullptr) return "project closed";
  if (const auto* moved = dynamic_cast<const ML::PlayerPositionChangedMessage*>(&message)) {
    return "kind " + std::to_string(static_cast<std::uint32_t>(moved->GetKind()));
  }
  return "?";
}

using Notes = std::vector<std::string>;

class Recorder final : public qelcore::messaging::Listener {
 public:
  Recorder(std::string station, Notes& notes) : station(std::move(station)), notes(notes) {}
  void ReceiveMessage(const Message& message) override {
    notes.push_back(station + ": " + Describe(message));
  }

 private:
  std::string station;
  Notes& notes;
};

class ProjectModelTest : public testing::Test {
 protected:
  ProjectModelTest() {
    project.emplace();
    Listen("info", MZ::kStation_Info);
    Listen("activation", MZ::kStation_SequenceActivation);
    Listen("project", StationOf<BE::INotification>(project->GetProject()));
  }

  template <typename Interface, typename Object>
  static StationID StationOf(const Ref<Object>& object) {
    return qelcore::RequireInterface<Interface>(object)->GetStationID();
  }

  void Listen(const std::string& name, const StationID& station) {
    recorders.push_back(std::make_shared<Recorder>(name, notes));
    qelcore::messaging::AddWeakPtrListener(station, recorders.back());
  }
  void ListenTo(const Ref<BE::ISequence>& sequence) {
    Listen("content", StationOf<BE::ISequenceContent>(sequence));
    Listen("groups", StationOf<BE::ISequenceTrackGroups>(sequence));
  }

  void ListenToPlayer(const Ref<BE::ISequence>& sequence) {
    Listen("player", standalone::FindPlayer(sequence)->GetStationID());
  }

  Ref<BE::ISequence> Add(std::string_view name) {
    return project->AddDocument(drafts::MakeDocument(drafts::MakeSequence(name))).front();
  }
  /// A sequence of ten frames, opened.
  Ref<BE::ISequence> AddOpened(std::string_view name) {
    const auto added = project->AddDocument(drafts::MakeDocument(drafts::MakeOneClip(name))).front();
    project->ActivateSequence(added);
    TakeNotes();
    return added;
  }
  std::size_t CountListeners(const StationID& station) {
    return runtime.GetStations().CountListeners(station);
  }
  Notes TakeNotes() { return std::exchange(notes, {}); }

  standalone::Runtime runtime;
  std::optional<standalone::ProjectModel> project;
  Notes notes;
  std::vector<std::shared_ptr<Recorder>> recorders;
};

TEST_F(ProjectModelTest, AddingADocumentOpensNothing) {
  const auto first = Add("A");
  const auto second = Add("B");
  EXPECT_EQ(TakeNotes(), Notes());
  EXPECT_EQ(project->GetSequences(), (std::vector{first, second}));
  EXPECT_FALSE(project->GetActiveSequence());
}

TEST_F(ProjectModelTest, NestedSequencesAreItemsOfTheProjectButNotListed) {
  auto document = drafts::MakeDocument({drafts::MakeSequence("A"), drafts::MakeSequence("Inner")});
  document.timelineCount = 1;
  const auto added = project->AddDocument(document);
  ASSERT_EQ(added.size(), 1U);
  EXPECT_EQ(NameOf(added[0]), "A");
  EXPECT_EQ(project->GetSequences(), added);
  ASSERT_EQ(project->GetNestedSequences().size(), 1U);
  EXPECT_EQ(NameOf(project->GetNestedSequences()[0]), "Inner");
  document.timelineCount = 7;
  EXPECT_EQ(project->AddDocument(document).size(), 2U);
}

TEST_F(ProjectModelTest, TheFirstActivationAnnouncesThatASequenceWasOpenedToBeShown) {
  const auto first = Add("A");
  project->ActivateSequence(first);
  EXPECT_EQ(TakeNotes(), (Notes{"info: opened A shown", "activation: activated A"}));
  EXPECT_EQ(MZ::GetActiveSequence(), first);
  project->ActivateSequence(first);
  EXPECT_EQ(TakeNotes(), (Notes{"activation: activated A"}));
}

TEST_F(ProjectModelTest, ASequenceIsActiveOnlyWhenItsActivationIsAnnounced) {
  class Asking final : public qelcore::messaging::Listener {
   public:
    void ReceiveMessage(const Message&) override { active.push_back(NameOf(MZ::GetActiveSequence())); }
    Notes active;
  };
  const auto first = Add("A");
  const auto second = Add("B");
  project->ActivateSequence(first);
  const auto asking = std::make_shared<Asking>();
  qelcore::messaging::AddWeakPtrListener(MZ::kStation_Info, asking);
  qelcore::messaging::AddWeakPtrListener(MZ::kStation_SequenceActivation, asking);
  project->ActivateSequence(second);
  project->CloseSequence(second);
  EXPECT_EQ(asking->active, (Notes{"A", "B", "A", "A"}));
}

TEST_F(ProjectModelTest, ClosingFallsBackToTheMostRecentlyActiveSequence) {
  const auto a = Add("A");
  const auto b = Add("B");
  const auto c = Add("C");
  for (const auto& sequence : {a, b, c, a}) project->ActivateSequence(sequence);
  TakeNotes();
  project->CloseSequence(a);
  EXPECT_EQ(TakeNotes(), (Notes{"info: closed A", "activation: activated C"}));
  project->CloseSequence(b);
  EXPECT_EQ(TakeNotes(), (Notes{"info: closed B", "activation: activated C"}));
  project->CloseSequence(c);
  EXPECT_EQ(TakeNotes(), (Notes{"info: closed C", "activation: activated none"}));
  EXPECT_FALSE(MZ::GetActiveSequence());
}

TEST_F(ProjectModelTest, ClosingASequenceThatIsNotOpenSaysNothing) {
  project->CloseSequence(Add("A"));
  EXPECT_EQ(TakeNotes(), Notes());
}

TEST_F(ProjectModelTest, AClosedSequenceIsOpenedAgainByItsActivation) {
  const auto a = Add("A");
  project->ActivateSequence(a);
  project->CloseSequence(a);
  TakeNotes();
  project->ActivateSequence(a);
  EXPECT_EQ(TakeNotes(), (Notes{"info: opened A shown", "activation: activated A"}));
}

TEST_F(ProjectModelTest, ASequenceOfAnotherProjectIsRefused) {
  const auto foreign = Add("A");
  project.reset();
  project.emplace();
  EXPECT_THROW(project->ActivateSequence(foreign), qelcore::config::qel_exception);
  EXPECT_THROW(project->ActivateSequence({}), qelcore::config::null_pointer_exception);
}

TEST_F(ProjectModelTest, AChangedContentIsAnnouncedOnTheContentStationAlone) {
  const auto sequence = Add("A");
  ListenTo(sequence);
  project->ReplaceSequence(sequence, drafts::MakeSequence("A"));
  EXPECT_EQ(TakeNotes(), (Notes{"content: changed A"}));
}

TEST_F(ProjectModelTest, AChangedNameStartOrFormatIsAnnouncedOnTheProjectsStationAfterTheContent) {
  const auto sequence = Add("A");
  ListenTo(sequence);
  auto draft = drafts::MakeSequence("B");
  project->ReplaceSequence(sequence, draft);
  EXPECT_EQ(TakeNotes(), (Notes{"content: changed B", "project: changed B"}));
  draft.zeroPoint = drafts::Frame(1);
  project->ReplaceSequence(sequence, draft);
  EXPECT_EQ(TakeNotes(), (Notes{"content: changed B", "project: changed B"}));
  draft.videoRate = qelmediatypes::FrameRate::FromRational(30, 1);
  project->ReplaceSequence(sequence, draft);
  EXPECT_EQ(TakeNotes(), (Notes{"content: changed B", "project: changed B"}));
  draft.isDropFrame = true;
  project->ReplaceSequence(sequence, draft);
  EXPECT_EQ(TakeNotes(), (Notes{"content: changed B", "project: changed B"}));
  draft.timeFormat = standalone::TimeFormat::kFrames;
  project->ReplaceSequence(sequence, draft);
  EXPECT_EQ(TakeNotes(), (Notes{"content: changed B", "project: changed B"}));
}

TEST_F(ProjectModelTest, AddedTracksAreAnnouncedOnTheTrackGroupStation) {
  const auto sequence = Add("A");
  ListenTo(sequence);
  auto draft = drafts::MakeSequence("A");
  drafts::AddTrack(draft);
  project->ReplaceSequence(sequence, draft);
  EXPECT_EQ(TakeNotes(), (Notes{"content: changed A", "groups: tracks"}));
}

TEST_F(ProjectModelTest, AReplacedSequenceKeepsItsIdentityAndItsStations) {
  const auto sequence = Add("A");
  const auto station = StationOf<BE::ISequenceContent>(sequence);
  project->ReplaceSequence(sequence, drafts::MakeSequence("B"));
  EXPECT_EQ(NameOf(project->GetSequences()[0]), "B");
  EXPECT_EQ(project->GetSequences()[0], sequence);
  EXPECT_EQ(StationOf<BE::ISequenceContent>(sequence), station);
}

TEST_F(ProjectModelTest, ContentAndTrackGroupsHaveStationsOfTheirOwn) {
  const auto first = Add("A");
  const auto second = Add("B");
  EXPECT_NE(StationOf<BE::ISequenceContent>(first), StationOf<BE::ISequenceTrackGroups>(first));
  EXPECT_NE(StationOf<BE::ISequenceContent>(first), StationOf<BE::ISequenceContent>(second));
}

TEST_F(ProjectModelTest, TheInterfacesOfASequenceLeadToEachOther) {
  const auto sequence = Add("A");
  const auto content = qelcore::RequireInterface<BE::ISequenceContent>(sequence);
  const auto groups = qelcore::RequireInterface<BE::ISequenceTrackGroups>(content);
  EXPECT_EQ(qelcore::RequireInterface<BE::ISequence>(groups), sequence);
}

TEST_F(ProjectModelTest, ASequenceKeepsAnsweringAfterItWasClosedAndItsProjectIsGone) {
  const auto sequence = Add("A");
  project->ActivateSequence(sequence);
  project->CloseSequence(sequence);
  EXPECT_NO_THROW(StationOf<BE::ISequenceContent>(sequence));
  project.reset();
  EXPECT_NO_THROW(StationOf<BE::ISequenceTrackGroups>(sequence));
  EXPECT_EQ(NameOf(sequence), "A");
}

TEST_F(ProjectModelTest, TheEndOfTheProjectIsAnnouncedOnItsStation) {
  Add("A");
  project.reset();
  EXPECT_EQ(TakeNotes(), (Notes{"project: project closed"}));
}

TEST_F(ProjectModelTest, ThereIsNoProjectBeforeOrAfterTheModel) {
  EXPECT_EQ(MZ::GetActiveProject(), project->GetProject());
  project.reset();
  EXPECT_FALSE(MZ::GetActiveProject());
  EXPECT_FALSE(MZ::GetActiveSequence());
}

TEST_F(ProjectModelTest, TheParentOfASequenceIsItsProjectForAsLongAsThatExists) {
  using MZ::SequenceUtils::GetSequenceParentProject;
  const auto sequence = Add("A");
  EXPECT_EQ(GetSequenceParentProject(sequence, true), project->GetProject());
  EXPECT_EQ(GetSequenceParentProject(sequence, false), project->GetProject());
  EXPECT_FALSE(GetSequenceParentProject({}, true));
  project.reset();
  EXPECT_FALSE(GetSequenceParentProject(sequence, true));
}

TEST_F(ProjectModelTest, TheStationsAreFreeAgainAfterTheProject) {
  project.reset();
  project.emplace();
  TakeNotes();
  Listen("info", MZ::kStation_Info);
  project->ActivateSequence(Add("A"));
  EXPECT_EQ(TakeNotes(), (Notes{"info: opened A shown"}));
}

TEST_F(ProjectModelTest, TheMessagesHaveDifferentIDs) {
  const Ref<BE::ISequence> none;
  const std::vector ids{BE::ProjectClosedMessage().GetID(),
                        BE::SequenceChangedMessage(none).GetID(),
                        BE::TrackGroupChangedMessage().GetID(),
                        MZ::SequenceOpenedMessage(none, true).GetID(),
                        MZ::SequenceActivatedMessage(none).GetID(),
                        MZ::SequenceClosedMessage(none).GetID(),
                        MZ::TrackItemActivationMessage({}).GetID(),
                        ML::PlayerPositionChangedMessage(ML::PlayerMessageKind::kStarted, {}).GetID()};
  EXPECT_EQ(std::set(ids.begin(), ids.end()).size(), ids.size());
}

template <typename Name>
qelcore::messaging::MessageID IDOf() {
  return qelcore::messaging::HashMessageTypeNameToMessageID(typeid(Name).name());
}

TEST_F(ProjectModelTest, AMessageIsKnownByTheTypeThatNamesIt) {
  const Ref<BE::ISequence> none;
  EXPECT_EQ(BE::ProjectClosedMessage().GetID(), IDOf<BE::MessageNameForProjectClosedMessage>());
  EXPECT_EQ(BE::SequenceChangedMessage(none).GetID(), IDOf<BE::MessageNameForSequenceChangedMessage>());
  EXPECT_EQ(BE::TrackGroupChangedMessage().GetID(), IDOf<BE::MessageNameForTrackGroupChangedMessage>());
  EXPECT_EQ(MZ::SequenceOpenedMessage(none, true).GetID(),
            IDOf<MZ::MessageNameForSequenceOpenedMessage>());
  EXPECT_EQ(MZ::SequenceActivatedMessage(none).GetID(),
            IDOf<MZ::MessageNameForSequenceActivatedMessage>());
  EXPECT_EQ(MZ::SequenceClosedMessage(none).GetID(), IDOf<MZ::MessageNameForSequenceClosedMessage>());
  EXPECT_EQ(MZ::TrackItemActivationMessage({}).GetID(),
            IDOf<MZ::MessageNameForTrackItemActivationMessage>());
  EXPECT_EQ(ML::PlayerPositionChangedMessage(ML::PlayerMessageKind::kStarted, {}).GetID(),
            IDOf<ML::MessageNameForPlayerPositionChangedMessage>());
}

TEST_F(ProjectModelTest, APlayerMessageCarriesKindAndPosition) {
  const ML::PlayerPositionChangedMessage message(ML::PlayerMessageKind::kPositionPlayed,
                                                 drafts::Frame(-3));
  EXPECT_EQ(message.GetKind(), ML::PlayerMessageKind::kPositionPlayed);
  EXPECT_EQ(static_cast<std::uint32_t>(message.GetKind()), 5U);
  EXPECT_EQ(static_cast<std::uint32_t>(ML::PlayerMessageKind::kPositionSet), 3U);
  EXPECT_EQ(message.GetPosition(), drafts::Frame(-3));
}

TEST_F(ProjectModelTest, AnActivationOfTrackItemsCarriesEachWithItsSequence) {
  const auto sequence = AddOpened("A");
  const auto items = CollectItems(sequence);
  ASSERT_FALSE(items.empty());
  const MZ::TrackItemActivationMessage message({{items[0], sequence}, {}});
  ASSERT_EQ(message.GetItems().size(), 2U);
  EXPECT_EQ(message.GetItems()[0].trackItem, items[0]);
  EXPECT_EQ(message.GetItems()[0].sequence, sequence);
  EXPECT_FALSE(message.GetItems()[1].trackItem);
}

TEST_F(ProjectModelTest, ASequenceHasNoPlayerBeforeItsFirstOpening) {
  const auto sequence = Add("A");
  EXPECT_FALSE(MZ::GetSequencePlayer(sequence, 0));
  EXPECT_FALSE(standalone::FindPlayer(sequence));
  project->ReplaceSequence(sequence, drafts::MakeSequence("B"));
  project->CloseSequence(sequence);
  EXPECT_FALSE(MZ::GetSequencePlayer(sequence, 0));
}

TEST_F(ProjectModelTest, APlayerIsThereWhenTheOpeningIsAnnounced) {
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

TEST_F(ProjectModelTest, ASequenceKeepsItsPlayerForLife) {
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

TEST_F(ProjectModelTest, EachSequenceHasAPlayerOfItsOwn) {
  EXPECT_NE(standalone::FindPlayer(AddOpened("A")), standalone::FindPlayer(AddOpened("B")));
}

TEST_F(ProjectModelTest, ThePlayersStationLivesAsLongAsTheSequence) {
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

TEST_F(ProjectModelTest, APlayerMayOutliveItsSequence) {
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

TEST_F(ProjectModelTest, AReplacedSequenceKeepsPlayerAndPositionAndSaysNothingOfThem) {
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

TEST_F(ProjectModelTest, PlaybackEndsWithTheLastClipOfAnyTrackNotWithTheFiller) {
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

TEST_F(ProjectModelTest, PlaybackEndsWhereTheContentPublishedNowEnds) {
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

TEST_F(ProjectModelTest, AContentPublishedBeforeTheFirstOpeningSaysWherePlaybackEnds) {
  const auto sequence = Add("A");
  project->ReplaceSequence(sequence, drafts::MakeOneClip("A"));
  project->ActivateSequence(sequence);
  const auto player = standalone::FindPlayer(sequence);
  player->Play(1);
  player->Advance(drafts::Frame(1000));
  EXPECT_EQ(player->GetCurrentPosition(), drafts::Frame(10));
}

TEST_F(ProjectModelTest, ClosingStopsPlaybackBeforeItIsAnnounced) {
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

TEST_F(ProjectModelTest, ClosingASequenceThatDoesNotPlaySaysNothingOfItsPlayer) {
  const auto sequence = AddOpened("A");
  ListenToPlayer(sequence);
  project->CloseSequence(sequence);
  EXPECT_EQ(TakeNotes(), (Notes{"info: closed A", "activation: activated none"}));
}

TEST_F(ProjectModelTest, TheEndOfTheProjectStopsPlaybackFirst) {
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

TEST_F(ProjectModelTest, AllPlaybackCanBeStopped) {
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

TEST_F(ProjectModelTest, AListenerMayCloseTheSequenceThatPlays) {
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

TEST_F(ProjectModelTest, AListenerMayCloseTheSequenceThatWasJustOpened) {
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

TEST_F(ProjectModelTest, AListenerMayActivateAgainWhatIsBeingClosed) {
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

TEST_F(ProjectModelTest, AListenerMayCloseOtherSequencesWhilePlaybackEnds) {
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

TEST(SequenceLifetime, ASequenceMayOutliveTheHost) {
  Ref<BE::ISequence> sequence;
  {
    Model model;
    sequence = model.Add(drafts::MakeSequence("A"));
  }
  EXPECT_EQ(NameOf(sequence), "A");
}

}  // namespace

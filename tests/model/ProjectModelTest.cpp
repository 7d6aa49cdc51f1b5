#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <typeinfo>
#include <vector>

#include "host/BE/Utilities.h"
#include "host/qelcore/Exceptions.h"
#include "model/ProjectModelFixture.h"

namespace projectmodel {
namespace {

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
  EXPECT_EQ(BE::SequenceUtils::GetZeroPoint(sequence), drafts::Frame(1));
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

TEST(SequenceLifetime, ASequenceMayOutliveTheHost) {
  Ref<BE::ISequence> sequence;
  {
    Model model;
    sequence = model.Add(drafts::MakeSequence("A"));
  }
  EXPECT_EQ(NameOf(sequence), "A");
}

}  // namespace
}  // namespace projectmodel

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/BE/Messages.h"
#include "host/MZ/Messages.h"
#include "host/MZ/Sequences.h"
#include "host/qelcore/Exceptions.h"
#include "standalone/model/PreparedDocument.h"
#include "standalone/model/SequenceContent.h"
#include "standalone/runtime/StationRegistry.h"
#include "support/Drafts.h"
#include "support/SteppedHost.h"

namespace standalone {
namespace {

using qelcore::Ref;
using testing::ElementsAre;
using testing::IsEmpty;
using Sequence = Ref<BE::ISequence>;
using Sequences = std::vector<Sequence>;
using Replaced = std::vector<std::optional<Sequence>>;

/// A document of timelines, and of sequences that these nest.
DocumentDraft MakeDraft(const std::vector<std::string>& timelines,
                        const std::vector<std::string>& nested = {}) {
  DocumentDraft draft;
  for (const std::string& name : timelines) draft.sequences.push_back(drafts::MakeOneClip(name));
  for (const std::string& name : nested) draft.sequences.push_back(drafts::MakeOneClip(name));
  draft.timelineCount = timelines.size();
  return draft;
}

PreparedDocument Prepare(const std::vector<std::string>& timelines,
                         const std::vector<std::string>& nested = {}) {
  return PreparedDocument(MakeDraft(timelines, nested));
}

std::vector<std::string> GetNames(const Sequences& sequences) {
  std::vector<std::string> names;
  for (const Sequence& sequence : sequences) names.emplace_back(sequence->GetName().View());
  return names;
}

class CountingListener final : public qelcore::messaging::Listener {
 public:
  void ReceiveMessage(const qelcore::messaging::Message&) override { ++count; }
  int count = 0;
};

class ReplaceDocument : public testing::Test {
 protected:
  Sequences Add(const std::vector<std::string>& timelines,
                const std::vector<std::string>& nested = {}) {
    return project.AddDocument(Prepare(timelines, nested));
  }
  static qelcore::messaging::StationID ContentStation(const Sequence& sequence) {
    return qelcore::RequireInterface<BE::ISequenceContent>(sequence)->GetStationID();
  }
  std::size_t CountListeners(const qelcore::messaging::StationID& station) {
    return host->GetRuntime().GetStations().CountListeners(station);
  }

  SteppedHost host;
  ProjectModel& project = host->GetProject();
};

TEST_F(ReplaceDocument, TimelinesKeepTheirIdentityAndStandInTheNewOrder) {
  const Sequences before = Add({"A", "B"});
  const Sequences after = project.ReplaceDocument(Replaced{before[1], before[0]}, Prepare({"B", "A2"}));
  EXPECT_THAT(after, ElementsAre(before[1], before[0]));
  EXPECT_EQ(project.GetSequences(), after);
  EXPECT_THAT(GetNames(after), ElementsAre("B", "A2"));
}

TEST_F(ReplaceDocument, EachReplacedContentIsAnnouncedToThoseThatListenToItsSequence) {
  const Sequences before = Add({"A", "B"});
  const auto listener = std::make_shared<CountingListener>();
  qelcore::messaging::AddWeakPtrListener(ContentStation(before[0]), listener);
  project.ReplaceDocument(Replaced{before[0], before[1]}, Prepare({"A", "B"}));
  EXPECT_EQ(listener->count, 1);
}

TEST_F(ReplaceDocument, ATimelineWithoutPredecessorIsAddedClosed) {
  const Sequences before = Add({"A"});
  project.ActivateSequence(before[0]);
  const Sequences after =
      project.ReplaceDocument(Replaced{before[0], std::nullopt}, Prepare({"A", "New"}));
  EXPECT_THAT(GetNames(project.GetSequences()), ElementsAre("A", "New"));
  EXPECT_EQ(project.GetActiveSequence(), before[0]);
  EXPECT_FALSE(MZ::GetSequencePlayer(after[1], 0));
}

TEST_F(ReplaceDocument, TimelinesThatAreGoneStayUntilTheyAreRemoved) {
  const Sequences before = Add({"A", "B"});
  project.ReplaceDocument(Replaced{before[0]}, Prepare({"A"}));
  EXPECT_THAT(GetNames(project.GetSequences()), ElementsAre("A", "B"));
  project.RemoveSequence(before[1]);
  EXPECT_THAT(GetNames(project.GetSequences()), ElementsAre("A"));
}

TEST_F(ReplaceDocument, WhatItNestsReplacesWhatItNestedBeforeAndNothingElse) {
  const Sequences other = Add({"Other"}, {"Other inner"});
  const Sequences before = Add({"A"}, {"Inner", "Second"});
  project.ReplaceDocument(Replaced{before[0]}, Prepare({"A"}, {"New inner"}));
  EXPECT_THAT(GetNames(project.GetNestedSequences()), ElementsAre("Other inner", "New inner"));
  EXPECT_THAT(GetNames(project.GetSequences()), ElementsAre("Other", "A"));
}

TEST_F(ReplaceDocument, WhatItNestedBeforeDiesOnThePool) {
  const Sequences before = Add({"A"}, {"Inner"});
  const auto station = ContentStation(project.GetNestedSequences().front());
  const auto listener = std::make_shared<CountingListener>();
  qelcore::messaging::AddWeakPtrListener(station, listener);
  project.ReplaceDocument(Replaced{before[0]}, Prepare({"A"}));
  EXPECT_EQ(CountListeners(station), 1U);
  host.GetPool().RunUntilEmpty();
  EXPECT_EQ(CountListeners(station), 0U);
}

TEST_F(ReplaceDocument, RemovingTheLastTimelineTakesWhatItsDocumentNestsAlong) {
  Sequences added = Add({"A", "B"}, {"Inner"});
  project.RemoveSequence(added[0]);
  EXPECT_THAT(GetNames(project.GetNestedSequences()), ElementsAre("Inner"));
  project.RemoveSequence(added[1]);
  EXPECT_THAT(project.GetNestedSequences(), IsEmpty());
  EXPECT_THAT(project.GetSequences(), IsEmpty());
}

TEST_F(ReplaceDocument, RemovingAnOpenTimelineClosesItFirst) {
  const Sequences added = Add({"A", "B"});
  project.ActivateSequence(added[0]);
  project.ActivateSequence(added[1]);
  project.RemoveSequence(added[1]);
  EXPECT_EQ(project.GetActiveSequence(), added[0]);
}

TEST_F(ReplaceDocument, OnlyTimelinesOfTheProjectCanBeRemoved) {
  const Sequences added = Add({"A"}, {"Inner"});
  EXPECT_TRUE(project.HasSequence(added[0]));
  EXPECT_FALSE(project.HasSequence(project.GetNestedSequences().front()));
  EXPECT_FALSE(project.HasSequence({}));
  project.RemoveSequence(added[0]);
  EXPECT_FALSE(project.HasSequence(added[0]));
  EXPECT_THROW(project.RemoveSequence(added[0]), qelcore::config::qel_exception);
}

class RemovingListener final : public qelcore::messaging::Listener {
 public:
  RemovingListener(ProjectModel& project, Sequence sequence)
      : project(project), sequence(std::move(sequence)) {}
  void ReceiveMessage(const qelcore::messaging::Message&) override {
    if (project.HasSequence(sequence)) project.RemoveSequence(sequence);
  }

 private:
  ProjectModel& project;
  Sequence sequence;
};

TEST_F(ReplaceDocument, WhoHearsOfANewContentMayRemoveTheOtherTimelines) {
  const Sequences before = Add({"A", "B"});
  const auto listener = std::make_shared<RemovingListener>(project, before[1]);
  qelcore::messaging::AddWeakPtrListener(ContentStation(before[0]), listener);
  project.ReplaceDocument(Replaced{before[0], before[1]}, Prepare({"A", "B"}));
  EXPECT_THAT(GetNames(project.GetSequences()), ElementsAre("A"));
}

TEST_F(ReplaceDocument, WhoHearsOfARemovalMayRemoveTheSequenceFirst) {
  const Sequences added = Add({"A"});
  project.ActivateSequence(added[0]);
  const auto listener = std::make_shared<RemovingListener>(project, added[0]);
  qelcore::messaging::AddWeakPtrListener(MZ::kStation_Info, listener);
  project.RemoveSequence(added[0]);
  EXPECT_FALSE(project.HasSequence(added[0]));
}

using PreparedDocumentTest = ReplaceDocument;

TEST_F(PreparedDocumentTest, BuildsTheSameFromADraftThatIsKeptOrUsedUp) {
  DocumentDraft draft = MakeDraft({"A", "B"}, {"Inner"});
  const PreparedDocument read(draft);
  EXPECT_EQ(draft.sequences[2].name, "Inner");
  EXPECT_EQ(draft.sequences[0].tracks.size(), 1U);
  const PreparedDocument usedUp(std::move(draft));
  for (const PreparedDocument* const prepared : {&read, &usedUp}) {
    EXPECT_EQ(prepared->CountTimelines(), 2U);
    EXPECT_EQ(prepared->GetName(1).View(), "B");
    ASSERT_EQ(prepared->GetContents().size(), 3U);
    EXPECT_EQ(prepared->GetContents()[2]->clipsEnd, drafts::Frame(10));
  }
}

TEST_F(PreparedDocumentTest, HasNoMoreTimelinesThanSequences) {
  DocumentDraft draft = MakeDraft({"A"});
  draft.timelineCount = 7;
  EXPECT_EQ(PreparedDocument(draft).CountTimelines(), 1U);
}

TEST_F(PreparedDocumentTest, NothingIsPublishedBeforeItIsAdded) {
  PreparedDocument prepared = Prepare({"A"});
  EXPECT_THAT(project.GetSequences(), IsEmpty());
  EXPECT_THAT(GetNames(project.AddDocument(std::move(prepared))), ElementsAre("A"));
}

}  // namespace
}  // namespace standalone

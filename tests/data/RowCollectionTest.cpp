#include "data/RowCollection.h"

#include <gmock/gmock.h>

#include <new>
#include <optional>
#include <string>
#include <thread>
#include <utility>

#include "standalone/model/VisitableSequence.h"
#include "support/AllocationFault.h"
#include "support/CollectedRows.h"
#include "support/Drafts.h"
#include "support/Fakes.h"
#include "support/HostCalls.h"

namespace Vantrel {
namespace {

using standalone::TrackKind;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(RowCollection, ClipsAndGapsBecomeRowsInVisitingOrder) {
  rows::Host host;
  auto draft = drafts::MakeSequence();
  auto& lower = drafts::AddTrack(draft, TrackKind::kVideo);
  drafts::AddClip(lower, "A", 0, 50);
  drafts::AddGap(lower, 50, 55);
  drafts::AddClip(lower, "B", 55, 80);
  drafts::AddClip(drafts::AddTrack(draft, TrackKind::kVideo), "C", 0, 10);
  drafts::AddClip(drafts::AddTrack(draft, TrackKind::kAudio), "D", 0, 20);
  EXPECT_THAT(rows::Names(rows::Collect(host.Add(draft))), ElementsAre("A", "Gap", "B", "C", "D"));
}

TEST(RowCollection, RowsAreAppendedToWhatTheListHolds) {
  rows::Host host;
  auto draft = drafts::MakeSequence();
  drafts::AddClip(drafts::AddTrack(draft), "A", 0, 50);
  const auto sequence = host.Add(draft);
  TrackItemDataList list = rows::Collect(sequence);
  CollectRows(sequence, {BE::kMediaType_Video}, list);
  EXPECT_THAT(rows::Names(list), ElementsAre("A", "A"));
}

TEST(RowCollection, TransitionsNeverBecomeRows) {
  rows::Host host;
  auto draft = drafts::MakeSequence();
  auto& track = drafts::AddTrack(draft);
  auto& clip = drafts::AddClip(track, "A", 0, 50);
  clip.headTransition = standalone::TransitionDraft{"Dip to Black", false};
  clip.tailTransition = standalone::TransitionDraft{"Cross Dissolve", false};
  const auto sequence = host.Add(draft);
  EXPECT_THAT(rows::Names(rows::Collect(sequence)), ElementsAre("A"));
}

TEST(RowCollection, GroupsThatAreNotAskedForContributeNothing) {
  rows::Host host;
  auto draft = drafts::MakeSequence();
  drafts::AddClip(drafts::AddTrack(draft, TrackKind::kVideo), "Picture", 0, 50);
  drafts::AddClip(drafts::AddTrack(draft, TrackKind::kAudio), "Sound", 0, 50);
  const auto sequence = host.Add(draft);
  TrackItemDataList sound;
  CollectRows(sequence, {BE::kMediaType_Audio}, sound);
  EXPECT_THAT(rows::Names(sound), ElementsAre("Sound"));
  TrackItemDataList none;
  CollectRows(sequence, {}, none);
  CollectRows(sequence, {qelcore::utility::MakeGuid(1, 2)}, none);
  EXPECT_THAT(none, IsEmpty());
}

TEST(RowCollection, AnEmptySequenceYieldsAnEmptyList) {
  rows::Host host;
  EXPECT_THAT(rows::Collect(host.Add(drafts::MakeSequence())), IsEmpty());
}

TEST(RowCollection, ATrackThatHoldsOnlyTheTrailingFillerYieldsNoRow) {
  rows::Host host;
  auto draft = drafts::MakeSequence();
  drafts::AddTrack(draft);
  EXPECT_THAT(rows::Collect(host.Add(draft)), IsEmpty());
}

TEST(RowCollection, NoSequenceYieldsNoRowAndNoError) {
  rows::Host host;
  const hostcalls::Recording recording;
  EXPECT_THAT(rows::Collect({}), IsEmpty());
  EXPECT_THAT(recording.GetCalls({"VisitSequence"}), IsEmpty());
}

TEST(RowCollection, AListStaysReadableAfterTheSequenceWasReplaced) {
  rows::Host host;
  auto draft = drafts::MakeSequence();
  auto& clip = drafts::AddClip(drafts::AddTrack(draft), "A", 0, 50);
  clip.comment = "first";
  const auto sequence = host.Add(draft);
  const auto before = rows::Collect(sequence);
  draft.tracks[0].items[0].clip->comment = "second";
  host.Replace(sequence, draft);
  const auto after = rows::Collect(sequence);
  EXPECT_THAT(rows::Texts(before, kColumnComment), ElementsAre("first"));
  EXPECT_THAT(rows::Texts(after, kColumnComment), ElementsAre("second"));
}

/// A lock left behind would keep the replacement waiting for ever.
TEST(RowCollection, TheReadLockIsGivenBackWhenTheVisitFails) {
  rows::Host host;
  auto draft = drafts::MakeSequence();
  auto& track = drafts::AddTrack(draft);
  for (int i = 0; i < 64; ++i) drafts::AddClip(track, "A", i, i + 1);
  const auto sequence = host.Add(draft);
  std::thread([&sequence] {
    TrackItemDataList list;
    {
      const AllocationFault fault(32 * sizeof(TrackItemRowData));
      EXPECT_THROW(CollectRows(sequence, {BE::kMediaType_Video}, list), std::bad_alloc);
    }
    EXPECT_FALSE(list.empty());
  }).join();
  host.Replace(sequence, drafts::MakeSequence());
  EXPECT_THAT(rows::Collect(sequence), IsEmpty());
}

TEST(RowCollection, TheReadLockIsGivenBackAfterAPass) {
  rows::Host host;
  auto draft = drafts::MakeSequence();
  drafts::AddClip(drafts::AddTrack(draft), "A", 0, 50);
  const auto sequence = host.Add(draft);
  std::thread([&sequence] { EXPECT_EQ(rows::Collect(sequence).size(), 1U); }).join();
  host.Replace(sequence, drafts::MakeSequence());
  EXPECT_THAT(rows::Collect(sequence), IsEmpty());
}

TEST(RowCollection, EverythingIsReadInOneHoldOfTheReadLock) {
  rows::Host host;
  auto draft = drafts::MakeSequence();
  auto& track = drafts::AddTrack(draft);
  drafts::AddClip(track, "A", 0, 50);
  drafts::AddClip(track, "B", 50, 80);
  const auto sequence = host.Add(draft);
  const hostcalls::Recording recording;
  rows::Collect(sequence);
  EXPECT_THAT(recording.GetCalls(),
              ElementsAre("ReadLock()", "GetSequenceParentProject(true)", "VisitSequence()",
                          "GetClipName()", "GetClipName()", "ReadUnlock()"));
}

/// Every clip of a state bears the state's name, so a mixed pass shows.
TEST(RowCollection, APassSeesOneStateOfTheModel) {
  rows::Host host;
  const auto makeState = [](int state) {
    auto draft = drafts::MakeSequence();
    auto& track = drafts::AddTrack(draft);
    for (int i = 0; i < 50; ++i) drafts::AddClip(track, std::to_string(state), i, i + 1);
    return draft;
  };
  const auto sequence = host.Add(makeState(0));
  std::thread collecting([&sequence] {
    for (int pass = 0; pass < 100; ++pass) {
      const auto names = rows::Names(rows::Collect(sequence));
      ASSERT_THAT(names, testing::Each(names.at(0)));
    }
  });
  for (int state = 1; state <= 100; ++state) host.Replace(sequence, makeState(state));
  collecting.join();
}

class SequenceVisit : public testing::Test {
 protected:
  SequenceVisit() {
    auto draft = drafts::MakeSequence();
    auto& picture = drafts::AddTrack(draft, TrackKind::kVideo);
    drafts::AddClip(picture, "A", 0, 50).tailTransition =
        standalone::TransitionDraft{"Cross Dissolve", false};
    drafts::AddGap(picture, 50, 55);
    drafts::AddClip(picture, "B", 55, 80);
    drafts::AddClip(drafts::AddTrack(draft, TrackKind::kAudio), "D", 0, 20);
    sequence = host.Add(draft);
  }

  std::vector<std::uint32_t> Visit(const TrackItemTypes& types,
                                   const TrackGroupIDs& groups = {BE::kMediaType_Video}) {
    std::vector<std::uint32_t> visited;
    VisitTrackItems(sequence, groups, types,
                    [&visited](const auto& item) { visited.push_back(item->GetType()); });
    return visited;
  }

  rows::Host host;
  qelcore::Ref<BE::ISequence> sequence;
};

TEST_F(SequenceVisit, OnlyItemsOfAcceptedTypesAreHandedOver) {
  EXPECT_THAT(Visit({BE::kTrackItemType_Clip}), ElementsAre(1, 1));
  EXPECT_THAT(Visit({BE::kTrackItemType_Transition}), ElementsAre(2));
  // The second gap is the open filler: leaving it out is the row builder's affair.
  EXPECT_THAT(Visit({BE::kTrackItemType_Empty}), ElementsAre(0, 0));
  EXPECT_THAT(Visit({}), IsEmpty());
}

TEST_F(SequenceVisit, OnlyTheGroupsAskedForAreDescendedInto) {
  EXPECT_THAT(Visit({BE::kTrackItemType_Clip}, {BE::kMediaType_Audio}), ElementsAre(1));
  EXPECT_THAT(Visit({BE::kTrackItemType_Clip}, {BE::kMediaType_Audio, BE::kMediaType_Video}),
              ElementsAre(1, 1, 1));
  EXPECT_THAT(Visit({BE::kTrackItemType_Clip}, {}), IsEmpty());
}

TEST_F(SequenceVisit, WithoutSequenceOrCallbackNothingHappens) {
  const hostcalls::Recording recording;
  int calls = 0;
  VisitTrackItems({}, {BE::kMediaType_Video}, {BE::kTrackItemType_Clip},
                  [&calls](const auto&) { ++calls; });
  EXPECT_EQ(calls, 0);
  EXPECT_NO_THROW(VisitTrackItems(sequence, {BE::kMediaType_Video}, {BE::kTrackItemType_Clip}, {}));
  EXPECT_THAT(recording.GetCalls(), IsEmpty());
}

TEST_F(SequenceVisit, AFailureOfTheCallbackReachesTheCaller) {
  EXPECT_THROW(VisitTrackItems(sequence, {BE::kMediaType_Video}, {BE::kTrackItemType_Clip},
                               [](const auto&) { throw std::bad_alloc(); }),
               std::bad_alloc);
}

class TrackGroup final : public fakes::Counted<BE::ITrackGroup> {
 public:
  explicit TrackGroup(const BE::MediaType& identifier) : identifier(identifier) {}
  void* QueryInterface(qelcore::InterfaceID id) noexcept override {
    return id == BE::ITrackGroup::kInterfaceID ? static_cast<BE::ITrackGroup*>(this) : nullptr;
  }
  BE::MediaType GetIdentifier() const override { return identifier; }

 private:
  const BE::MediaType identifier;
};

/// A sequence that shows its visitor one node and keeps the answer.
class OneNodeSequence final : public fakes::Counted<BE::ISequence>,
                              public standalone::VisitableSequence {
 public:
  explicit OneNodeSequence(qelcore::Ref<qelcore::IUnknown> node) : node(std::move(node)) {}
  void* QueryInterface(qelcore::InterfaceID id) noexcept override {
    if (id == BE::ISequence::kInterfaceID) return static_cast<BE::ISequence*>(this);
    if (id != VisitableSequence::kInterfaceID) return nullptr;
    return static_cast<VisitableSequence*>(this);
  }
  qelcore::UTF8String GetName() const override { return {}; }
  qelmediatypes::TickTime GetVideoFrameDuration() const override { return {}; }
  qelmediatypes::TickTime GetAudioFrameDuration() const override { return {}; }
  void VisitChildren(const BE::SequenceVisitor& visitor) const override { answer = visitor(*node); }

  /// Stays empty when the visitor does not go on below the sequence.
  mutable std::optional<BE::VisitorStatus> answer;

 private:
  const qelcore::Ref<qelcore::IUnknown> node;
};

class VisitorAnswers : public testing::Test {
 protected:
  std::optional<BE::VisitorStatus> AnswerTo(qelcore::IUnknown* node) {
    const qelcore::Ref sequence(new OneNodeSequence(qelcore::Ref(node)));
    VisitTrackItems(qelcore::Ref<BE::ISequence>(sequence), {BE::kMediaType_Video},
                    {BE::kTrackItemType_Clip}, [this](const auto&) { ++calls; });
    return sequence->answer;
  }
  int calls = 0;
};

TEST_F(VisitorAnswers, ATrackItemIsNotDescendedIntoWhetherAcceptedOrNot) {
  const qelcore::Ref item(new fakes::TrackItem);
  item->type = BE::kTrackItemType_Clip;
  EXPECT_EQ(AnswerTo(item.Get()), BE::VisitorStatus::kDoNotDescend);
  EXPECT_EQ(calls, 1);
  item->type = BE::kTrackItemType_Transition;
  EXPECT_EQ(AnswerTo(item.Get()), BE::VisitorStatus::kDoNotDescend);
  EXPECT_EQ(calls, 1);
}

TEST_F(VisitorAnswers, ATrackGroupIsDescendedIntoOnlyWhenAskedFor) {
  EXPECT_EQ(AnswerTo(new TrackGroup(BE::kMediaType_Video)), BE::VisitorStatus::kContinue);
  EXPECT_EQ(AnswerTo(new TrackGroup(BE::kMediaType_Audio)), BE::VisitorStatus::kDoNotDescend);
}

TEST_F(VisitorAnswers, AnyOtherNodeIsDescendedInto) {
  EXPECT_EQ(AnswerTo(new fakes::Track(true)), BE::VisitorStatus::kContinue);
  EXPECT_EQ(AnswerTo(new fakes::Nothing), BE::VisitorStatus::kContinue);
  EXPECT_EQ(calls, 0);
}

}  // namespace
}  // namespace Vantrel

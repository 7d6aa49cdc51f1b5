#include "standalone/timeline/TimelineSelection.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "standalone/timeline/TimelineContent.h"
#include "support/Drafts.h"
#include "support/SteppedHost.h"

namespace standalone {
namespace {

using drafts::Frame;
using testing::ElementsAre;
using testing::IsEmpty;
using Item = TimelineSelection::Item;
using Sequence = qelcore::Ref<BE::ISequence>;

class TimelineSelectionTest : public testing::Test {
 protected:
  /// A sequence of three clips of ten frames each.
  static Sequence MakeThreeClips() {
    auto draft = drafts::MakeSequence("Cut");
    auto& track = drafts::AddTrack(draft);
    for (int i = 0; i < 3; ++i) drafts::AddClip(track, "Clip", i * 10, i * 10 + 10);
    return AddSequence(std::move(draft));
  }
  static Item GetItem(const Sequence& sequence, int number) {
    return TimelineContent(sequence).FindItemAt(0, Frame(number * 10))->trackItem;
  }
  bool Activate(std::vector<MZ::ActivatedTrackItem> items) {
    return selection.Activate(MZ::TrackItemActivationMessage(std::move(items)), sequence);
  }

  SteppedHost host;
  const Sequence sequence = MakeThreeClips();
  const Item a = GetItem(sequence, 0);
  const Item b = GetItem(sequence, 1);
  const Item c = GetItem(sequence, 2);
  TimelineSelection selection;
};

TEST_F(TimelineSelectionTest, SelectingTakesThePlaceOfWhatWasSelected) {
  selection.Select(a);
  selection.Select(b);
  EXPECT_THAT(selection.GetItems(), ElementsAre(b));
  EXPECT_TRUE(selection.Contains(b));
  EXPECT_FALSE(selection.Contains(a));
  EXPECT_EQ(selection.Count(), 1U);
}

TEST_F(TimelineSelectionTest, TogglingAddsAnItemOrTakesItOut) {
  selection.Toggle(a);
  selection.Toggle(b);
  EXPECT_THAT(selection.GetItems(), ElementsAre(a, b));
  selection.Toggle(a);
  EXPECT_THAT(selection.GetItems(), ElementsAre(b));
  EXPECT_FALSE(selection.Contains(a));
}

TEST_F(TimelineSelectionTest, NoItemIsNeverSelected) {
  selection.Toggle({});
  EXPECT_EQ(selection.Count(), 0U);
  selection.Select(a);
  selection.Select({});
  EXPECT_EQ(selection.Count(), 0U);
}

TEST_F(TimelineSelectionTest, ClearedItHoldsNothing) {
  selection.Select(a);
  selection.Clear();
  EXPECT_EQ(selection.Count(), 0U);
  EXPECT_FALSE(selection.Contains(a));
}

TEST_F(TimelineSelectionTest, AnActivationSelectsItsItemsOnceAndNoOthers) {
  selection.Select(c);
  EXPECT_TRUE(Activate({{a, sequence}, {b, sequence}, {a, sequence}}));
  EXPECT_THAT(selection.GetItems(), ElementsAre(a, b));
}

TEST_F(TimelineSelectionTest, AnActivationOfNothingDeselects) {
  selection.Select(a);
  EXPECT_TRUE(Activate({}));
  EXPECT_THAT(selection.GetItems(), IsEmpty());
}

TEST_F(TimelineSelectionTest, AnActivationForAnotherSequenceChangesNothing) {
  selection.Select(a);
  const Sequence other = MakeThreeClips();
  EXPECT_FALSE(Activate({{GetItem(other, 0), other}}));
  EXPECT_FALSE(Activate({{Item(), sequence}}));
  EXPECT_THAT(selection.GetItems(), ElementsAre(a));
  EXPECT_TRUE(Activate({{GetItem(other, 0), other}, {b, sequence}}));
  EXPECT_THAT(selection.GetItems(), ElementsAre(b));
}

TEST_F(TimelineSelectionTest, AnItemThatLeftItsSequenceIsToldFromTheNewOnes) {
  selection.Select(a);
  host->GetProject().ReplaceSequence(sequence, drafts::MakeOneClip("New"));
  host.Settle();
  EXPECT_TRUE(selection.Contains(a));
  EXPECT_FALSE(selection.Contains(GetItem(sequence, 0)));
}

}  // namespace
}  // namespace standalone

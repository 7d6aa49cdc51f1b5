#include "data/FilterGroups.h"

#include <gmock/gmock.h>

#include <functional>
#include <utility>

#include "support/CollectedRows.h"
#include "support/Drafts.h"

namespace Vantrel {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

bool Yes(const TrackItemRowData&) {
  return true;
}
bool No(const TrackItemRowData&) {
  return false;
}

FilterGroup All(std::vector<FilterPredicate> predicates) {
  return {std::move(predicates), kFilterGroupKind_All};
}
FilterGroup Any(std::vector<FilterPredicate> predicates) {
  return {std::move(predicates), kFilterGroupKind_Any};
}

FilterPredicate IsNamed(std::string name) {
  return [name = std::move(name)](const TrackItemRowData& row) { return row.name == name; };
}

/// A, a gap, B.
class FilteredRows : public testing::Test {
 protected:
  FilteredRows() {
    auto draft = drafts::MakeSequence();
    auto& track = drafts::AddTrack(draft);
    drafts::AddClip(track, "A", 0, 50);
    drafts::AddGap(track, 50, 55);
    drafts::AddClip(track, "B", 55, 80);
    list = rows::Collect(host.Add(draft));
    rows::Number(list);
  }

  std::vector<std::string> Filter(const std::vector<FilterGroup>& groups, bool isKeepingGaps = false) {
    return rows::Names(*FilterTrackItemDataList(list, groups, isKeepingGaps));
  }

  rows::Host host;
  TrackItemDataList list;
};

TEST_F(FilteredRows, WithoutGroupsEveryRowButTheGapsIsKept) {
  EXPECT_THAT(Filter({}, false), ElementsAre("A", "B"));
  EXPECT_THAT(Filter({}, true), ElementsAre("A", "Gap", "B"));
}

TEST_F(FilteredRows, AGroupOfKindAllWantsEveryPredicate) {
  EXPECT_THAT(Filter({All({Yes, IsNamed("A")})}), ElementsAre("A"));
  EXPECT_THAT(Filter({All({Yes, No})}), IsEmpty());
  EXPECT_THAT(Filter({All({})}), ElementsAre("A", "B"));
}

TEST_F(FilteredRows, AGroupOfAnyOtherKindWantsOnePredicate) {
  for (const std::uint32_t kind : {1U, 2U, 0xFFFFFFFFU}) {
    EXPECT_THAT(Filter({FilterGroup{{No, IsNamed("A")}, kind}}), ElementsAre("A")) << kind;
    EXPECT_THAT(Filter({FilterGroup{{No, No}, kind}}), IsEmpty()) << kind;
    EXPECT_THAT(Filter({FilterGroup{{}, kind}}), IsEmpty()) << kind;
  }
}

TEST_F(FilteredRows, EveryGroupMustPass) {
  EXPECT_THAT(Filter({Any({IsNamed("A"), IsNamed("B")}), Any({IsNamed("B")})}), ElementsAre("B"));
}

TEST_F(FilteredRows, TheFirstGroupThatFailsEndsTheEvaluation) {
  int calls = 0;
  const FilterPredicate counting = [&calls](const TrackItemRowData&) { return ++calls > 0; };
  EXPECT_THAT(Filter({All({IsNamed("B")}), All({counting})}), ElementsAre("B"));
  EXPECT_EQ(calls, 1);
}

TEST_F(FilteredRows, GapsDoNotMeetTheGroups) {
  int calls = 0;
  const FilterPredicate counting = [&calls](const TrackItemRowData&) { return ++calls < 0; };
  EXPECT_THAT(Filter({All({counting})}, true), ElementsAre("Gap"));
  EXPECT_EQ(calls, 2);
  EXPECT_THAT(Filter({All({IsNamed("Gap")})}, false), IsEmpty());
}

TEST_F(FilteredRows, ARowWithoutTrackItemIsNoGap) {
  list[1].trackItem.Reset();
  EXPECT_THAT(Filter({}, false), ElementsAre("A", "Gap", "B"));
  EXPECT_THAT(Filter({All({IsNamed("A")})}, true), ElementsAre("A"));
}

TEST_F(FilteredRows, KeptRowsAreUnchangedAndTheInputIsUntouched) {
  list[2].startFlagged = true;
  list[2].endFlagged = true;
  const auto kept = FilterTrackItemDataList(list, {All({IsNamed("B")})}, false);
  ASSERT_EQ(kept->size(), 1U);
  EXPECT_EQ(kept->front().index, 2U);
  EXPECT_TRUE(kept->front().startFlagged);
  EXPECT_TRUE(kept->front().endFlagged);
  EXPECT_EQ(kept->front().trackItem, list[2].trackItem);
  EXPECT_THAT(rows::Names(list), ElementsAre("A", "Gap", "B"));
  EXPECT_EQ(list[2].index, 2U);
}

TEST_F(FilteredRows, TheInputOrderIsKept) {
  std::swap(list[0], list[2]);
  EXPECT_THAT(Filter({}, true), ElementsAre("B", "Gap", "A"));
}

TEST_F(FilteredRows, AnEmptyListGivesAnEmptyListNotNone) {
  list.clear();
  EXPECT_THAT(*FilterTrackItemDataList(list, {All({Yes})}, true), IsEmpty());
}

TEST_F(FilteredRows, AnEmptyPredicateRaisesBadFunctionCall) {
  EXPECT_THROW(Filter({All({FilterPredicate()})}), std::bad_function_call);
  EXPECT_THROW(Filter({Any({FilterPredicate()})}), std::bad_function_call);
}

}  // namespace
}  // namespace Vantrel

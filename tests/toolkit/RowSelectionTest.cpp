#include "standalone/toolkit/RowSelection.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>
#include <set>
#include <vector>

namespace {

using standalone::RowSelection;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(RowSelectionTest, BeginsEmpty) {
  const RowSelection selection;
  EXPECT_EQ(selection.Count(), 0U);
  EXPECT_FALSE(selection.Contains(0));
  EXPECT_FALSE(selection.Contains(1'000'000'000));
  EXPECT_THAT(selection.GetPositions(), IsEmpty());
}

TEST(RowSelectionTest, AnswersItsPositionsAscendingWhateverTheOrderAdded) {
  RowSelection selection;
  for (const std::size_t position : {700U, 3U, 64U, 63U}) EXPECT_TRUE(selection.Add(position));
  EXPECT_THAT(selection.GetPositions(), ElementsAre(3, 63, 64, 700));
}

TEST(RowSelectionTest, TellsWhetherAnOperationChangedIt) {
  RowSelection selection;
  EXPECT_TRUE(selection.Add(5));
  EXPECT_FALSE(selection.Add(5));
  EXPECT_FALSE(selection.Remove(4));
  EXPECT_FALSE(selection.Remove(5000));
  EXPECT_FALSE(selection.AddRange(5, 6));
  EXPECT_TRUE(selection.AddRange(5, 7));
  EXPECT_TRUE(selection.Remove(5));
  EXPECT_FALSE(selection.Remove(5));
  EXPECT_TRUE(selection.Clear());
  EXPECT_FALSE(selection.Clear());
}

TEST(RowSelectionTest, ARangeEndsBeforeItsEnd) {
  RowSelection selection;
  EXPECT_TRUE(selection.AddRange(62, 66));
  EXPECT_THAT(selection.GetPositions(), ElementsAre(62, 63, 64, 65));
  EXPECT_FALSE(selection.AddRange(100, 100));
  EXPECT_FALSE(selection.AddRange(9, 3));
  EXPECT_EQ(selection.Count(), 4U);
}

TEST(RowSelectionTest, ARangeOfWholeWordsEndsAtTheirEdge) {
  RowSelection selection;
  EXPECT_TRUE(selection.AddRange(64, 128));
  EXPECT_EQ(selection.Count(), 64U);
  EXPECT_FALSE(selection.Contains(63));
  EXPECT_TRUE(selection.Contains(64));
  EXPECT_TRUE(selection.Contains(127));
  EXPECT_FALSE(selection.Contains(128));
}

TEST(RowSelectionTest, AllOfABigTableIsCounted) {
  RowSelection selection;
  EXPECT_TRUE(selection.AddRange(0, 10'000'000));
  EXPECT_EQ(selection.Count(), 10'000'000U);
  EXPECT_TRUE(selection.Remove(5'000'000));
  EXPECT_EQ(selection.Count(), 9'999'999U);
}

TEST(RowSelectionTest, IsEqualToOneOfTheSamePositionsHoweverItCameToThem) {
  RowSelection far;
  far.Add(3);
  far.Add(1'000'000);
  far.Remove(1'000'000);
  RowSelection near;
  near.Add(3);
  EXPECT_EQ(far, near);
  far.Add(4);
  EXPECT_NE(far, near);
  far.Clear();
  EXPECT_EQ(far, RowSelection());
}

TEST(RowSelectionTest, IsReusedAfterClearing) {
  RowSelection selection;
  selection.AddRange(0, 1000);
  selection.Clear();
  EXPECT_FALSE(selection.Contains(500));
  selection.Add(999);
  EXPECT_THAT(selection.GetPositions(), ElementsAre(999));
}

class RowSelectionAndSet : public testing::TestWithParam<unsigned> {
 protected:
  std::size_t MakePosition() { return random() % (random() % 2 == 0 ? 130 : 2000); }

  bool AddRangeToSet(std::size_t first, std::size_t end) {
    const std::size_t before = model.size();
    for (std::size_t position = first; position < end; ++position) model.insert(position);
    return model.size() != before;
  }

  void DoStep() {
    const std::size_t position = MakePosition();
    const std::size_t end = position + random() % 200;
    switch (random() % 10) {
      case 0:
        ASSERT_EQ(selection.AddRange(position, end), AddRangeToSet(position, end));
        return;
      case 1:
        if (random() % 8 != 0) return;
        ASSERT_EQ(selection.Clear(), !model.empty());
        model.clear();
        return;
      case 2:
      case 3:
      case 4:
      case 5:
        ASSERT_EQ(selection.Remove(position), model.erase(position) != 0);
        return;
      default:
        ASSERT_EQ(selection.Add(position), model.insert(position).second);
    }
  }

  std::mt19937 random{GetParam()};
  RowSelection selection;
  std::set<std::size_t> model;
};

TEST_P(RowSelectionAndSet, Agree) {
  for (int step = 0; step < 2000; ++step) {
    ASSERT_NO_FATAL_FAILURE(DoStep()) << "step " << step;
    ASSERT_EQ(selection.Count(), model.size()) << "step " << step;
    const std::size_t position = MakePosition();
    ASSERT_EQ(selection.Contains(position), model.contains(position)) << "step " << step;
    if (step % 20 != 0) continue;
    ASSERT_EQ(selection.GetPositions(), std::vector(model.begin(), model.end())) << "step " << step;
    RowSelection again;
    for (const std::size_t selected : model) again.Add(selected);
    ASSERT_EQ(selection, again) << "step " << step;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RowSelectionAndSet, testing::Range(0U, 10U));

}  // namespace

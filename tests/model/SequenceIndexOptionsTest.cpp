#include "host/MZ/SequenceIndexOptions.h"

#include <gtest/gtest.h>

namespace {

using MZ::SequenceIndex::Options;

TEST(SequenceIndexOptions, ByDefaultEveryFilterIsListedAndNoneIsSelected) {
  const Options options;
  EXPECT_EQ(options.filterToggles.size(), 14U);
  for (const std::uint32_t id : {0U, 1U, 2U, 3U, 4U, 5U, 6U, 7U, 8U, 9U, 10U, 11U, 12U, 14U}) {
    const auto toggle = options.filterToggles.find(id);
    ASSERT_NE(toggle, options.filterToggles.end()) << id;
    EXPECT_FALSE(toggle->second) << id;
  }
}

TEST(SequenceIndexOptions, TheOtherDefaultsAreAllOfTheFiltersAndFiveFrames) {
  const Options options;
  EXPECT_EQ(options.matchMode, 0U);
  EXPECT_FALSE(options.isKeepingGaps);
  EXPECT_EQ(options.shortGapThreshold, 5);
  EXPECT_TRUE(options.labelColors.empty());
}

TEST(SequenceIndexOptions, DifferInAnyOfTheirFields) {
  const Options plain;
  Options other;
  EXPECT_EQ(other, plain);
  other.matchMode = 1;
  EXPECT_NE(other, plain);
  other = Options();
  other.filterToggles[14] = true;
  EXPECT_NE(other, plain);
  other = Options();
  other.isKeepingGaps = true;
  EXPECT_NE(other, plain);
  other = Options();
  other.shortGapThreshold = 0;
  EXPECT_NE(other, plain);
  other = Options();
  other.labelColors.push_back({1, 2, 3, 255});
  EXPECT_NE(other, plain);
}

}  // namespace

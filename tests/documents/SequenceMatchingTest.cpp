#include "standalone/documents/SequenceMatching.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace standalone {
namespace {

using testing::ElementsAre;
using testing::Optional;

constexpr auto kNew = std::nullopt;

TEST(SequenceMatching, ASequenceGoesOnFromTheOneOfItsName) {
  EXPECT_THAT(MatchSequences({"A", "B"}, {"B", "A"}), ElementsAre(Optional(1U), Optional(0U)));
}

TEST(SequenceMatching, ARenamedOneGoesOnFromTheOneWhoseNameIsGone) {
  EXPECT_THAT(MatchSequences({"A", "B", "C"}, {"A", "X", "C"}),
              ElementsAre(Optional(0U), Optional(1U), Optional(2U)));
}

TEST(SequenceMatching, FurtherOnesAreNew) {
  EXPECT_THAT(MatchSequences({"A"}, {"A", "B"}), ElementsAre(Optional(0U), kNew));
  EXPECT_THAT(MatchSequences({}, {"A"}), ElementsAre(kNew));
}

TEST(SequenceMatching, EqualNamesKeepTheirOrderAndNoneIsGivenTwice) {
  EXPECT_THAT(MatchSequences({"A", "A"}, {"A", "A", "A"}),
              ElementsAre(Optional(0U), Optional(1U), kNew));
  EXPECT_THAT(MatchSequences({"A", "A"}, {"A"}), ElementsAre(Optional(0U)));
}

}  // namespace
}  // namespace standalone

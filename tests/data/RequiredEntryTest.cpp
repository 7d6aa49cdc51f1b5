#include "data/RequiredEntry.h"

#include <gtest/gtest.h>

#include <string>
#include <unordered_map>

namespace Vantrel {
namespace {

const std::unordered_map<int, std::string> kNames{{1, "one"}};

TEST(RequiredEntry, IsTheValueOfItsKey) {
  EXPECT_EQ(&RequireEntry(kNames, 1), &kNames.at(1));
}

TEST(RequiredEntry, RaisesTheHostsTextForAKeyThatIsNotThere) {
  try {
    RequireEntry(kNames, 13);
    ADD_FAILURE();
  } catch (const std::out_of_range& failure) {
    EXPECT_STREQ(failure.what(), "invalid unordered_map<K, T> key");
  }
}

}  // namespace
}  // namespace Vantrel

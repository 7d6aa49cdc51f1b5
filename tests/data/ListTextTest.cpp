#include "data/ListText.h"

#include <gtest/gtest.h>

namespace Vantrel {
namespace {

NameList Names(std::initializer_list<std::string_view> names) {
  return NameList(names.begin(), names.end());
}

TEST(ListText, EveryNameIsFollowedByTheSeparator) {
  EXPECT_EQ(MakeListText(Names({"Blur", "Crop"})), "Blur; Crop; ");
}

TEST(ListText, NoNamesMakeAnEmptyText) {
  EXPECT_TRUE(MakeListText({}).empty());
}

TEST(ListText, NamesAreNeitherTrimmedNorSorted) {
  EXPECT_EQ(MakeListText(Names({" b ", "", "a; "})), " b ; ; a; ; ");
}

}  // namespace
}  // namespace Vantrel

#include "standalone/model/Boxed.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace standalone {
namespace {

struct Pair {
  std::string name;
  int number = 0;
};

TEST(Boxed, IsMissingAtFirstAndTakesOnePointer) {
  const Boxed<Pair> none;
  EXPECT_FALSE(none);
  EXPECT_FALSE(none.has_value());
  static_assert(sizeof(Boxed<Pair>) == sizeof(void*));
  static_assert(std::is_nothrow_move_constructible_v<Boxed<Pair>>, "lists of them grow by moving");
}

TEST(Boxed, TakesAValueAndGivesItUp) {
  Boxed<Pair> box = Pair{"a", 1};
  EXPECT_EQ(box->name, "a");
  box = {"b", 2};
  EXPECT_EQ((*box).number, 2);
  box = Pair{"c", 3};
  EXPECT_EQ(box->name, "c");
  box.emplace().name = "d";
  EXPECT_EQ(box->number, 0);
  box.reset();
  EXPECT_FALSE(box);
  box = Pair();
  box = {};
  EXPECT_FALSE(box);
}

TEST(Boxed, IsCopiedAsAValue) {
  Boxed<Pair> box = Pair{"a", 1};
  Boxed<Pair> copy = box;
  copy->name = "b";
  EXPECT_EQ(box->name, "a");
  box = copy;
  copy->name = "c";
  EXPECT_EQ(box->name, "b");
  const Boxed<Pair>& itself = box;
  box = itself;
  EXPECT_EQ(box->name, "b");
  box = Boxed<Pair>();
  copy = box;
  EXPECT_FALSE(copy);
}

TEST(Boxed, LeavesNothingBehindWhenItIsMoved) {
  Boxed<Pair> box = Pair{"a", 1};
  const Boxed<Pair> moved = std::exchange(box, {});
  EXPECT_EQ(moved->name, "a");
  EXPECT_FALSE(box);
  std::vector<Boxed<Pair>> list(3);
  list[2] = {"c", 3};
  list.erase(list.begin());
  EXPECT_EQ(list[1]->name, "c");
}

}  // namespace
}  // namespace standalone

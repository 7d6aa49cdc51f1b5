#include "standalone/model/NodeStore.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

struct Counted {
  explicit Counted(std::size_t number, int& alive) : number(number), alive(alive) { ++alive; }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;
  ~Counted() { --alive; }
  std::size_t number;
  int& alive;
};

TEST(NodeStore, ObjectsKeepTheirPlaceWhileItGrowsAndDieWithIt) {
  int alive = 0;
  {
    standalone::NodeStore<Counted> store;
    Counted* const first = &store.Add(0U, alive);
    for (std::size_t i = 1; i < 1000; ++i) store.Add(i, alive);
    EXPECT_EQ(store.Size(), 1000U);
    EXPECT_EQ(&store[0], first);
    for (std::size_t i = 0; i < 1000; ++i) ASSERT_EQ(store[i].number, i);
    EXPECT_EQ(alive, 1000);
  }
  EXPECT_EQ(alive, 0);
}

}  // namespace

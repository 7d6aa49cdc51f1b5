#include "standalone/model/FlatTable.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace standalone {
namespace {

TEST(FlatTables, FindWhatWasAddedHoweverManyThereAre) {
  FlatTable<std::uint64_t> table;
  constexpr std::uint64_t kCount = 10'000;
  for (std::uint64_t i = 0; i < kCount; ++i) table.Add(i * 31, i);
  for (std::uint64_t i = 0; i < kCount; ++i) {
    const auto* const found = table.Find(i * 31, [i](std::uint64_t value) { return value == i; });
    ASSERT_NE(found, nullptr) << i;
    EXPECT_EQ(*found, i);
  }
}

TEST(FlatTables, TellValuesOfOneHashApart) {
  FlatTable<int> table;
  for (int i = 0; i < 100; ++i) table.Add(7, i);
  for (int i = 0; i < 100; ++i) {
    EXPECT_NE(table.Find(7, [i](int value) { return value == i; }), nullptr) << i;
  }
  EXPECT_EQ(table.Find(7, [](int value) { return value == 100; }), nullptr);
}

TEST(FlatTables, FindNothingInAnEmptyOne) {
  FlatTable<int> table;
  EXPECT_EQ(table.Find(0, [](int) { return true; }), nullptr);
}

TEST(FlatTables, KeepAValueWhoseHashIsZero) {
  FlatTable<int> table;
  table.Add(0, 5);
  EXPECT_NE(table.Find(0, [](int value) { return value == 5; }), nullptr);
}

}  // namespace
}  // namespace standalone

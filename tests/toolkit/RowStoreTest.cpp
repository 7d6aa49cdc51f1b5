#include "standalone/toolkit/RowStore.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <set>

#include "host/qelcore/Exceptions.h"

namespace {

using standalone::RowStore;

constexpr std::size_t kSeveralChunks = 200'000;

TEST(RowStore, FindsEachRowByPositionAndEachPositionByRow) {
  RowStore rows;
  for (std::size_t i = 0; i < kSeveralChunks; ++i) {
    const RowStore::Row* const row = rows.Append();
    ASSERT_EQ(rows.IndexOf(row), i);
  }
  for (std::size_t i = 0; i < kSeveralChunks; ++i) ASSERT_EQ(rows.IndexOf(rows.At(i)), i);
}

TEST(RowStore, RowsKeepTheirAddressesWhileOthersAreAppended) {
  RowStore rows;
  const RowStore::Row* const first = rows.Append();
  for (std::size_t i = 1; i < kSeveralChunks; ++i) rows.Append();
  EXPECT_EQ(rows.At(0), first);
}

TEST(RowStore, EveryRowHasAnAddressOfItsOwn) {
  RowStore rows;
  std::set<const RowStore::Row*> addresses;
  for (std::size_t i = 0; i < kSeveralChunks; ++i) addresses.insert(rows.Append());
  EXPECT_EQ(addresses.size(), kSeveralChunks);
}

TEST(RowStore, HasNoRowBeyondTheLast) {
  RowStore rows;
  EXPECT_EQ(rows.At(0), nullptr);
  rows.Append();
  EXPECT_EQ(rows.At(1), nullptr);
  EXPECT_EQ(rows.At(static_cast<std::size_t>(-1)), nullptr);
}

TEST(RowStore, IsEmptyAfterClearAndFillsAnew) {
  RowStore rows;
  for (int i = 0; i < 3; ++i) rows.Append();
  rows.Clear();
  EXPECT_EQ(rows.Count(), 0u);
  EXPECT_EQ(rows.At(0), nullptr);
  EXPECT_EQ(rows.IndexOf(rows.Append()), 0u);
}

TEST(RowStore, RefusesTheRowOfAnotherStore) {
  RowStore rows;
  RowStore others;
  rows.Append();
  EXPECT_THROW(rows.IndexOf(others.Append()), qelcore::config::qel_exception);
}

TEST(RowStore, RefusesNoRow) {
  const RowStore rows;
  EXPECT_THROW(rows.IndexOf(rows.At(0)), qelcore::config::qel_exception);
}

TEST(RowStore, RefusesARowThatWasCleared) {
  RowStore rows;
  const RowStore::Row* const row = rows.Append();
  rows.Clear();
  EXPECT_THROW(rows.IndexOf(row), qelcore::config::qel_exception);
}

}  // namespace

#include "export/AppendRows.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <thread>
#include <vector>

#include "export/ExpectedLines.h"
#include "export/RowBlocks.h"
#include "host/BE/Utilities.h"
#include "host/qelcore/Exceptions.h"
#include "host/qelcore/UTF8StringStream.h"
#include "support/CollectedRows.h"

namespace Vantrel {
namespace {

TEST(AppendRows, ALongListIsWrittenByTwoThreadsAsByOneRowAfterRow) {
  rows::Host host;
  const auto sequence = host.Add(MakeRepeatingSequence());
  auto list = rows::Collect(sequence);
  rows::Number(list);
  ASSERT_GT(list.size(), 5000U);
  const auto zeroPoint = BE::SequenceUtils::GetZeroPoint(sequence);
  const auto columns = AllColumns();
  const std::string expected = LinesOf(list, columns, zeroPoint);
  // The threads share the blocks in another way each time.
  for (int i = 0; i < 5; ++i) {
    qelcore::oUTF8StringStream stream;
    stream << "before\n";
    AppendRows(stream, columns, list, zeroPoint);
    EXPECT_TRUE(stream.str() == "before\n" + expected) << i;
  }
}

TEST(AppendRows, NoRowsAreNoLines) {
  const auto columns = AllColumns();
  qelcore::oUTF8StringStream stream;
  AppendRows(stream, columns, {}, {});
  EXPECT_EQ(stream.str(), "");
}

/// The first row is written by the calling thread, the last by the other one.
TEST(AppendRows, AFailureOfEitherThreadReachesTheCaller) {
  rows::Host host;
  const auto list = rows::Collect(host.Add(MakeRepeatingSequence()));
  const std::vector<ColumnID> columns = {kColumnComment};
  for (const std::size_t failing : {std::size_t{0}, list.size() - 1}) {
    auto rows = list;
    rows[failing].trackItem.Reset();
    qelcore::oUTF8StringStream stream;
    EXPECT_THROW(AppendRows(stream, columns, rows, {}), qelcore::config::null_pointer_exception)
        << failing;
  }
}

std::size_t IndexOf(const RowBlocks::Rows& block, const std::vector<TrackItemRowData>& list) {
  return static_cast<std::size_t>(block.data() - list.data());
}

TEST(RowBlocks, GoFromTheTopAndFromTheBottomUntilTheyMeet) {
  constexpr std::size_t kSize = RowBlocks::kRowsOfBlock;
  const std::vector<TrackItemRowData> list(3 * kSize + 1);
  RowBlocks blocks(list);
  const auto last = blocks.TakeFromBottom();
  EXPECT_EQ(IndexOf(last, list), 3 * kSize);
  EXPECT_EQ(last.size(), 1U);
  const auto first = blocks.TakeFromTop();
  EXPECT_EQ(IndexOf(first, list), 0U);
  EXPECT_EQ(first.size(), kSize);
  EXPECT_EQ(IndexOf(blocks.TakeFromBottom(), list), 2 * kSize);
  EXPECT_EQ(IndexOf(blocks.TakeFromBottom(), list), kSize);
  EXPECT_TRUE(blocks.TakeFromTop().empty());
  EXPECT_TRUE(blocks.TakeFromBottom().empty());
}

TEST(RowBlocks, AreTakenOnceEachByTwoThreads) {
  const std::vector<TrackItemRowData> list(100 * RowBlocks::kRowsOfBlock - 7);
  for (int i = 0; i < 20; ++i) {
    RowBlocks blocks(list);
    std::size_t lower = 0;
    std::thread other([&] {
      for (auto rows = blocks.TakeFromBottom(); !rows.empty(); rows = blocks.TakeFromBottom()) {
        lower += rows.size();
      }
    });
    std::size_t upper = 0;
    for (auto rows = blocks.TakeFromTop(); !rows.empty(); rows = blocks.TakeFromTop()) {
      upper += rows.size();
    }
    other.join();
    EXPECT_EQ(upper + lower, list.size());
  }
}

TEST(RowBlocks, OfNoRowsAreNone) {
  RowBlocks blocks({});
  EXPECT_TRUE(blocks.TakeFromTop().empty());
}

}  // namespace
}  // namespace Vantrel

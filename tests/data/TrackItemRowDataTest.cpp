#include "data/TrackItemRowData.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <type_traits>

namespace Vantrel {
namespace {

TEST(TrackItemRowData, ANewRowIsUnnumberedUnmarkedAndEmpty) {
  const TrackItemRowData row;
  EXPECT_FALSE(row.trackItem);
  EXPECT_FALSE(row.sequence);
  EXPECT_EQ(row.index, 0U);
  EXPECT_FALSE(row.startFlagged);
  EXPECT_FALSE(row.endFlagged);
  EXPECT_EQ(row.labelColor, (qelui::ColorRGBA{0, 0, 0, 1}));
  EXPECT_TRUE(row.name.Empty());
}

/// A list that grows moves its rows only if that can't fail.
TEST(TrackItemRowData, MovingARowThrowsNothing) {
  EXPECT_TRUE(std::is_nothrow_move_constructible_v<TrackItemRowData>);
  EXPECT_TRUE(std::is_nothrow_move_assignable_v<TrackItemRowData>);
}

TEST(MediaTypes, TheIdentifiersAreStoredLowestByteFirst) {
  EXPECT_EQ(BE::kMediaType_Video.bytes[0], 0x22);
  EXPECT_EQ(BE::kMediaType_Video.bytes[1], 0x8c);
  EXPECT_EQ(BE::kMediaType_Video.bytes[15], 0x93);
  EXPECT_EQ(BE::kMediaType_Audio.bytes[0], 0x80);
  EXPECT_EQ(BE::kMediaType_Audio.bytes[15], 0x09);
}

}  // namespace
}  // namespace Vantrel

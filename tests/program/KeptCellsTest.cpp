#include "standalone/app/KeptCells.h"

#include <gtest/gtest.h>

#include <string>

namespace standalone {
namespace {

ShowableCell MakeText(std::string_view text) {
  return {text, text.size(), false, std::nullopt};
}

TEST(KeptCells, WhatWasKeptComesBackInItsPlace) {
  KeptCells cells;
  cells.Keep(MakeText("Ferry"));
  cells.Keep({"渡し船", 6, true, std::nullopt});
  cells.Keep({{}, 2, false, ZSL::Color{74, 127, 193}});
  cells.Keep(MakeText(""));
  ASSERT_EQ(cells.Count(), 4U);
  EXPECT_EQ(cells.Get(0).text, "Ferry");
  EXPECT_EQ(cells.Get(0).columns, 5U);
  EXPECT_FALSE(cells.Get(0).isAlert);
  EXPECT_FALSE(cells.Get(0).swatch);
  EXPECT_EQ(cells.Get(1).text, "渡し船");
  EXPECT_EQ(cells.Get(1).columns, 6U);
  EXPECT_TRUE(cells.Get(1).isAlert);
  EXPECT_EQ(cells.Get(2).swatch, (ZSL::Color{74, 127, 193}));
  EXPECT_EQ(cells.Get(2).columns, 2U);
  EXPECT_EQ(cells.Get(3).text, "");
}

TEST(KeptCells, BehindATextThatIsTooLongNothingIsKept) {
  KeptCells cells;
  cells.Keep(MakeText("Ferry"));
  cells.Keep(MakeText(std::string(std::size_t{20} << 20, 'x')));
  cells.Keep(MakeText("Harbour"));
  ASSERT_EQ(cells.Count(), 1U);
  EXPECT_EQ(cells.Get(0).text, "Ferry");
}

TEST(KeptCells, TheirNumberIsLimited) {
  KeptCells cells;
  constexpr std::size_t kTooMany = 3'000'000;
  cells.Reserve(kTooMany);
  for (std::size_t i = 0; i < kTooMany; ++i) cells.Keep(MakeText("x"));
  EXPECT_GE(cells.Count(), 800'000U);
  EXPECT_LT(cells.Count(), kTooMany);
  EXPECT_EQ(cells.Get(cells.Count() - 1).text, "x");
}

}  // namespace
}  // namespace standalone

#include "standalone/media/PictureRate.h"

#include <gtest/gtest.h>

namespace standalone {
namespace {

using Ratio = MediaRatio;

TEST(PictureRates, MeasuredOnesBecomeTheRateInUse) {
  EXPECT_EQ(SettlePictureRate({2997, 100}), (Ratio{30000, 1001}));
  EXPECT_EQ(SettlePictureRate({23976, 1000}), (Ratio{24000, 1001}));
  EXPECT_EQ(SettlePictureRate({2500001, 100000}), (Ratio{25, 1}));
  EXPECT_EQ(SettlePictureRate({60, 2}), (Ratio{30, 1}));
}

TEST(PictureRates, NeighboursStayApart) {
  EXPECT_EQ(SettlePictureRate({24, 1}), (Ratio{24, 1}));
  EXPECT_EQ(SettlePictureRate({24000, 1001}), (Ratio{24000, 1001}));
  EXPECT_EQ(SettlePictureRate({60, 1}), (Ratio{60, 1}));
  EXPECT_EQ(SettlePictureRate({60000, 1001}), (Ratio{60000, 1001}));
}

TEST(PictureRates, OthersStandAsTheyAre) {
  EXPECT_EQ(SettlePictureRate({25, 2}), (Ratio{25, 2}));
  EXPECT_EQ(SettlePictureRate({240, 1}), (Ratio{240, 1}));
}

TEST(PictureRates, WhatIsNoneBecomesUnknown) {
  EXPECT_FALSE(SettlePictureRate({90000, 1}).IsKnown());
  EXPECT_FALSE(SettlePictureRate({0, 1}).IsKnown());
  EXPECT_FALSE(SettlePictureRate({25, 0}).IsKnown());
  EXPECT_FALSE(SettlePictureRate({-25, 1}).IsKnown());
}

}  // namespace
}  // namespace standalone

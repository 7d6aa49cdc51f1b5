#include "standalone/model/FrameSizeText.h"

#include <gtest/gtest.h>

namespace standalone {
namespace {

TEST(FrameSizeTexts, AreWidthHeightAndPixelAspect) {
  EXPECT_EQ(FormatFrameSize(1920, 1080, "1.0"), "1920 x 1080 (1.0)");
}

TEST(PixelAspects, AreDecimalsWithAsManyDigitsAsTheyNeed) {
  EXPECT_EQ(FormatPixelAspect(1, 1), "1.0");
  EXPECT_EQ(FormatPixelAspect(3, 2), "1.5");
  EXPECT_EQ(FormatPixelAspect(2, 1), "2.0");
  EXPECT_EQ(FormatPixelAspect(64, 45), "1.4222");
  EXPECT_EQ(FormatPixelAspect(12, 11), "1.0909");
  EXPECT_EQ(FormatPixelAspect(8, 9), "0.8889");
  EXPECT_EQ(FormatPixelAspect(1001, 1000), "1.001");
  EXPECT_EQ(FormatPixelAspect(199999, 100000), "2.0");
}

}  // namespace
}  // namespace standalone

#include "standalone/window/ShapedLines.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <string>

#include "standalone/window/TextFonts.h"

namespace standalone {
namespace {

class ShapedLinesTest : public testing::Test {
 protected:
  const ShapedLine& Find(std::string_view text, float width = 100, std::u16string_view ellipsis = {}) {
    return font.lines.Find(text, font, width, ellipsis);
  }
  std::size_t Count() const { return font.lines.Count(); }

  TextFont font{QApplication::font(), QFontMetricsF(QApplication::font()), {}};
};

TEST_F(ShapedLinesTest, ALineIsShapedOnce) {
  const ShapedLine* const first = &Find("Harbour");
  EXPECT_FALSE(first->runs.isEmpty());
  EXPECT_EQ(&Find("Harbour"), first);
  EXPECT_EQ(Count(), 1U);
}

TEST_F(ShapedLinesTest, AnotherTextWidthOrEllipsisIsAnotherLine) {
  const ShapedLine* const first = &Find("Harbour");
  EXPECT_NE(&Find("Harbor"), first);
  EXPECT_NE(&Find("Harbour", 20), first);
  EXPECT_NE(&Find("Harbour", 100, u"~"), first);
  EXPECT_EQ(&Find("Harbour"), first);
  EXPECT_EQ(Count(), 4U);
}

TEST_F(ShapedLinesTest, ATextIsKeptApartFromTheCallersBytes) {
  std::string text("Harbour");
  const ShapedLine* const first = &Find(text);
  text = "Lantern";
  EXPECT_NE(&Find(text), first);
  EXPECT_EQ(&Find("Harbour"), first);
}

TEST_F(ShapedLinesTest, WhatIsAskedForAgainStaysAndTheRestIsLetGoOf) {
  const ShapedLine* const kept = &Find("kept");
  for (std::size_t i = 0; i < 2 * ShapedLines::kMostLines; ++i) {
    Find(std::to_string(i));
    ASSERT_EQ(&Find("kept"), kept);
    ASSERT_LE(Count(), ShapedLines::kMostLines);
  }
}

TEST_F(ShapedLinesTest, LongTextsAreFewer) {
  for (int i = 0; i < 1500; ++i) {
    Find(std::to_string(i) + std::string(4000, 'x'), 20);
    ASSERT_LE(Count(), 600U);
  }
  EXPECT_GE(Count(), 200U);
}

}  // namespace
}  // namespace standalone

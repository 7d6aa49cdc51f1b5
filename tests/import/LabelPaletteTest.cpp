#include "standalone/import/LabelPalette.h"

#include <gtest/gtest.h>

#include <set>
#include <string_view>

namespace standalone {
namespace {

TEST(LabelPalette, WordsAreFoundInAnyCase) {
  EXPECT_EQ(FindLabelColor("amber"), (ZSL::Color{0xE2, 0xA4, 0x2C, 255}));
  EXPECT_EQ(FindLabelColor("GREY"), kDefaultLabelColor);
  EXPECT_FALSE(FindLabelColor("Best Take"));
}

TEST(LabelPalette, EachColourHasOneWord) {
  std::set<std::string_view> words;
  for (const LabelColor& label : kLabelPalette) {
    EXPECT_TRUE(words.insert(label.name).second);
    EXPECT_EQ(FindLabelName(label.color), label.name);
  }
  EXPECT_EQ(FindLabelName(ZSL::Color{1, 2, 3, 255}), "");
}

TEST(LabelPalette, HexColoursAreReadInEitherCase) {
  EXPECT_EQ(ParseHexColor("#e2A42c"), (ZSL::Color{0xE2, 0xA4, 0x2C, 255}));
  for (const char* text : {"", "#E2A42", "E2A42C0", "#E2A42G", "#E2A42C0", "#-2A42C", "# E2A42"}) {
    EXPECT_FALSE(ParseHexColor(text)) << text;
  }
}

}  // namespace
}  // namespace standalone

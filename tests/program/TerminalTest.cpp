#include "standalone/app/Terminal.h"

#include <gtest/gtest.h>

namespace standalone {
namespace {

TEST(Terminal, ColoursAreThoseOfThePaletteUnlessMoreArePromised) {
  EXPECT_EQ(ChooseColorDepth(nullptr, "xterm", nullptr), ColorDepth::kPalette);
  EXPECT_EQ(ChooseColorDepth(nullptr, nullptr, nullptr), ColorDepth::kPalette);
  EXPECT_EQ(ChooseColorDepth(nullptr, "xterm", "yes"), ColorDepth::kPalette);
  EXPECT_EQ(ChooseColorDepth(nullptr, "xterm", "truecolor"), ColorDepth::kTrue);
  EXPECT_EQ(ChooseColorDepth(nullptr, "xterm", "24bit"), ColorDepth::kTrue);
}

TEST(Terminal, NoColourIsUsedWhereItIsNotWantedOrNotUnderstood) {
  EXPECT_EQ(ChooseColorDepth("1", "xterm", "truecolor"), ColorDepth::kNone);
  EXPECT_EQ(ChooseColorDepth("", "xterm", nullptr), ColorDepth::kPalette);
  EXPECT_EQ(ChooseColorDepth(nullptr, "dumb", "truecolor"), ColorDepth::kNone);
}

TEST(Terminal, AWidthIsDigitsFromOne) {
  EXPECT_EQ(ReadWidth("1"), 1U);
  EXPECT_EQ(ReadWidth("120"), 120U);
  for (const char* text :
       {"", "0", "-1", "+5", " 5", "5 ", "0x10", "1e2", "8.0", "wide", "99999999999999999999999"}) {
    EXPECT_EQ(ReadWidth(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace standalone

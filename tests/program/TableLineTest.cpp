#include "standalone/app/TableLine.h"

#include <gtest/gtest.h>

namespace standalone {
namespace {

TEST(TableLine, NeverEndsInBlanks) {
  TableLine line;
  line.AddText("Low Cut; ");
  line.AddBlanks(3);
  line.AddText("  ");
  EXPECT_EQ(line.Finish(), "Low Cut;\n");
}

TEST(TableLine, KeepsTheBlanksBetweenTexts) {
  TableLine line;
  line.AddBlanks(1);
  line.AddText("a ");
  line.AddBlanks(2);
  line.AddText(" b");
  EXPECT_EQ(line.Finish(), " a    b\n");
}

TEST(TableLine, BeginsAnewAfterItsEnd) {
  TableLine line;
  line.AddText("one");
  line.AddBlanks(5);
  EXPECT_EQ(line.Finish(), "one\n");
  EXPECT_EQ(line.Finish(), "\n");
  line.AddText("two");
  EXPECT_EQ(line.Finish(), "two\n");
}

TEST(TableLine, NothingIsLeftOfALongerLineBefore) {
  TableLine line;
  line.AddText(std::string(300, 'x'));
  EXPECT_EQ(line.Finish(), std::string(300, 'x') + "\n");
  line.AddBlanks(3);
  line.AddText("y");
  line.AddBlanks(9);
  line.AddText("z");
  EXPECT_EQ(line.Finish(), "   y         z\n");
}

TEST(TableLine, HasRoomForAnyNumberOfBlanksAndTexts) {
  TableLine line;
  std::string expected;
  for (std::size_t size = 1; size < 2000; size = size * 3 / 2 + 1) {
    line.AddBlanks(size);
    line.AddText(std::string(size, 'x'), TextStyle::kRed);
    expected += std::string(size, ' ') + "\033[31m" + std::string(size, 'x') + "\033[0m";
    line.AddSwatch({74, 127, 193}, size, ColorDepth::kTrue);
    expected += "\033[48;2;74;127;193m" + std::string(size, ' ') + "\033[0m";
  }
  EXPECT_EQ(line.Finish(), expected + "\n");
}

TEST(TableLine, StylesEndWithTheText) {
  TableLine line;
  line.AddText("bold ", TextStyle::kBold);
  line.AddText("red", TextStyle::kRed);
  line.AddText("", TextStyle::kRed);
  EXPECT_EQ(line.Finish(), "\033[1mbold\033[0m \033[31mred\033[0m\n");
}

TEST(TableLine, ASwatchIsBlanksOnItsColour) {
  TableLine line;
  line.AddSwatch({74, 127, 193}, 2, ColorDepth::kTrue);
  EXPECT_EQ(line.Finish(), "\033[48;2;74;127;193m  \033[0m\n");
  line.AddSwatch({95, 135, 255}, 1, ColorDepth::kPalette);
  EXPECT_EQ(line.Finish(), "\033[48;5;69m \033[0m\n");
}

TEST(TableLine, ThePaletteColourIsTheNearestOfCubeAndGreys) {
  EXPECT_EQ(FindPaletteColor({0, 0, 0}), 16U);
  EXPECT_EQ(FindPaletteColor({255, 255, 255}), 231U);
  EXPECT_EQ(FindPaletteColor({255, 0, 0}), 196U);
  EXPECT_EQ(FindPaletteColor({8, 8, 8}), 232U);
  EXPECT_EQ(FindPaletteColor({138, 138, 138}), 245U);
  EXPECT_EQ(FindPaletteColor({240, 239, 238}), 255U);
  EXPECT_EQ(FindPaletteColor({74, 127, 193}), 67U);
}

/// The colours of the terminal by their numbers.
ZSL::Color GetPaletteColor(unsigned number) {
  const auto level = [](unsigned step) {
    return static_cast<std::uint8_t>(step == 0 ? 0 : 55 + 40 * step);
  };
  if (number >= 232) {
    const auto grey = static_cast<std::uint8_t>(8 + 10 * (number - 232));
    return {grey, grey, grey};
  }
  const unsigned cube = number - 16;
  return {level(cube / 36), level(cube / 6 % 6), level(cube % 6)};
}

int GetDistance(const ZSL::Color& a, const ZSL::Color& b) {
  const auto square = [](int difference) { return difference * difference; };
  return square(a.red - b.red) + square(a.green - b.green) + square(a.blue - b.blue);
}

TEST(TableLine, NoPaletteColourIsNearerThanTheOneChosen) {
  for (unsigned value = 0; value < 256 * 256 * 256; value += 40009) {
    const ZSL::Color color{static_cast<std::uint8_t>(value >> 16),
                           static_cast<std::uint8_t>(value >> 8), static_cast<std::uint8_t>(value)};
    const int chosen = GetDistance(color, GetPaletteColor(FindPaletteColor(color)));
    for (unsigned number = 16; number < 256; ++number) {
      ASSERT_LE(chosen, GetDistance(color, GetPaletteColor(number))) << value << " " << number;
    }
  }
}

}  // namespace
}  // namespace standalone

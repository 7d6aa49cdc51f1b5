#include "standalone/app/TableLine.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <utility>

namespace standalone {

namespace {

constexpr std::string_view kBold = "\033[1m";
constexpr std::string_view kRed = "\033[31m";
constexpr std::string_view kReset = "\033[0m";
/// The longest of all that stands around a text.
constexpr std::size_t kStyleSize = std::max(kBold.size(), kRed.size()) + kReset.size();
constexpr std::string_view kLineBreak = "\n";

/// What the steps of the colour cube stand for, and where the cube and the greys begin.
constexpr std::array<int, 6> kCubeLevels{0, 95, 135, 175, 215, 255};
constexpr unsigned kFirstCubeColor = 16;
constexpr unsigned kFirstGrey = 232;
constexpr int kGreyCount = 24;
constexpr int kDarkestGrey = 8;
constexpr int kGreyStep = 10;

unsigned FindCubeLevel(int value) {
  const auto nearest =
      std::ranges::min_element(kCubeLevels, {}, [value](int level) { return std::abs(level - value); });
  return static_cast<unsigned>(nearest - kCubeLevels.begin());
}

int GetDistance(const ZSL::Color& color, int red, int green, int blue) {
  const int byRed = color.red - red;
  const int byGreen = color.green - green;
  const int byBlue = color.blue - blue;
  return byRed * byRed + byGreen * byGreen + byBlue * byBlue;
}

std::string GetBackground(const ZSL::Color& color, ColorDepth depth) {
  if (depth == ColorDepth::kPalette) {
    return "\033[48;5;" + std::to_string(FindPaletteColor(color)) + "m";
  }
  return "\033[48;2;" + std::to_string(color.red) + ";" + std::to_string(color.green) + ";" +
         std::to_string(color.blue) + "m";
}

}  // namespace

void TableLine::Begin(std::size_t more) {
  const std::size_t wanted = size + pendingBlanks + more;
  if (wanted > line.size()) line.resize(2 * wanted);
  std::fill_n(line.data() + size, pendingBlanks, ' ');
  size += pendingBlanks;
  pendingBlanks = 0;
}

void TableLine::AddText(std::string_view text, TextStyle style) {
  const std::size_t end = text.find_last_not_of(' ') + 1;
  if (end > 0) {
    Begin(end + kStyleSize);
    if (style != TextStyle::kPlain) Write(style == TextStyle::kBold ? kBold : kRed);
    Write(text.substr(0, end));
    if (style != TextStyle::kPlain) Write(kReset);
  }
  AddBlanks(text.size() - end);
}

void TableLine::AddSwatch(const ZSL::Color& color, std::size_t columns, ColorDepth depth) {
  const std::string background = GetBackground(color, depth);
  Begin(background.size());
  Write(background);
  AddBlanks(columns);
  Begin(kReset.size());
  Write(kReset);
}

std::string_view TableLine::Finish() {
  pendingBlanks = 0;
  Begin(kLineBreak.size());
  Write(kLineBreak);
  return {line.data(), std::exchange(size, 0)};
}

unsigned FindPaletteColor(const ZSL::Color& color) {
  const unsigned red = FindCubeLevel(color.red);
  const unsigned green = FindCubeLevel(color.green);
  const unsigned blue = FindCubeLevel(color.blue);
  const int mean = (color.red + color.green + color.blue) / 3;
  const int grey = std::clamp((mean - kDarkestGrey + kGreyStep / 2) / kGreyStep, 0, kGreyCount - 1);
  const int level = kDarkestGrey + grey * kGreyStep;
  const int toCube = GetDistance(color, kCubeLevels[red], kCubeLevels[green], kCubeLevels[blue]);
  if (GetDistance(color, level, level, level) < toCube) return kFirstGrey + static_cast<unsigned>(grey);
  return kFirstCubeColor + 36 * red + 6 * green + blue;
}

}  // namespace standalone

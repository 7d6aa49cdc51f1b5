#include "host/qelui/Theme.h"

#include <array>

#include "standalone/runtime/Runtime.h"
#include "standalone/toolkit/ThemeColors.h"

namespace qelui {

namespace {

constexpr std::uint32_t kPlainTextFont = 0;
constexpr const char* kPlainTextFontName = "Sans";

class ColorsProvider final : public ui::ThemeProvider {
 public:
  explicit ColorsProvider(const standalone::ThemeColors& colors) noexcept : colors(colors) {}
  ColorRGBA GetTextColor() const override { return colors.text; }
  ColorRGBA GetDividerColor() const override { return colors.divider; }
  ColorRGBA GetTabBackgroundColor() const override { return colors.tabBackground; }

 private:
  standalone::ThemeColors colors;
};

/// Each cell of a table asks for its provider, so none is counted: they live as long as the program.
std::shared_ptr<const ui::ThemeProvider> Share(const ColorsProvider& provider) {
  return {std::shared_ptr<const void>(), &provider};
}

}  // namespace

namespace ui {

ThemeProvider::ThemeProvider() = default;
ThemeProvider::~ThemeProvider() = default;

std::shared_ptr<const ThemeProvider> GetDefaultThemeProvider() {
  standalone::AssertMainThread("GetDefaultThemeProvider");
  // In one array, so that each call looks once whether they are made. Dark is the first.
  static const std::array providers{
      ColorsProvider(standalone::GetColorsOfTheme(standalone::ThemeName::kDark)),
      ColorsProvider(standalone::GetColorsOfTheme(standalone::ThemeName::kLight))};
  return Share(providers[standalone::GetTheme() == standalone::ThemeName::kLight ? 1 : 0]);
}

const qelcore::UTF8String& GetFontName(std::uint32_t number) {
  standalone::AssertMainThread("GetFontName");
  static const qelcore::UTF8String name(kPlainTextFontName);
  static const qelcore::UTF8String none;
  return number == kPlainTextFont ? name : none;
}

}  // namespace ui

namespace skins {

namespace {
constexpr unsigned kGeneration = 7;
}  // namespace

bool IsRunningV7OrBeyond() {
  return kGeneration >= 7;
}

}  // namespace skins

namespace skins::utilities {

ColorRGBA GetDefaultTextColor(const ui::ThemeProvider& theme) {
  return theme.GetTextColor();
}

ColorRGBA GetDividerColor(const ui::ThemeProvider& theme) {
  return theme.GetDividerColor();
}

ColorRGBA GetTabBackgroundColor(const ui::ThemeProvider& theme) {
  return theme.GetTabBackgroundColor();
}

}  // namespace skins::utilities

}  // namespace qelui

#include "host/qelui/Theme.h"

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

std::shared_ptr<const ui::ThemeProvider> MakeProvider(standalone::ThemeName name) {
  return std::make_shared<const ColorsProvider>(standalone::GetColorsOfTheme(name));
}

}  // namespace

namespace ui {

ThemeProvider::ThemeProvider() = default;
ThemeProvider::~ThemeProvider() = default;

std::shared_ptr<const ThemeProvider> GetDefaultThemeProvider() {
  standalone::AssertMainThread("GetDefaultThemeProvider");
  static const auto dark = MakeProvider(standalone::ThemeName::kDark);
  static const auto light = MakeProvider(standalone::ThemeName::kLight);
  return standalone::GetTheme() == standalone::ThemeName::kLight ? light : dark;
}

qelcore::UTF8String GetFontName(std::uint32_t number) {
  standalone::AssertMainThread("GetFontName");
  static const qelcore::UTF8String name(kPlainTextFontName);
  return number == kPlainTextFont ? name : qelcore::UTF8String();
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

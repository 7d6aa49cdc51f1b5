#include "host/qelui/Theme.h"

#include "standalone/runtime/Runtime.h"

namespace qelui {

namespace {

constexpr std::uint32_t kPlainTextFont = 0;
constexpr const char* kPlainTextFontName = "Sans";

/// Light text on dark panels, as rooms for editing have it.
class DarkTheme final : public ui::ThemeProvider {
 public:
  ColorRGBA GetTextColor() const override { return {0.82F, 0.82F, 0.82F, 1}; }
};

}  // namespace

namespace ui {

ThemeProvider::ThemeProvider() = default;
ThemeProvider::~ThemeProvider() = default;

std::shared_ptr<const ThemeProvider> GetDefaultThemeProvider() {
  standalone::AssertMainThread("GetDefaultThemeProvider");
  static const auto theme = std::make_shared<const DarkTheme>();
  return theme;
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

}  // namespace skins::utilities

}  // namespace qelui

#pragma once

#include <cstdint>
#include <memory>

#include "host/HostAPI.h"
#include "host/qelcore/UTF8String.h"
#include "host/qelui/Geometry.h"

namespace qelui::ui {

/// The colours of the user interface. Never changes; another theme is another provider.
class HOST_API ThemeProvider {
 public:
  virtual ~ThemeProvider();
  /// Of plain text on the background of a panel. [any-thread]
  virtual ColorRGBA GetTextColor() const = 0;
  /// Of the lines between parts of the user interface. [any-thread]
  virtual ColorRGBA GetDividerColor() const = 0;
  /// Of a panel's background. [any-thread]
  virtual ColorRGBA GetTabBackgroundColor() const = 0;

 protected:
  ThemeProvider();
};

/// The theme that the user chose, never null. [main-thread]
HOST_API std::shared_ptr<const ThemeProvider> GetDefaultThemeProvider();

/// The name of a font of the user interface; 0 is that of plain text. Empty for a number that names
/// none. Valid until the program ends. [main-thread]
HOST_API const qelcore::UTF8String& GetFontName(std::uint32_t number);

}  // namespace qelui::ui

namespace qelui::skins {

/// Whether controls are drawn by the seventh generation of the toolkit's look, or a later one.
/// [any-thread]
HOST_API bool IsRunningV7OrBeyond();

}  // namespace qelui::skins

namespace qelui::skins::utilities {

/// [any-thread]
HOST_API ColorRGBA GetDefaultTextColor(const ui::ThemeProvider& theme);
HOST_API ColorRGBA GetDividerColor(const ui::ThemeProvider& theme);
HOST_API ColorRGBA GetTabBackgroundColor(const ui::ThemeProvider& theme);

}  // namespace qelui::skins::utilities

#include "standalone/window/WindowTheme.h"

#include <QApplication>
#include <QStyle>
#include <QWidget>

#include "standalone/window/Colors.h"
#include "standalone/window/WindowStyle.h"

namespace standalone {

QPalette MakePalette(const ThemeColors& colors) {
  const QColor text = ToQColor(colors.text);
  QPalette palette(ToQColor(colors.fieldBackground), ToQColor(colors.tabBackground));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                          QPalette::HighlightedText, QPalette::ToolTipText}) {
    palette.setColor(role, text);
    palette.setColor(QPalette::Disabled, role, ToQColor(colors.disabledText));
  }
  palette.setColor(QPalette::PlaceholderText, ToQColor(colors.disabledText));
  palette.setColor(QPalette::Base, ToQColor(colors.fieldBackground));
  palette.setColor(QPalette::AlternateBase, ToQColor(colors.otherRowBackground));
  palette.setColor(QPalette::ToolTipBase, ToQColor(colors.headerBackground));
  palette.setColor(QPalette::Highlight, ToQColor(colors.selection));
  palette.setColor(QPalette::Link, ToQColor(colors.accent));
  return palette;
}

void ApplyTheme() {
  if (dynamic_cast<const WindowStyle*>(QApplication::style()) == nullptr) {
    QApplication::setStyle(new WindowStyle());
  }
  const ThemeColors& colors = GetThemeColors();
  QPalette palette = MakePalette(colors);
  QApplication::setPalette(palette);
  // A handle as dark as a field would be lost on its trough.
  palette.setColor(QPalette::Button, ToQColor(colors.divider));
  QApplication::setPalette(palette, "QScrollBar");
  // Controls take their colours from the theme, not from the palette.
  for (QWidget* const widget : QApplication::allWidgets()) widget->update();
}

}  // namespace standalone

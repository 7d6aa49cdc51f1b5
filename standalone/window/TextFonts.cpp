#include "standalone/window/TextFonts.h"

#include <QApplication>
#include <QString>

#include "host/qelui/Theme.h"
#include "standalone/window/Utf8.h"

namespace standalone {

namespace {

constexpr std::uint32_t kPlainTextFont = 0;

QFont MakeFont(const qelcore::UTF8String& name) {
  QFont font = QApplication::font();
  const std::string_view family = name.View();
  if (!name.Empty() && name != qelui::ui::GetFontName(kPlainTextFont)) {
    font.setFamily(ToQString(family));
  }
  return font;
}

}  // namespace

TextFont& TextFonts::Find(const qelcore::UTF8String& name) {
  for (const auto& entry : entries) {
    if (entry->name == name) return entry->font;
  }
  const QFont font = MakeFont(name);
  entries.push_back(std::make_unique<Entry>(Entry{name, {font, QFontMetricsF(font), {}}}));
  return entries.back()->font;
}

}  // namespace standalone

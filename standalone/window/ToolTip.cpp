#include "standalone/window/ToolTip.h"
#include "standalone/window/Utf8.h"

#include <QFontMetrics>
#include <QStringList>
#include <QToolTip>
#include <algorithm>

namespace standalone {

namespace {

bool FitsWidth(const QString& text, std::uint32_t width) {
  const QFontMetrics metrics(QToolTip::font());
  return std::ranges::all_of(text.split('\n'), [&](const QString& line) {
    return metrics.horizontalAdvance(line) <= static_cast<int>(width);
  });
}

}  // namespace

QString MakeToolTip(std::string_view utf8, std::uint32_t width) {
  if (utf8.empty()) return {};
  QString plain = ToQString(utf8);
  while (plain.endsWith('\n')) plain.chop(1);
  const QString text = plain.toHtmlEscaped().replace('\n', "<br>");
  if (width == 0) return "<qt>" + text + "</qt>";
  if (FitsWidth(plain, width)) return "<qt><span style='white-space:pre'>" + text + "</span></qt>";
  // The only element whose width tooltips keep to.
  return QString(
             "<qt><table width='%1' cellspacing='0' cellpadding='0'><tr><td>%2</td></tr></table></qt>")
      .arg(QString::number(width), text);
}

}  // namespace standalone

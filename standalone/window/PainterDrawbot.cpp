#include "standalone/window/PainterDrawbot.h"

#include <QTransform>
#include <algorithm>
#include <cmath>

#include "standalone/window/Colors.h"
#include "standalone/window/LineText.h"

namespace standalone {

namespace {

/// Bytes that are drawn of a text at most: more than fit on a screen's width, even of the narrowest
/// letters. Measuring a text takes time for its length.
std::size_t CountBytesInReach(float width) {
  constexpr float kBytesPerPixel = 4;
  constexpr float kFewest = 4096;
  constexpr float kMost = 4'000'000;
  return static_cast<std::size_t>(std::clamp(width * kBytesPerPixel, kFewest, kMost));
}

}  // namespace

void PainterDrawbot::FillRect(const qelui::Rect& area, const qelui::ColorRGBA& color) {
  if (!(area.width > 0 && area.height > 0)) return;
  painter.fillRect(QRectF(area.left, area.top, area.width, area.height), ToQColor(color));
}

void PainterDrawbot::StrokeRect(const qelui::Rect& area, const qelui::ColorRGBA& color,
                                float lineWidth) {
  const float across = std::min(lineWidth, area.width);
  const float down = std::min(lineWidth, area.height);
  if (!(across > 0 && down > 0)) return;
  // The sides stand between the other two lines, so that a translucent colour is nowhere laid twice.
  const float inner = area.height - 2 * down;
  FillRect({area.left, area.top, area.width, down}, color);
  FillRect({area.left, area.top + down, across, inner}, color);
  FillRect({area.left + area.width - across, area.top + down, across, inner}, color);
  FillRect({area.left, area.top + area.height - down, area.width, down}, color);
}

// On a whole pixel of the device, where the letters of all rows come out alike.
qreal PainterDrawbot::FindBaseline(const QFontMetricsF& metrics, float centre) const {
  const QTransform toDevice = painter.deviceTransform();
  const qreal baseline = centre + (metrics.ascent() - metrics.descent()) / 2;
  const qreal onDevice = baseline * toDevice.m22() + toDevice.dy();
  return baseline + (std::round(onDevice) - onDevice) / toDevice.m22();
}

void PainterDrawbot::DrawTextLine(const qelui::TextLine& line) {
  if (line.text.Empty() || !(line.room.width > 0)) return;
  const TextFont& font = fonts.Find(line.fontName);
  DecodeLine(line.text.View().substr(0, CountBytesInReach(line.room.width)), text);
  CutLine(text, font.metrics, line.room.width, line.ellipsis);
  if (text.isEmpty()) return;
  if (current != &font) painter.setFont(font.font);
  current = &font;
  const QColor color = ToQColor(line.color);
  if (painter.pen().color() != color) painter.setPen(color);
  painter.drawText(QPointF(line.room.left, FindBaseline(font.metrics, line.centre)), text);
}

}  // namespace standalone

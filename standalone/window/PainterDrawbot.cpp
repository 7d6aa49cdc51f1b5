#include "standalone/window/PainterDrawbot.h"

#include <QTransform>
#include <algorithm>
#include <cmath>

#include "standalone/window/Colors.h"

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

void PainterDrawbot::Confine(const QRect& area) {
  Unconfine();
  confines = area;
}

void PainterDrawbot::Unconfine() {
  if (isClipping) painter.setClipping(false);
  isClipping = false;
  confines.reset();
}

void PainterDrawbot::ClipFor(const QRectF& drawn) {
  if (isClipping || !confines || QRectF(*confines).contains(drawn)) return;
  painter.setClipRect(*confines);
  isClipping = true;
}

void PainterDrawbot::FillRect(const qelui::Rect& area, const qelui::ColorRGBA& color) {
  if (!(area.width > 0 && area.height > 0)) return;
  const QRectF filled(area.left, area.top, area.width, area.height);
  ClipFor(filled);
  painter.fillRect(filled, ToQColor(color));
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

void PainterDrawbot::SetPen(const qelui::ColorRGBA& color) {
  if (penColor == color) return;
  painter.setPen(ToQColor(color));
  penColor = color;
}

// On a whole pixel of the device, where the letters of all rows come out alike.
qreal PainterDrawbot::FindBaseline(const QFontMetricsF& metrics, float centre) const {
  const qreal baseline = centre + (metrics.ascent() - metrics.descent()) / 2;
  const QTransform& toDevice = painter.deviceTransform();
  const qreal onDevice = baseline * toDevice.m22() + toDevice.dy();
  return baseline + (std::round(onDevice) - onDevice) / toDevice.m22();
}

void PainterDrawbot::DrawTextLine(const qelui::TextLine& line) {
  const float width = line.room.width;
  if (line.text.Empty() || !(width > 0)) return;
  TextFont& font = fonts.Find(line.fontName);
  const std::string_view inReach = line.text.View().substr(0, CountBytesInReach(width));
  const ShapedLine& shaped = font.lines.Find(inReach, font, width, line.ellipsis);
  if (shaped.runs.isEmpty()) return;
  const QPointF begin(line.room.left, FindBaseline(font.metrics, line.centre));
  ClipFor(shaped.ink.translated(begin));
  SetPen(line.color);
  for (const QGlyphRun& run : shaped.runs) painter.drawGlyphRun(begin, run);
}

}  // namespace standalone

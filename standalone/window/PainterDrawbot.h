#pragma once

#include <QPainter>
#include <QRect>
#include <QRectF>
#include <optional>

#include "host/qelui/Drawbot.h"
#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/window/TextFonts.h"

namespace standalone {

/// Draws on a painter, whose origin is the view's: rectangles without antialiasing, edge to edge with
/// their neighbours, at every device pixel ratio; texts as the system writes them, right-to-left and
/// emoji included. Changes the painter's pen, and its clipping when it is confined. [main-thread]
class STANDALONE_API PainterDrawbot final : public qelui::Drawbot {
 public:
  /// Both must outlive the drawbot.
  PainterDrawbot(QPainter& painter, TextFonts& fonts) : painter(painter), fonts(fonts) {}

  /// From now on nothing is drawn outside an area. The painter is asked to clip only for what would
  /// reach beyond: most cells hold what they draw.
  void Confine(const QRect& area);
  /// From now on everything is drawn.
  void Unconfine();

  void FillRect(const qelui::Rect& area, const qelui::ColorRGBA& color) override;
  void StrokeRect(const qelui::Rect& area, const qelui::ColorRGBA& color, float lineWidth) override;
  void DrawTextLine(const qelui::TextLine& line) override;

 private:
  void ClipFor(const QRectF& drawn);
  void SetPen(const qelui::ColorRGBA& color);
  qreal FindBaseline(const QFontMetricsF& metrics, float centre) const;

  QPainter& painter;
  TextFonts& fonts;
  std::optional<QRect> confines;
  bool isClipping = false;
  std::optional<qelui::ColorRGBA> penColor;
};

}  // namespace standalone

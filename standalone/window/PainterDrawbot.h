#pragma once

#include <QPainter>
#include <QString>

#include "host/qelui/Drawbot.h"
#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/window/TextFonts.h"

namespace standalone {

/// Draws on a painter, whose origin is the view's: rectangles without antialiasing, edge to edge with
/// their neighbours, at every device pixel ratio; texts as the system writes them, right-to-left and
/// emoji included. Changes the painter's font and pen. [main-thread]
class STANDALONE_API PainterDrawbot final : public qelui::Drawbot {
 public:
  /// Both must outlive the drawbot.
  PainterDrawbot(QPainter& painter, TextFonts& fonts) : painter(painter), fonts(fonts) {}

  void FillRect(const qelui::Rect& area, const qelui::ColorRGBA& color) override;
  void StrokeRect(const qelui::Rect& area, const qelui::ColorRGBA& color, float lineWidth) override;
  void DrawTextLine(const qelui::TextLine& line) override;

 private:
  qreal FindBaseline(const QFontMetricsF& metrics, float centre) const;

  QPainter& painter;
  TextFonts& fonts;
  const TextFont* current = nullptr;
  QString text;
};

}  // namespace standalone

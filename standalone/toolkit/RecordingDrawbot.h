#pragma once

#include <vector>

#include "host/qelui/Drawbot.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Keeps what is drawn instead of drawing it, for whoever wants a cell's text and colours rather than
/// its pixels. [main-thread]
class STANDALONE_API RecordingDrawbot final : public qelui::Drawbot {
 public:
  struct Line {
    qelcore::UTF8String text;
    qelui::Rect room;
    float centre = 0;
    qelui::ColorRGBA color;
    qelcore::UTF8String fontName;
  };
  struct Fill {
    qelui::Rect area;
    qelui::ColorRGBA color;
  };
  struct Stroke {
    qelui::Rect area;
    qelui::ColorRGBA color;
    float lineWidth;
  };

  /// In the order drawn, since the last Clear. A line's ellipsis is not kept.
  const std::vector<Line>& GetTextLines() const noexcept { return textLines; }
  const std::vector<Fill>& GetFills() const noexcept { return fills; }
  const std::vector<Stroke>& GetStrokes() const noexcept { return strokes; }
  /// Forgets what was drawn, keeping the room for as much.
  void Clear() noexcept;

  void FillRect(const qelui::Rect& area, const qelui::ColorRGBA& color) override;
  void StrokeRect(const qelui::Rect& area, const qelui::ColorRGBA& color, float lineWidth) override;
  void DrawTextLine(const qelui::TextLine& line) override;

 private:
  std::vector<Line> textLines;
  std::vector<Fill> fills;
  std::vector<Stroke> strokes;
};

}  // namespace standalone

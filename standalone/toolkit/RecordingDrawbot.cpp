#include "standalone/toolkit/RecordingDrawbot.h"

namespace standalone {

void RecordingDrawbot::Clear() noexcept {
  textLines.clear();
  fills.clear();
  strokes.clear();
}

void RecordingDrawbot::FillRect(const qelui::Rect& area, const qelui::ColorRGBA& color) {
  fills.push_back({area, color});
}

void RecordingDrawbot::StrokeRect(const qelui::Rect& area, const qelui::ColorRGBA& color,
                                  float lineWidth) {
  strokes.push_back({area, color, lineWidth});
}

void RecordingDrawbot::DrawTextLine(const qelui::TextLine& line) {
  textLines.push_back({line.text, line.room, line.centre, line.color, line.fontName});
}

}  // namespace standalone

#include "host/qelui/Drawbot.h"

#include "standalone/runtime/Runtime.h"

namespace qelui {

Drawbot::Drawbot() = default;
Drawbot::~Drawbot() = default;

void StrokeRect(Drawbot& drawbot, const Rect& area, const ColorRGBA& color, float lineWidth) {
  standalone::AssertMainThread("StrokeRect");
  drawbot.StrokeRect(area, color, lineWidth);
}

}  // namespace qelui

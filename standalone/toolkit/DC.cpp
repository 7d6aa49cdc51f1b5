#include "host/UIF/DC.h"

#include "standalone/runtime/Runtime.h"

namespace UIF::DC {

void FillRect(qelui::Drawbot& drawbot, const qelui::Rect& area, const qelui::ColorRGBA& color) {
  standalone::AssertMainThread("DC::FillRect");
  drawbot.FillRect(area, color);
}

}  // namespace UIF::DC

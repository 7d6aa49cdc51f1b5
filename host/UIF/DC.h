#pragma once

#include "host/HostAPI.h"
#include "host/qelui/Drawbot.h"
#include "host/qelui/Geometry.h"

/// Drawing for views of the application framework. [main-thread]
namespace UIF::DC {

/// Fills all of `area`, without border.
HOST_API void FillRect(qelui::Drawbot& drawbot, const qelui::Rect& area, const qelui::ColorRGBA& color);

}  // namespace UIF::DC

#include "standalone/import/KnownWriters.h"

#include <algorithm>
#include <array>

namespace standalone {
namespace {

/// Written once for each clip by exports that carry "Resolve_OTIO" metadata.
constexpr std::array<std::string_view, 12> kBuiltInPanels = {
    "Transform",
    "Cropping",
    "Dynamic Zoom",
    "Composite",
    "Lens Correction",
    "Retime and Scaling",
    "Video Faders",
    "Fairlight Clip Volume and Fades",
    "Fairlight Clip Pan",
    "Fairlight Clip Pitch",
    "Fairlight Clip Equaliser",
    "Fairlight Equaliser Band",
};

}  // namespace

bool IsBuiltInPanel(std::string_view effectName) {
  return std::find(kBuiltInPanels.begin(), kBuiltInPanels.end(), effectName) != kBuiltInPanels.end();
}

}  // namespace standalone

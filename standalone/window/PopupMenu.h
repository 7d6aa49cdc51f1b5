#pragma once

#include <cstdint>
#include <vector>

#include "host/qelui/Geometry.h"
#include "host/qelui/Node.h"
#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/toolkit/DialogProvider.h"

namespace standalone {

/// Shows a pop-up menu at a place of the widget that shows `node` (none: at the pointer) and waits for
/// the user, in a nested event loop. The chosen command, or 0. [main-thread]
STANDALONE_API std::uint32_t ChooseFromMenu(const std::vector<MenuItem>& items,
                                            qelui::ui::UI_Node& node, qelui::Point position);

}  // namespace standalone

#pragma once

#include <cstdint>

#include "host/qelui/Theme.h"

namespace Vantrel {

/// What the panel's tooltips give the host as their width: the newer look has smaller letters.
/// [main-thread]
inline std::uint32_t GetToolTipWidth() {
  return qelui::skins::IsRunningV7OrBeyond() ? 200 : 400;
}

}  // namespace Vantrel

#pragma once

#include <QString>
#include <cstdint>
#include <string_view>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// A tooltip whose lines break where the text has line breaks, and where they would be wider than
/// `width` pixels (0: anywhere). Empty for an empty text. [main-thread]
STANDALONE_API QString MakeToolTip(std::string_view utf8, std::uint32_t width);

}  // namespace standalone

#pragma once

#include <string_view>

namespace standalone {

/// Comparisons that take A to Z for a to z and all else as it is.
bool EqualsIgnoringCase(std::string_view left, std::string_view right);
bool ContainsIgnoringCase(std::string_view text, std::string_view part);

}  // namespace standalone

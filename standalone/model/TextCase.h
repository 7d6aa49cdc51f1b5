#pragma once

#include <string_view>

#include "standalone/runtime/StandaloneAPI.h"

/// Comparisons that take A to Z for a to z and all else as it is. [any-thread]
namespace standalone {

constexpr char LowerLetter(char c) noexcept {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

STANDALONE_API bool EqualsIgnoringCase(std::string_view left, std::string_view right);
STANDALONE_API bool ContainsIgnoringCase(std::string_view text, std::string_view part);

}  // namespace standalone

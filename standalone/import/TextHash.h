#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

namespace standalone {

/// So that texts are looked up in tables without a copy of what is looked for.
struct TextHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
};

}  // namespace standalone

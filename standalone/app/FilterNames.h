#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "host/MZ/SequenceIndexOptions.h"

namespace standalone {

/// A filter of the options dialog as the command line calls it.
struct FilterName {
  std::string_view name;
  std::uint32_t id;
};

/// The filters, in the order of the dialog.
inline constexpr std::array kFilterNames = {
    FilterName{"video", 0},
    FilterName{"audio", 1},
    FilterName{"graphics", 2},
    FilterName{"fonts-missing", 6},
    FilterName{"still-image", 14},
    FilterName{"effects", 4},
    FilterName{"effects-missing", 5},
    FilterName{"transitions", 7},
    FilterName{"offline-media", 3},
    FilterName{"speed-change", 8},
    FilterName{"disabled-or-muted-tracks", 10},
    FilterName{"disabled-clips", 11},
    FilterName{"nested-sequence", 9},
    FilterName{"multicam", 12},
};

/// Whether each filter of the dialog has its name here, at its place.
consteval bool NameAllFilters() {
  const auto& entries = MZ::SequenceIndex::kFilterEntries;
  if (kFilterNames.size() != entries.size()) return false;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (kFilterNames[i].id != entries[i].id) return false;
  }
  return true;
}
static_assert(NameAllFilters());

}  // namespace standalone

#include "host/MZ/SequenceIndexOptions.h"

namespace MZ::SequenceIndex {

std::unordered_map<std::uint32_t, bool> MakeDefaultFilterToggles() {
  std::unordered_map<std::uint32_t, bool> toggles;
  for (const FilterEntry& entry : kFilterEntries) toggles.emplace(entry.id, false);
  return toggles;
}

}  // namespace MZ::SequenceIndex

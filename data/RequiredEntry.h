#pragma once

#include <stdexcept>

namespace Vantrel {

/// The value of a key that must be there. Throws: std::out_of_range with the text that hosts show,
/// which is the same whatever standard library the module was built with.
template <typename Map>
const typename Map::mapped_type& RequireEntry(const Map& map, const typename Map::key_type& key) {
  const auto found = map.find(key);
  if (found == map.end()) throw std::out_of_range("invalid unordered_map<K, T> key");
  return found->second;
}

}  // namespace Vantrel

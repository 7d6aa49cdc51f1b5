#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "standalone/import/JsonTree.h"

namespace standalone {

/// Where an item stands; becomes a text only when there is something to tell.
struct OtioPlace {
  /// Named only where a file holds several sequences.
  std::string_view sequence;
  /// "V2"; empty outside of tracks.
  std::string_view track;
  /// "clip"; empty for the track or sequence itself.
  std::string_view itemWord;
  std::string_view itemName;

  std::string Describe() const;
};

/// The same text for an object of which nothing but its index is known: of the item, track or timeline
/// that it is or belongs to. `isOneOfSeveral` tells whether timelines have to be named.
std::string DescribeObject(const JsonTree& tree, std::uint32_t index, bool isOneOfSeveral);

}  // namespace standalone

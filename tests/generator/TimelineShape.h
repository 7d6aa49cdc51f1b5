#pragma once

#include <cstddef>
#include <cstdint>

namespace generator {

/// What a generated timeline is like: scenes, interviews, B-roll, titles, sound and music, with the
/// gaps, transitions, effects and notes that real ones have, and a file that is used by about a dozen
/// clips. The same shape gives the same timeline in each run and on each machine; another seed gives
/// another one, at another frame rate (25 for the first).
struct TimelineShape {
  std::uint64_t seed = 1;
  /// On all tracks of the sequence together, nested sequences among them but not what these hold. At
  /// least 1; a sequence ends at 100 hours, which leaves room for a million on four tracks of a kind.
  std::size_t clips = 1000;
  /// So many of picture, and so many of sound. At least 1.
  std::size_t tracksOfAKind = 4;
  /// Of a hundred names and notes, how many are written with letters beyond ASCII.
  unsigned worldTextPercent = 10;
  /// Whether clips have names and times alone, without media, effects and notes, and the file has one
  /// line: what programs export that hand over the cut and nothing else.
  bool isLean = false;
};

}  // namespace generator

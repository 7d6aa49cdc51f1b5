#pragma once

#include <cstdint>

#include "standalone/services/BackwardText.h"

namespace standalone {

/// Puts a number of units as hours, minutes, seconds and units, `unitsPerSecond` (at least 1) of them
/// to the second: "01:00:00:00". Units have as many digits as the highest number of them in a second,
/// at least two; hours go on beyond 24. `separator` stands before the units. [any-thread]
void PutClock(BackwardText& text, std::uint64_t units, std::uint64_t unitsPerSecond, char separator);

}  // namespace standalone

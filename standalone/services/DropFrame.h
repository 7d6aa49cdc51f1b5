#pragma once

#include <cstdint>

#include "host/qelmediatypes/TickTime.h"

namespace standalone {

/// Frame numbers that drop-frame timecode leaves out at the start of each minute but every tenth, so
/// that counting at the nominal rate keeps pace with the clock; 0 where it is not defined.
/// SMPTE ST 12-1. [any-thread]
std::uint64_t CountDroppedNumbers(qelmediatypes::TickTime frameDuration, std::uint64_t nominalRate);

/// The number that a frame carries when `dropped` numbers a minute are left out. [any-thread]
std::uint64_t ToDropFrameNumber(std::uint64_t frame, std::uint64_t nominalRate, std::uint64_t dropped);

/// The frame that carries a number; for a number that is left out, the frame after it. [any-thread]
std::uint64_t FromDropFrameNumber(std::uint64_t number, std::uint64_t nominalRate,
                                  std::uint64_t dropped);

}  // namespace standalone

#pragma once

#include <cstdint>

namespace UIF {

/// Pictures of the host's, by number: the filter button while no filter is active, and while one is.
inline constexpr std::uint32_t kUIFFilterNotificationOffDecal = 1;
inline constexpr std::uint32_t kUIFFilterNotificationOnDecal = 2;

}  // namespace UIF

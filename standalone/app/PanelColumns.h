#pragma once

#include <cstdint>

/// The columns of the panel that are shown in a way of their own. Their identifiers are part of what
/// the module promises, like the numbers of its commands.
namespace standalone {

inline constexpr std::uint32_t kIndexColumn = 100000;
inline constexpr std::uint32_t kDurationColumn = 100004;
inline constexpr std::uint32_t kEndTimeColumn = 100005;
inline constexpr std::uint32_t kLabelColorColumn = 100011;
inline constexpr std::uint32_t kStartTimeColumn = 100021;
inline constexpr std::uint32_t kTrackColumn = 100023;
inline constexpr std::uint32_t kUsageCountColumn = 100024;

}  // namespace standalone

#pragma once

#include <cstddef>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// The size and alignment of a large page: 2 MB on every machine that we know.
inline constexpr std::size_t kLargePage = std::size_t{1} << 21;

/// Asks the system to back fresh memory, as far as it is large, with large pages: taking the memory of
/// a long timeline, or of a million rows, page by page would cost as much as filling it. A wish;
/// nothing depends on it. [any-thread]
STANDALONE_API void PreferLargePages(void* memory, std::size_t length) noexcept;

}  // namespace standalone

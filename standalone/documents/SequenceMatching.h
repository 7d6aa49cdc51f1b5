#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Which sequence of a file that was read before each one of the file as it is now goes on from: the
/// one of the same name, or else, in order, one whose name is gone. None for those that are new. No old
/// one is given twice. [any-thread]
STANDALONE_API std::vector<std::optional<std::size_t>> MatchSequences(
    const std::vector<std::string_view>& oldNames, const std::vector<std::string_view>& newNames);

}  // namespace standalone

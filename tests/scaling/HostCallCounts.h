#pragma once

#include <cstdint>
#include <map>
#include <string_view>

/// How often the watched host operations were called in this program, which defines each of them itself
/// and passes the calls on.
namespace scaling {

using HostCallCounts = std::map<std::string_view, std::uint64_t>;

/// The calls of every watched operation since the program began.
HostCallCounts GetHostCallCounts();

}  // namespace scaling

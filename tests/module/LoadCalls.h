#pragma once

#include <string>
#include <vector>

namespace hostcalls {

/// The factories that were registered while the program was being loaded, each with how many features
/// and factories of the other kind there were.
std::vector<std::string>& GetLoadCalls();

}  // namespace hostcalls

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace standalone {

/// The position, from 0, of the sequence that `wish` means among `names`, those of a file in its order.
/// A wish is a name, or "#N" with N from 1. Throws: std::runtime_error when there is no such sequence
/// or when several can be meant; it names the possible ones with their positions.
std::size_t ChooseSequence(const std::vector<std::string>& names, std::string_view wish);

}  // namespace standalone

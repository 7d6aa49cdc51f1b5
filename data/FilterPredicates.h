#pragma once

#include <cstdint>
#include <unordered_map>

#include "data/FilterGroups.h"

namespace Vantrel {

/// The predicate of every filter that can be switched on, by its identifier. A predicate raises the
/// host's null-pointer error naming the interface that a clip, child clip, master clip or track lacks.
/// Built once, on first use. [any-thread]
const std::unordered_map<std::uint32_t, FilterPredicate>& GetFilterPredicates();

}  // namespace Vantrel

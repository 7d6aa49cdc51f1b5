#pragma once

#include <cstdint>
#include <unordered_map>

#include "data/FilterGroups.h"

namespace Vantrel {

/// The predicate of every filter that can be switched on, by its identifier. A predicate that asks a
/// clip fails for every row that is not a clip's. It raises the host's null-pointer error naming the
/// interface that it needs and the clip lacks (clip, media, components, child clip, track; of a still
/// the master clip). Built once, on first use. [any-thread]
const std::unordered_map<std::uint32_t, FilterPredicate>& GetFilterPredicates();

}  // namespace Vantrel

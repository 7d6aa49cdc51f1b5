#pragma once

#include <vector>

#include "data/FilterGroups.h"
#include "host/MZ/SequenceIndexOptions.h"

namespace Vantrel {

/// The groups that a row must pass under these options: one for the label colours, if any are chosen,
/// then one for the switched-on filters, if there are any. [any-thread]
/// Throws: std::out_of_range, "invalid unordered_map<K, T> key", when a filter is switched on that does
/// not exist.
std::vector<FilterGroup> GenerateFiltersFromOptions(const MZ::SequenceIndex::Options& options);

}  // namespace Vantrel

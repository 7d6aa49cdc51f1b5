#pragma once

#include "host/MZ/SequenceIndexOptions.h"
#include "host/qelcore/UTF8String.h"

namespace Vantrel {

/// Whether the options are others than those of a fresh panel, in whatever they say.
bool AreFiltersActive(const MZ::SequenceIndex::Options& options);

/// The filter button's tooltip: how to clear all filters, and below it, while the options are active,
/// the labels of the filters that are switched on, a line each. [main-thread]
/// Throws: std::out_of_range, "invalid unordered_map<K, T> key", for active options that lack a filter.
qelcore::UTF8String MakeFilterToolTip(const MZ::SequenceIndex::Options& options);

}  // namespace Vantrel

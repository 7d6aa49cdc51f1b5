#pragma once

#include "generator/TimelineShape.h"
#include "standalone/model/SequenceDraft.h"

namespace generator {

/// The timeline as a reader gives it that reads what WriteTimeline() writes: one long sequence and
/// those that are nested in it, on a machine that has none of its media. Throws std::invalid_argument
/// for a shape that no timeline can have.
standalone::DocumentDraft MakeDocument(const TimelineShape& shape);

}  // namespace generator

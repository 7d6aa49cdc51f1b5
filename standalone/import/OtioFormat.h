#pragma once

#include "standalone/import/OtioImport.h"
#include "standalone/import/OtioRates.h"
#include "standalone/model/SequenceDraft.h"

namespace standalone {

/// Rates, timecode, time display and start of a sequence. `timeline` is none for what has no format of
/// its own. Where the file is silent about a sequence that stands for itself, `object` is what the
/// report says the assumption about; none for a nested one.
void ReadOtioFormat(JsonValue timeline, JsonValue object, const OtioSequenceRate& rates,
                    OtioImport& import, const OtioPlace& place, SequenceDraft& sequence);

}  // namespace standalone

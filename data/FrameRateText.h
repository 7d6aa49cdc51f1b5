#pragma once

#include "data/TrackItemRowData.h"
#include "host/qelcore/UTF8String.h"

namespace Vantrel {

/// A row's rate for people: pictures a second of a picture row, samples a second of any other. Empty
/// when it is not known. [any-thread]
qelcore::UTF8String FrameRateText(const TrackItemRowData& row);

}  // namespace Vantrel

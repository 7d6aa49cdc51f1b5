#pragma once

#include "host/qelcore/Guid.h"

namespace BE {

/// What a track carries. A track group's identifier is that of its media type.
using MediaType = qelcore::utility::Guid;

inline constexpr MediaType kMediaType_Video =
    qelcore::utility::MakeGuid(0x2d4d253618da8c22, 0x93ede47988341e95);
inline constexpr MediaType kMediaType_Audio =
    qelcore::utility::MakeGuid(0x9541ca6dd5e3b880, 0x09b07a405fcbfbae);

}  // namespace BE

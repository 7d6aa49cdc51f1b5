#pragma once

#include <cstddef>

#include "standalone/model/SequenceDraft.h"

namespace scaling {

/// A document of that many clips, such as the long timeline file gives: four tracks of picture and four
/// of sound with gaps, transitions, effects, titles, proxies and nested sequences. Texts and media grow
/// with the number of clips.
standalone::DocumentDraft MakeLongDocument(std::size_t clips);

}  // namespace scaling

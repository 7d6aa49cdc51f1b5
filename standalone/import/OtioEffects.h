#pragma once

#include <string>
#include <vector>

#include "standalone/import/OtioImport.h"
#include "standalone/import/OtioMedia.h"
#include "standalone/model/SequenceDraft.h"

namespace standalone {

/// The effects of a clip or nested item: into components, and changes of speed into the flag.
void ReadEffects(JsonValue item, OtioImport& import, const OtioPlace& place, ClipDraft& clip);

/// Adds a text component for the fonts that our metadata or the generator's parameters name, and tells
/// whether the item is a graphic: flagged so, a generator that draws text, or with listed fonts.
void ReadGraphics(JsonValue item, const OtioReference& reference, ClipDraft& clip);

TransitionDraft ReadTransition(JsonValue transition);

}  // namespace standalone

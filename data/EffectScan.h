#pragma once

#include "data/ListText.h"
#include "data/TextShare.h"
#include "host/BE/Model.h"

namespace Vantrel {

/// Appends the names of the effects that somebody added to a clip, in component order; what every clip
/// has is left out. A missing effect stands in the first list only. [any-thread]
/// Throws: null_pointer_exception for an empty component.
void ScanEffects(const BE::IComponentOwner& components, TextShare& texts, ListTexts& effects);

}  // namespace Vantrel

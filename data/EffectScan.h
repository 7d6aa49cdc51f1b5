#pragma once

#include "data/ListText.h"
#include "host/BE/Model.h"

namespace Vantrel {

/// The names of the effects that somebody added to a clip, in component order; what every clip has is
/// left out. A missing effect stands in the first list only. [any-thread]
/// Throws: null_pointer_exception for an empty component.
NameLists ScanEffects(const BE::IComponentOwner& components);

}  // namespace Vantrel

#pragma once

#include "host/UIF/ShortcutManager.h"

namespace Vantrel {

/// Adds the panel's command context, "Sequence Index Panel", to `manager`. Adding it again changes
/// nothing. [main-thread]
void RegisterSequenceIndexCommandContext(UIF::ShortcutManager& manager);

}  // namespace Vantrel

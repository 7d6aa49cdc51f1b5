#pragma once

#include "host/HSL/Module.h"
#include "host/HostAPI.h"
#include "host/qelcore/UTF8String.h"

namespace Vantrel {

/// The library's one exported entry: creates the module and registers the panel's command context.
/// The caller owns the result. Null when there is no memory for it. [main-thread]
HOST_API HSL::Module* CreateModule(const qelcore::UTF8String& moduleID);

}  // namespace Vantrel

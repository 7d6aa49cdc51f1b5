#pragma once

#include <string_view>

#include "host/qelcore/UTF8String.h"

namespace Vantrel {

/// The host's text for a localisation key. Keep it in a function-local static: resolved at first use,
/// once, and given back when the module is unloaded. Not to be called while the module is loading.
/// [any-thread]
qelcore::UTF8String Localize(std::string_view key);

}  // namespace Vantrel

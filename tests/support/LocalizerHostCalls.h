#pragma once

#include <string_view>

#include "host/qelcore/Localizer.h"
#include "support/HostCalls.h"
#include "support/LocalizedKeys.h"

// The localiser, watched: a definition, for exactly one source of a test program.

namespace qelcore::config {

UTF8String Localizer::Localize(std::string_view key) const {
  hostcalls::LocalizedKeys::Get().Add(key);
  using Function = UTF8String (*)(const Localizer*, std::string_view);
  static const auto real = hostcalls::Real<Function>(
      "_ZNK7qelcore6config9Localizer8LocalizeESt17basic_string_viewIcSt11char_traitsIcEE");
  return real(this, key);
}

}  // namespace qelcore::config

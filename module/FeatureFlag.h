#pragma once

#include <string_view>

namespace Vantrel {

/// The name of the panel's feature flag, which is also the identifier of its command context and of
/// its entry in the Window menu.
inline constexpr std::string_view kSequenceIndexFeatureName = "SequenceIndex";

}  // namespace Vantrel

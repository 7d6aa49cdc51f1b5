#pragma once

#include <cstdint>
#include <string_view>

namespace ML {

/// The match name of the component that draws a text document.
inline constexpr std::string_view kMatchnameText = "Text";

/// The parameter of that component which holds the text document.
inline constexpr std::uint32_t kTextFilter_DocumentParamIndex = 0;

}  // namespace ML

#pragma once

#include <cstdint>
#include <string>

#include "host/HostAPI.h"

namespace qelcore::utility {

/// The four characters of a media code such as 'apcn', first character in the highest byte, as
/// UTF-16. Trailing zero bytes and blanks are left out, other unprintable bytes become "?"; the code 0
/// gives an empty text. [any-thread]
HOST_API std::u16string FourCCToString(std::uint32_t code);

}  // namespace qelcore::utility

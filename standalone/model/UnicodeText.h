#pragma once

#include <string>
#include <string_view>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// UTF-16 of `text`. What is no UTF-8 (broken or overlong sequences, surrogates, values above U+10FFFF)
/// becomes U+FFFD, one for each longest run of bytes that could have begun a character. [any-thread]
STANDALONE_API std::u16string UTF8To16(std::string_view text);

}  // namespace standalone

#pragma once

#include <string>
#include <string_view>

#include "host/HostAPI.h"

namespace ZSL::PathUtils {

/// The path as it is shown to people, in UTF-16. Bytes that are no UTF-8 become U+FFFD; nothing else
/// changes, whatever separators the path uses. [any-thread]
HOST_API std::u16string GetDisplayStringFromPath(std::string_view path);

}  // namespace ZSL::PathUtils

#include "host/ZSL/PathUtils.h"

#include "standalone/model/UnicodeText.h"

namespace ZSL::PathUtils {

std::u16string GetDisplayStringFromPath(std::string_view path) {
  return standalone::UTF8To16(path);
}

}  // namespace ZSL::PathUtils

#include "standalone/app/NameList.h"

#include <algorithm>

namespace standalone {

namespace {

char LowerCase(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

bool IsSameName(std::string_view left, std::string_view right) {
  return std::ranges::equal(left, right, {}, &LowerCase, &LowerCase);
}

}  // namespace standalone

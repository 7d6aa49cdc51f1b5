#include "standalone/model/TextCase.h"

#include <algorithm>

namespace standalone {
namespace {

bool IsSameLetter(char left, char right) {
  return LowerLetter(left) == LowerLetter(right);
}

}  // namespace

bool EqualsIgnoringCase(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(), IsSameLetter);
}

bool ContainsIgnoringCase(std::string_view text, std::string_view part) {
  return std::search(text.begin(), text.end(), part.begin(), part.end(), IsSameLetter) != text.end() ||
         part.empty();
}

}  // namespace standalone

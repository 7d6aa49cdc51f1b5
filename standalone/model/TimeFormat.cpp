#include "standalone/model/TimeFormat.h"

#include <algorithm>

#include "standalone/model/TextCase.h"

namespace standalone {
namespace {

/// Letters in lower case, and one sign for all that can stand between words.
char Normalise(char c) {
  return c == ' ' || c == '+' || c == '_' ? '-' : LowerLetter(c);
}

bool IsSameName(std::string_view left, std::string_view right) {
  return std::ranges::equal(left, right, {}, &Normalise, &Normalise);
}

}  // namespace

std::optional<TimeFormat> FindTimeFormat(std::string_view name) {
  const auto found = std::ranges::find_if(
      kTimeFormatNames, [name](std::string_view known) { return IsSameName(known, name); });
  if (found == kTimeFormatNames.end()) return std::nullopt;
  return static_cast<TimeFormat>(found - kTimeFormatNames.begin());
}

}  // namespace standalone

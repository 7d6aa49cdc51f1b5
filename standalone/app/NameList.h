#pragma once

#include <string>
#include <string_view>

namespace standalone {

/// Whether two names differ in the case of ASCII letters at most.
bool IsSameName(std::string_view left, std::string_view right);

/// The names that `getName` tells of some things, as a sentence lists them: "a, b, c".
template <typename Things, typename GetName>
std::string ListNames(const Things& things, GetName getName) {
  std::string list;
  for (const auto& thing : things) list.append(list.empty() ? "" : ", ").append(getName(thing));
  return list;
}

}  // namespace standalone

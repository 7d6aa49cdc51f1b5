#pragma once

#include <string>

namespace standalone {

/// The names that `getName` tells of some things, as a sentence lists them: "a, b, c".
template <typename Things, typename GetName>
std::string ListNames(const Things& things, GetName getName) {
  std::string list;
  for (const auto& thing : things) list.append(list.empty() ? "" : ", ").append(getName(thing));
  return list;
}

}  // namespace standalone

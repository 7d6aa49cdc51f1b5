#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

#include "host/HostAPI.h"
#include "host/qelcore/UTF8String.h"

namespace qelcore::utility {

/// A name that never changes after it was made, such as a station's. Cheap to copy and to compare.
/// [any-thread]
class ImmutableString {
 public:
  ImmutableString() noexcept = default;
  explicit ImmutableString(std::string_view text) : text(text) {}

  std::string_view View() const noexcept { return text.View(); }
  bool Empty() const noexcept { return text.Empty(); }
  friend bool operator==(const ImmutableString&, const ImmutableString&) noexcept = default;

 private:
  UTF8String text;
};

}  // namespace qelcore::utility

template <>
struct std::hash<qelcore::utility::ImmutableString> {
  std::size_t operator()(const qelcore::utility::ImmutableString& name) const noexcept {
    return std::hash<std::string_view>()(name.View());
  }
};

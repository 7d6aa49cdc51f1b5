#pragma once

#include <concepts>
#include <string>
#include <string_view>

#include "host/qelcore/UTF8String.h"

namespace standalone {

/// A text of a draft that many clips share, as they do their media: copies count up instead of copying.
/// Otherwise used like a constant std::string. [any-thread]
class SharedText {
 public:
  SharedText() noexcept = default;
  SharedText(std::string_view given) : text(given) {}               // NOLINT: as a std::string is
  SharedText(const std::string& given) : text(given) {}             // NOLINT
  SharedText(const char* given) : text(std::string_view(given)) {}  // NOLINT

  bool empty() const noexcept { return text.Empty(); }
  operator std::string_view() const noexcept { return text.View(); }
  const qelcore::UTF8String& Get() const noexcept { return text; }

  friend bool operator==(const SharedText&, const SharedText&) noexcept = default;
  template <std::convertible_to<std::string_view> Text>
  friend bool operator==(const SharedText& left, const Text& right) noexcept {
    return left.text == std::string_view(right);
  }

 private:
  qelcore::UTF8String text;
};

}  // namespace standalone

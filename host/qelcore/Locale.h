#pragma once

#include <array>

#include "host/HostAPI.h"

namespace qelcore {

/// A classification of bytes. [any-thread]
class HOST_API Locale {
 public:
  Locale(const Locale&) = delete;
  Locale& operator=(const Locale&) = delete;

  /// The classic locale: only "A" to "Z" have a lower case, whatever the user's locale. Bytes of longer
  /// characters stay, so that UTF-8 remains UTF-8.
  static const Locale& Default() noexcept;

  char ToLower(char byte) const noexcept { return lowered[static_cast<unsigned char>(byte)]; }

 private:
  Locale() noexcept;

  std::array<char, 256> lowered;
};

}  // namespace qelcore

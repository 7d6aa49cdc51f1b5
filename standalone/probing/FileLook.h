#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace standalone {

/// What tells one state of a file from another without reading it.
struct FileLook {
  std::int64_t size = 0;
  /// Nanoseconds since 1970.
  std::int64_t modified = 0;

  friend bool operator==(const FileLook&, const FileLook&) noexcept = default;
};

/// None when nothing lies there, or below what is no folder (an archive).
std::optional<FileLook> LookAtFile(const std::string& path);

}  // namespace standalone

#pragma once

#include <filesystem>
#include <string>

#include "standalone/media/contract/MediaReading.h"
#include "support/Process.h"

extern "C" void ReadSequenceIndexMedia(const standalone::MediaReadRequest& request,
                                       standalone::MediaReading& reading) noexcept;

namespace fixtures {

inline std::filesystem::path File(const std::string& name) {
  return std::filesystem::path(SOURCE_FOLDER) / "tests" / "media" / "fixtures" / name;
}

/// Reads a file through the library's entry.
inline standalone::MediaReading Read(const std::filesystem::path& file) {
  standalone::MediaReadRequest request;
  request.path = file.native();
  standalone::MediaReading reading;
  ReadSequenceIndexMedia(request, reading);
  return reading;
}

}  // namespace fixtures

#pragma once

#include <string>

#include "standalone/media/contract/MediaReading.h"

namespace standalone {

/// Why a file could not be read. Never leaves the library.
struct ReadFailure {
  MediaOutcome outcome = MediaOutcome::kInaccessible;
  std::string reason;
};

}  // namespace standalone

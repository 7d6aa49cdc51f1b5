#pragma once

#include <optional>
#include <string>

#include "standalone/import/MediaRoots.h"

namespace standalone {

/// How a timeline file and what belongs to it are read.
struct ReadingOptions {
  MediaRoots mediaRoots;
  /// Whether media files are read for what the timeline does not tell.
  bool isProbing = true;
  /// The file that lists the effects which are there; none: only the timeline calls effects missing.
  std::optional<std::string> effectsList;
  /// Whether to list what the index can't show of a file.
  bool isReporting = false;
};

}  // namespace standalone

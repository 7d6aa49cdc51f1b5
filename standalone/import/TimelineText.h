#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "standalone/import/TextSource.h"
#include "standalone/import/TimelineReader.h"
#include "standalone/import/TimelineSource.h"

namespace standalone {

/// A timeline as it lies in a file or in a bundle.
struct TimelineText {
  std::unique_ptr<TextSource> text;
  /// Enough of it for any format to show itself behind blanks and comments.
  std::string beginning;
  TimelineSource source;
  /// Name of the file inside the bundle; empty: no bundle.
  std::string bundledFile = {};
};

/// Reads a file, or the timeline of a bundle: of a folder, or of a zip archive whatever its name. An
/// archive's media are never read. Throws ImportError.
TimelineText ReadTimelineText(const std::filesystem::path& file, const ImportProgress& progress);

}  // namespace standalone

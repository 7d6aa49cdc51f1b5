#pragma once

#include <filesystem>
#include <string>

#include "standalone/import/MediaFolder.h"
#include "standalone/import/MediaRoots.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Where a timeline's text comes from.
struct TimelineSource {
  /// For what has no name of its own: the file's name without its extension.
  std::string stem;
  MediaFolder mediaFolder;
  /// Where media is looked for that does not lie where its address says.
  MediaRoots mediaRoots;
};

/// A plain file: media lie in its folder.
STANDALONE_API TimelineSource DescribeFile(const std::filesystem::path& file);

/// A bundle, folder or archive, that has its media within. `bundle` may end in a slash.
TimelineSource DescribeBundle(const std::filesystem::path& bundle);

}  // namespace standalone

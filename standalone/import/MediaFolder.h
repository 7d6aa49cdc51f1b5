#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <unordered_set>

namespace standalone {

/// Where the relative media addresses of a timeline lead: to a folder, or into an archive that holds
/// the timeline together with its media.
struct MediaFolder {
  /// Absolute: the folder's path, or the archive's own, below which its files are said to lie.
  std::filesystem::path path;
  /// The names of the archive's files ("media/clip.mov"), without those of its folders; null: the media
  /// lie on disk.
  std::shared_ptr<const std::unordered_set<std::string>> archivedFiles = nullptr;
};

}  // namespace standalone

#pragma once

#include <mutex>
#include <optional>
#include <string>
#include <unordered_map>

#include "standalone/media/contract/MediaReading.h"
#include "standalone/probing/FileLook.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// What was read from media files, so that a timeline that is loaded again reads only those that
/// changed. [any-thread]
class STANDALONE_API MediaCache {
 public:
  /// What was read from the file when it looked like that.
  std::optional<MediaReading> Find(const std::string& path, const FileLook& look) const;

  /// Takes the place of what was read before. Only what depends on the content alone is kept: files
  /// that the platform refused, that took too long or whose read was cancelled are read again.
  void Store(const std::string& path, const FileLook& look, const MediaReading& reading);

 private:
  struct Entry {
    FileLook look;
    MediaReading reading;
  };
  mutable std::mutex mutex;
  std::unordered_map<std::string, Entry> entries;
};

}  // namespace standalone

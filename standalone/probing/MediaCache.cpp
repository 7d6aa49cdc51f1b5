#include "standalone/probing/MediaCache.h"

namespace standalone {

namespace {

bool DependsOnContentAlone(MediaOutcome outcome) {
  return outcome == MediaOutcome::kRead || outcome == MediaOutcome::kUnknownKind ||
         outcome == MediaOutcome::kDamaged;
}

}  // namespace

std::optional<MediaReading> MediaCache::Find(const std::string& path, const FileLook& look) const {
  const std::scoped_lock lock(mutex);
  const auto found = entries.find(path);
  if (found == entries.end() || found->second.look != look) return std::nullopt;
  return found->second.reading;
}

void MediaCache::Store(const std::string& path, const FileLook& look, const MediaReading& reading) {
  if (!DependsOnContentAlone(reading.outcome)) return;
  const std::scoped_lock lock(mutex);
  entries.insert_or_assign(path, Entry{look, reading});
}

}  // namespace standalone

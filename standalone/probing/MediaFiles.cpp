#include "standalone/probing/MediaFiles.h"

#include <string_view>
#include <unordered_set>

namespace standalone {

bool HasReadableFile(const MediaDraft& media) {
  return !media.lookUpPath.empty() && !media.isOffline && !media.isSynthetic;
}

std::vector<std::string> GatherMediaFiles(const DocumentDraft& document) {
  std::vector<std::string> files;
  std::unordered_set<std::string_view> known;
  for (const SequenceDraft& sequence : document.sequences) {
    for (const TrackDraft& track : sequence.tracks) {
      for (const TrackItemDraft& item : track.items) {
        if (!item.clip || !HasReadableFile(item.clip->media)) continue;
        const std::string_view path = item.clip->media.lookUpPath;
        if (known.insert(path).second) files.emplace_back(path);
      }
    }
  }
  return files;
}

}  // namespace standalone

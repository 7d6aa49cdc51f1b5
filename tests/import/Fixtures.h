#pragma once

#include <filesystem>
#include <string>

#include "standalone/import/TimelineReader.h"

namespace fixtures {

inline std::filesystem::path Folder() {
  return std::filesystem::path(SOURCE_FOLDER) / "tests" / "import" / "fixtures";
}

inline standalone::ImportResult Read(const std::string& name) {
  return standalone::ReadTimelineFile(Folder() / name);
}

/// The only sequence of a fixture.
inline standalone::SequenceDraft ReadSequence(const std::string& name) {
  return Read(name).document.sequences.at(0);
}

/// A clip of a fixture's first sequence by track and position.
inline standalone::ClipDraft Clip(const standalone::SequenceDraft& sequence, std::size_t track,
                                  std::size_t item) {
  return sequence.tracks.at(track).items.at(item).clip.value();
}

}  // namespace fixtures

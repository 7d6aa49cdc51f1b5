#pragma once

#include <cstddef>
#include <filesystem>

namespace scaling {

/// Writes a timeline of that many clips as editing programs leave them: four tracks of picture and four
/// of sound with gaps, transitions, effects, markers, proxies, nested sequences, and notes of our own
/// and of other programs. Tracks grow with the number of clips, and so does the media they play. The
/// same number gives the same bytes.
void WriteTimeline(const std::filesystem::path& file, std::size_t clips);

}  // namespace scaling

#pragma once

#include <filesystem>
#include <iosfwd>

#include "generator/TimelineShape.h"

namespace generator {

/// Writes the timeline that MakeDocument() gives as an OpenTimelineIO file such as editing programs
/// leave: a line for each member, indented by four, with notes of theirs that no reader looks at;
/// about 2.5 KB a clip. Takes memory for the media only. Throws std::invalid_argument for a shape that
/// no timeline can have, and std::ios_base::failure.
void WriteTimeline(const std::filesystem::path& file, const TimelineShape& shape);
/// The same text into a stream, which tells by its state whether all was written.
void WriteTimeline(std::ostream& stream, const TimelineShape& shape);

}  // namespace generator

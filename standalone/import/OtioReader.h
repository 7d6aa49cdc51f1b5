#pragma once

#include "standalone/import/TimelineReader.h"

namespace standalone {

/// Reads OpenTimelineIO's JSON (.otio): a timeline, a collection of timelines, or a stack, track or
/// clip that stands alone, in all versions of the format, whatever the order of an object's members.
class STANDALONE_API OtioReader final : public TimelineReader {
 public:
  std::string_view GetFormatName() const override;
  bool Recognises(std::string_view beginning, const std::filesystem::path& file) const override;
  using TimelineReader::Read;
  ImportResult Read(TextSource& text, const TimelineSource& source,
                    const ImportProgress& progress) const override;
};

}  // namespace standalone

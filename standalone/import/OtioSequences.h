#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "standalone/import/OtioRates.h"
#include "standalone/import/OtioTrackLayout.h"

namespace standalone {

/// Builds the sequences of a file: those that stand for themselves, and the ones nested in them, which
/// come behind, each before the ones nested in it.
class OtioSequenceBuilder {
 public:
  /// `timelineCount` sequences stand for themselves; nested ones count from there.
  OtioSequenceBuilder(OtioImport& import, std::size_t timelineCount)
      : import(import), timelineCount(timelineCount) {}

  /// A timeline, or a stack, track or clip that stands alone. Without a name it takes the file's.
  /// Throws ImportError when it is nested deeper than 256 levels, or when the read is cancelled.
  SequenceDraft Build(JsonValue object);

  std::vector<SequenceDraft> TakeNested() { return std::move(nestedSequences); }

 private:
  struct Content {
    SequenceDraft sequence;
    /// Of the longest track.
    TimeSum length;
  };
  struct Parent {
    std::string_view place;
    std::optional<Rate> rate;
    std::size_t depth = 0;
  };

  /// `timeline` is none for what has no start time and format of its own; `hasWindow` is false where
  /// the composition's own range is not a window on it but the part that its parent plays.
  Content BuildContent(JsonValue timeline, JsonValue composition, bool hasWindow, std::string name,
                       const Parent& parent);
  OtioNestedSequence BuildNested(JsonValue item, const Parent& parent);

  OtioImport& import;
  std::size_t timelineCount;
  std::vector<SequenceDraft> nestedSequences;
};

}  // namespace standalone

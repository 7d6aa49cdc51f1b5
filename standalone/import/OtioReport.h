#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "standalone/import/OtioPlace.h"
#include "standalone/import/RationalTime.h"
#include "standalone/import/TimelineReader.h"

namespace standalone {

/// What a timeline may hold that the index can't show, and what is assumed where the file is silent.
/// Those that come with clips are counted.
enum class OtioRemark : std::uint8_t {
  kTimelineMarkers,
  kTrackMarkers,
  kClipMarkers,
  kGapMarkers,
  kTimelineEffects,
  kTrackEffects,
  kGapEffects,
  kDisabledEffects,
  kSpeeds,
  kFurtherMedia,
  kTitleTexts,
  kGenerators,
  kBeginningsInMedia,
  kTransitionLengths,
  kItemsOutsideRange,
  kNestedContents,
  kUnknownContents,
  // From here on: assumed.
  kNameOfFile,
  kZeroStart,
  kDropFrame,
  kTrackKinds,
  kTracksAroundItems,
  kGapsAtEnd,
  kNamesOfMedia,
  kLengthsOfMedia,
  kFrameRatesOfSequence,
  kSampleRates,
  kProxiesByName,
  kBuiltInPanels,
  kMediaOnline,
  kForeignPaths,
  kCount,  ///< The number of remarks, no remark.
};

/// Collects the report of one read: a line for each remark, with the place of the first thing that it
/// is about and their number. Counting a further one costs an addition.
class OtioReport {
 public:
  void Count(OtioRemark remark, const OtioPlace& place, JsonValue object, std::size_t count = 1);
  /// A line of its own, for what comes a few times in a file.
  void Add(const OtioPlace& place, JsonValue object, std::string sentence);
  /// The rate of an object's times is written as `text`, a rounded decimal that means `rate`.
  void CountRoundedRate(const OtioPlace& place, JsonValue object, std::string_view text,
                        const Rate& rate);
  /// The metadata that the tree has dropped.
  void AddUnreadMetadata(const JsonTree& tree, bool hasSeveralTimelines);

  /// In the order of the file.
  std::vector<ImportNote> TakeLines();

 private:
  struct First {
    std::string place;
    std::size_t line = 0;
    std::uint32_t index = 0;
  };
  struct Counter {
    First first;
    std::size_t count = 0;
  };
  struct RoundedRate {
    Counter counter;
    std::string text;
    Rate rate;
  };
  struct Line {
    std::uint32_t index = 0;
    ImportNote note;
  };

  static void Count(Counter& counter, const OtioPlace& place, JsonValue object, std::size_t count);
  void AddLine(const First& first, std::string sentence);

  std::array<Counter, static_cast<std::size_t>(OtioRemark::kCount)> counters;
  std::vector<RoundedRate> roundedRates;
  std::vector<Line> lines;
};

}  // namespace standalone

#pragma once

#include <optional>
#include <string_view>

#include "standalone/import/JsonTree.h"
#include "standalone/import/RationalTime.h"

namespace standalone {

/// A time as the file holds it.
struct OtioTimeReading {
  /// Empty when it is absent or can't be used.
  std::optional<RationalTime> time;
  /// Known even when the value can't be used.
  std::optional<Rate> rate;
  /// How the file writes the rate, where that is a rounded decimal; else empty.
  std::string_view roundedRate;
  /// What is wrong, as the end of a sentence ("is not a number"); empty: nothing, or absent.
  std::string_view trouble;
};

OtioTimeReading ReadOtioTime(JsonValue rationalTime);

/// A range as the file holds it. A negative duration is trouble and counts as unknown.
struct OtioRange {
  bool isPresent = false;
  OtioTimeReading start;
  OtioTimeReading duration;

  /// The rate that the range is counted in, if any.
  std::optional<Rate> GetRate() const { return duration.rate ? duration.rate : start.rate; }
};

OtioRange ReadOtioRange(JsonValue timeRange);

}  // namespace standalone

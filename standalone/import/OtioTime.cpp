#include "standalone/import/OtioTime.h"

namespace standalone {

OtioTimeReading ReadOtioTime(JsonValue rationalTime) {
  OtioTimeReading reading;
  if (!rationalTime.HasValue()) return reading;
  const auto value = ParseDecimal(rationalTime[JsonKey::kValue].GetNumber());
  const std::string_view rate = rationalTime[JsonKey::kRate].GetNumber();
  reading.rate = ParseRate(rate);
  if (reading.rate && IsRoundedRate(rate, *reading.rate)) reading.roundedRate = rate;
  if (!value) {
    reading.trouble = "is not a number";
  } else if (!reading.rate) {
    reading.trouble = "has no usable rate";
  } else {
    reading.time = RationalTime{*value, *reading.rate};
  }
  return reading;
}

OtioRange ReadOtioRange(JsonValue timeRange) {
  OtioRange range;
  if (!timeRange.HasValue()) return range;
  range.isPresent = true;
  range.start = ReadOtioTime(timeRange[JsonKey::kStartTime]);
  range.duration = ReadOtioTime(timeRange[JsonKey::kDuration]);
  if (!range.duration.time && range.duration.trouble.empty()) range.duration.trouble = "is missing";
  if (range.duration.time && range.duration.time->value.units < 0) {
    range.duration.time.reset();
    range.duration.trouble = "is negative";
  }
  return range;
}

}  // namespace standalone

#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <string>

#include "scaling/AllocationWatch.h"
#include "standalone/app/Arguments.h"
#include "support/Process.h"

namespace scaling {

/// Containers grow by doubling: at a power of two both runs stand at the same point between two
/// doublings, with as much room unused in the one as in the other.
constexpr std::size_t kTimesMore = 8;

/// A tenth more covers what comes by chance. What a stage takes however short the timeline is comes on
/// top.
inline std::uint64_t GetLimit(std::uint64_t smaller, std::uint64_t basis) {
  return smaller * kTimesMore * 11 / 10 + basis;
}

inline void ExpectProportional(const Allocations& smaller, const Allocations& larger) {
  constexpr std::uint64_t kBasicCount = 1000;
  constexpr std::uint64_t kBasicBytes = 1 << 20;
  EXPECT_GT(smaller.bytes, 0U);
  EXPECT_LE(larger.count, GetLimit(smaller.count, kBasicCount));
  EXPECT_LE(larger.bytes, GetLimit(smaller.bytes, kBasicBytes));
  // The shorter one may have lived on memory that was kept from before.
  EXPECT_LE(larger.peakBytes, GetLimit(smaller.peakBytes, 2 * kBasicBytes));
}

/// The figures of one clip stand in the test's report.
inline void Report(const Allocations& allocations, std::size_t clips) {
  const auto record = [clips](const char* name, std::uint64_t value) {
    const auto hundredths = value * 100 / clips;
    testing::Test::RecordProperty(name, std::to_string(hundredths / 100) + "." +
                                            std::to_string(hundredths % 100 + 100).substr(1));
  };
  record("allocationsPerClip", allocations.count);
  record("bytesPerClip", allocations.bytes);
  record("peakBytesPerClip", allocations.peakBytes);
}

/// All columns and rows.
inline standalone::IndexOptions ShowEverything() {
  standalone::IndexOptions options;
  options.rows.isKeepingGaps = true;
  options.columns.kind = standalone::ColumnChoice::Kind::kAll;
  return options;
}

class Growth : public testing::Test {
 protected:
  /// `measure` gets a number of clips and returns what its stage took.
  template <typename Measure>
  void ExpectInProportion(const Measure& measure, std::size_t clips = 12500) {
    const Allocations smaller = measure(clips);
    const Allocations larger = measure(kTimesMore * clips);
    Report(larger, kTimesMore * clips);
    ExpectProportional(smaller, larger);
  }

  const process::Folder folder;
};

}  // namespace scaling

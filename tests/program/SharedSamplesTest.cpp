#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

#include "support/Csv.h"
#include "support/Process.h"

/// Real files of several writers, where the collection is at hand beside the repository.
namespace {

struct Sample {
  const char* file;
  long clips;
  long gaps;  ///< without those at the end of a track
};

constexpr Sample kSamples[] = {
    {"Markers.otio", 4, 2},
    {"MovieAndSeq.otio", 3, 0},
    {"MultipleEffects.otio", 2, 0},
    {"MultipleRates.otio", 1, 2},
    {"SingleClip.otioz", 2, 0},
    {"TransitionOverlay.otio", 6, 0},
    {"aaf_metadata.otio", 2, 0},
    {"big_int.otio", 1, 0},
    {"enabled.otio", 3, 1},
    {"generator_reference_test.otio", 1, 0},
    {"multitrack.otio", 5, 4},
    {"nested_example.otio", 7, 0},
    {"own_all_columns_25fps.otio", 8, 3},
    {"own_bundle.otiod", 2, 0},
    {"own_collection_legacy_unknown.otio", 2, 1},
    {"own_dropframe_2997.otio", 7, 1},
    {"resolve_effects.otio", 37, 9},
    {"screening_example.otio", 9, 0},
    {"transition_test.otio", 3, 0},
};

class SharedSample : public testing::TestWithParam<Sample> {};

TEST_P(SharedSample, IsExportedWithEveryClipAndEveryGap) {
  const std::filesystem::path file = std::filesystem::path(SHARED_SAMPLES) / "otio" / GetParam().file;
  if (!std::filesystem::exists(file)) return;
  const process::Outcome outcome =
      process::Run({PROGRAM, "export", file.native(), "--gaps", "--columns", "all", "-o", "-"});
  EXPECT_EQ(outcome.code, 0) << outcome.errors;
  const auto rows = csv::Parse(outcome.output);
  ASSERT_FALSE(rows.empty());
  const std::size_t name = csv::FindColumn(rows.front(), "Clip Name");
  const long gaps = std::count_if(rows.begin() + 1, rows.end(),
                                  [name](const csv::Row& row) { return row[name] == "Gap"; });
  EXPECT_EQ(gaps, GetParam().gaps);
  EXPECT_EQ(static_cast<long>(rows.size()) - 1 - gaps, GetParam().clips);
}

TEST_P(SharedSample, IsPrintedWithALineForEachOfThem) {
  const std::filesystem::path file = std::filesystem::path(SHARED_SAMPLES) / "otio" / GetParam().file;
  if (!std::filesystem::exists(file)) return;
  const process::Outcome outcome = process::Run({PROGRAM, "table", file.native(), "--gaps"});
  EXPECT_EQ(outcome.code, 0) << outcome.errors;
  const long lines = std::count(outcome.output.begin(), outcome.output.end(), '\n');
  EXPECT_EQ(lines, 1 + GetParam().clips + GetParam().gaps);
}

INSTANTIATE_TEST_SUITE_P(All, SharedSample, testing::ValuesIn(kSamples),
                         [](const testing::TestParamInfo<Sample>& sample) {
                           std::string name = sample.param.file;
                           name.resize(name.find('.'));
                           return name;
                         });

}  // namespace

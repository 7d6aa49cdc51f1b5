#include "standalone/probing/MediaCache.h"

#include <gtest/gtest.h>

namespace standalone {
namespace {

MediaReading Reading(MediaOutcome outcome) {
  MediaReading reading;
  reading.outcome = outcome;
  return reading;
}

TEST(MediaCaches, KnowAFileAsLongAsItLooksTheSame) {
  MediaCache cache;
  cache.Store("/a", {10, 5}, Reading(MediaOutcome::kRead));
  EXPECT_TRUE(cache.Find("/a", {10, 5}));
  EXPECT_FALSE(cache.Find("/a", {11, 5}));
  EXPECT_FALSE(cache.Find("/a", {10, 6}));
  EXPECT_FALSE(cache.Find("/b", {10, 5}));
}

TEST(MediaCaches, TheNewestReadCounts) {
  MediaCache cache;
  cache.Store("/a", {10, 5}, Reading(MediaOutcome::kDamaged));
  cache.Store("/a", {12, 6}, Reading(MediaOutcome::kRead));
  EXPECT_FALSE(cache.Find("/a", {10, 5}));
  EXPECT_EQ(cache.Find("/a", {12, 6})->outcome, MediaOutcome::kRead);
}

TEST(MediaCaches, KeepOnlyWhatTheContentDecides) {
  MediaCache cache;
  for (const MediaOutcome outcome : {MediaOutcome::kInaccessible, MediaOutcome::kTimeLimit,
                                     MediaOutcome::kCancelled, MediaOutcome::kAbsent}) {
    cache.Store("/a", {10, 5}, Reading(outcome));
    EXPECT_FALSE(cache.Find("/a", {10, 5}));
  }
  for (const MediaOutcome outcome : {MediaOutcome::kUnknownKind, MediaOutcome::kDamaged}) {
    cache.Store("/a", {10, 5}, Reading(outcome));
    EXPECT_TRUE(cache.Find("/a", {10, 5}));
  }
}

}  // namespace
}  // namespace standalone

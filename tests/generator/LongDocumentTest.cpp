#include "generator/LongDocument.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "generator/TimelinePlan.h"

/// What a generated timeline holds.
namespace {

using standalone::ClipDraft;
using standalone::DocumentDraft;
using standalone::TrackDraft;
using standalone::TrackItemDraft;

std::vector<const ClipDraft*> GetClips(const DocumentDraft& document) {
  std::vector<const ClipDraft*> clips;
  for (const TrackDraft& track : document.sequences.front().tracks) {
    for (const TrackItemDraft& item : track.items) {
      if (item.clip) clips.push_back(&*item.clip);
    }
  }
  return clips;
}

std::size_t Count(const std::vector<const ClipDraft*>& clips,
                  const std::function<bool(const ClipDraft&)>& predicate) {
  return static_cast<std::size_t>(std::count_if(
      clips.begin(), clips.end(), [&](const ClipDraft* clip) { return predicate(*clip); }));
}

TEST(GeneratedDocument, HasExactlySoManyClips) {
  for (const std::size_t clips : {1, 5, 8, 80, 1000, 9999}) {
    EXPECT_EQ(GetClips(generator::MakeDocument({.clips = clips})).size(), clips);
  }
}

/// Counts what a track is planned to hold.
class ItemCount final : public generator::ItemSink {
 public:
  void AddGap(std::int64_t gap) override { length += gap; }
  void AddTransition(const generator::PlannedTransition&) override {}
  void AddClip(const generator::PlannedClip& clip) override { Add(clip.length); }
  void AddScene(const generator::PlannedScene& scene) override { Add(scene.length); }

  std::size_t clips = 0;
  std::int64_t length = 0;

 private:
  void Add(std::int64_t clip) {
    ++clips;
    length += clip;
  }
};

TEST(GeneratedDocument, OfAMillionClipsEndsBeforeOneHundredHours) {
  const generator::TimelinePlan plan({.seed = 2, .clips = 1'000'000});
  std::size_t clips = 0;
  for (std::size_t i = 0; i < plan.GetTracks().size(); ++i) {
    ItemCount count;
    plan.VisitTrack(i, count);
    clips += count.clips;
    EXPECT_LT(plan.GetTracks()[i].base.ToTicks(count.length), qelmediatypes::kOneHundredHours);
  }
  EXPECT_EQ(clips, 1'000'000U);
}

TEST(GeneratedDocument, HoldsWhateverTheTableShows) {
  const DocumentDraft document = generator::MakeDocument({.clips = 20000});
  const auto clips = GetClips(document);
  const auto expectSome = [&](const char* what, const std::function<bool(const ClipDraft&)>& has) {
    EXPECT_GT(Count(clips, has), 10U) << what;
    EXPECT_LT(Count(clips, has), 16000U) << what;
  };
  expectSome("proxies", [](const ClipDraft& clip) { return clip.proxy.has_value(); });
  expectSome("offline proxies",
             [](const ClipDraft& clip) { return clip.proxy && clip.proxy->isOffline; });
  expectSome("offline media", [](const ClipDraft& clip) { return clip.media.isOffline; });
  expectSome("stills", [](const ClipDraft& clip) { return clip.media.isStill; });
  expectSome("graphics", [](const ClipDraft& clip) { return clip.isGraphic; });
  expectSome("nested", [](const ClipDraft& clip) { return clip.nestedSequence.has_value(); });
  expectSome("disabled", [](const ClipDraft& clip) { return clip.isDisabled; });
  expectSome("adjustments", [](const ClipDraft& clip) { return clip.isAdjustment; });
  expectSome("speeds", [](const ClipDraft& clip) { return clip.hasSpeedChange; });
  expectSome("cameras", [](const ClipDraft& clip) { return clip.multicam.isMulticam; });
  expectSome("labels", [](const ClipDraft& clip) { return clip.labelName != "Grey"; });
  expectSome("comments", [](const ClipDraft& clip) { return !clip.comment.empty(); });
  expectSome("descriptions", [](const ClipDraft& clip) { return !clip.description.empty(); });
  expectSome("tapes", [](const ClipDraft& clip) { return !clip.tapeName.empty(); });
  expectSome("codecs", [](const ClipDraft& clip) { return !clip.media.codec.empty(); });
  expectSome("sizes", [](const ClipDraft& clip) { return !clip.videoInfo.empty(); });
  expectSome("transitions", [](const ClipDraft& clip) { return clip.headTransition.has_value(); });
  expectSome("effects", [](const ClipDraft& clip) { return !clip.components.empty(); });
  expectSome("missing effects", [](const ClipDraft& clip) {
    return !clip.components.empty() && clip.components.front().isMissing;
  });
}

TEST(GeneratedDocument, UsesAFileForAboutADozenClips) {
  const DocumentDraft document = generator::MakeDocument({.clips = 20000});
  std::map<std::string, std::size_t> uses;
  for (const ClipDraft* clip : GetClips(document)) {
    if (!clip->media.address.empty()) ++uses[std::string(clip->media.address)];
  }
  EXPECT_GT(uses.size(), 20000U / 20);
  EXPECT_LT(uses.size(), 20000U / 8);
}

/// By name and by time, of a picture track and the sound track in the same place.
TEST(GeneratedDocument, LinksPictureAndSound) {
  const DocumentDraft document = generator::MakeDocument({.clips = 2000});
  const auto& tracks = document.sequences.front().tracks;
  std::map<std::int64_t, const TrackItemDraft*> pictures;
  for (const TrackItemDraft& item : tracks[0].items) pictures[item.start.GetTicks()] = &item;
  std::size_t linked = 0;
  for (const TrackItemDraft& item : tracks[4].items) {
    const auto found = pictures.find(item.start.GetTicks());
    if (!item.clip || found == pictures.end() || !found->second->clip) continue;
    const bool isSame = found->second->end == item.end &&
                        found->second->clip->media.address == item.clip->media.address;
    if (isSame) ++linked;
  }
  EXPECT_GT(linked, tracks[0].items.size() * 8 / 10);
}

TEST(GeneratedDocument, HasMusicThatLastsForMinutesUnderManyClips) {
  const DocumentDraft document = generator::MakeDocument({.clips = 20000});
  const TrackDraft& music = document.sequences.front().tracks.back();
  const bool hasMinutes = std::any_of(music.items.begin(), music.items.end(), [](const auto& item) {
    return item.clip &&
           (item.end - item.start).GetTicks() > 120 * qelmediatypes::TickTime::kTicksPerSecond;
  });
  EXPECT_TRUE(hasMinutes);
}

TEST(GeneratedDocument, WritesSomeTextsWithLettersBeyondASCII) {
  const auto hasWorldName = [](const ClipDraft& clip) {
    return std::any_of(clip.name.begin(), clip.name.end(), [](char c) { return c < 0; });
  };
  const auto countFor = [&](unsigned percent) {
    const auto document = generator::MakeDocument({.clips = 10000, .worldTextPercent = percent});
    return Count(GetClips(document), hasWorldName);
  };
  EXPECT_EQ(countFor(0), 0U);
  EXPECT_GT(countFor(10), 300U);
  EXPECT_LT(countFor(10), 2000U);
  EXPECT_GT(countFor(100), 7000U);
}

}  // namespace

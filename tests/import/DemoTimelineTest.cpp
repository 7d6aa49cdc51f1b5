#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "import/DraftText.h"
#include "standalone/import/LabelPalette.h"
#include "standalone/import/TimelineReader.h"

/// The demo is what people try the index with: it must show every column, every filter and every mark.
namespace standalone {
namespace {

namespace fs = std::filesystem;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;

const fs::path kSamples = fs::path(SOURCE_FOLDER) / "samples";
const std::string kMissingFont = "Brackenfold Display";
const std::string kInstalledFont = "DejaVu Sans";

const ImportResult& Demo() {
  static const ImportResult result = ReadTimelineFile(kSamples / "demo.otio");
  return result;
}

const SequenceDraft& Sequence() {
  return Demo().document.sequences.at(0);
}

/// A clip of the demo's own sequence and where it stands.
struct PlacedClip {
  const TrackDraft& track;
  const TrackItemDraft& item;
  const ClipDraft& clip;
};

std::vector<PlacedClip> ClipsOf(const SequenceDraft& sequence) {
  std::vector<PlacedClip> clips;
  for (const TrackDraft& track : sequence.tracks) {
    for (const TrackItemDraft& item : track.items) {
      if (item.clip) clips.push_back({track, item, *item.clip});
    }
  }
  return clips;
}

using Condition = std::function<bool(const ClipDraft&)>;
using PlacedCondition = std::function<bool(const PlacedClip&)>;

std::ptrdiff_t Count(const PlacedCondition& condition) {
  const std::vector<PlacedClip> clips = ClipsOf(Sequence());
  return std::count_if(clips.begin(), clips.end(), condition);
}

std::ptrdiff_t CountClips(const Condition& condition) {
  return Count([&](const PlacedClip& placed) { return condition(placed.clip); });
}

bool HasComponent(const ClipDraft& clip, const std::function<bool(const ComponentDraft&)>& condition) {
  return std::any_of(clip.components.begin(), clip.components.end(), condition);
}

bool HasEffect(const ClipDraft& clip) {
  return HasComponent(clip, [](const ComponentDraft& c) { return !c.isIntrinsic && !c.isMissing; });
}

bool HasMissingEffect(const ClipDraft& clip) {
  return HasComponent(clip, [](const ComponentDraft& c) { return !c.isIntrinsic && c.isMissing; });
}

bool HasFont(const ClipDraft& clip, const std::string& font) {
  return HasComponent(
      clip, [&](const ComponentDraft& c) { return std::ranges::find(c.fonts, font) != c.fonts.end(); });
}

bool HasTransition(const ClipDraft& clip, bool isMissing) {
  const auto fits = [&](const auto& transition) {
    return transition && transition->isMissing == isMissing;
  };
  return fits(clip.headTransition) || fits(clip.tailTransition);
}

std::vector<std::string> Names() {
  std::vector<std::string> names;
  for (const PlacedClip& placed : ClipsOf(Sequence())) names.push_back(placed.clip.name);
  return names;
}

TEST(DemoTimeline, IsReadWithoutANote) {
  EXPECT_THAT(draft::Notes(Demo()), IsEmpty());
}

TEST(DemoTimeline, IsAThreeMinuteCutAt25FramesFromOneHour) {
  EXPECT_EQ(Sequence().zeroPoint.GetTicks(), 90000 * draft::k25);
  EXPECT_EQ(Sequence().videoRate.GetFrameDuration().GetTicks(), draft::k25);
  EXPECT_FALSE(Sequence().isDropFrame);
  std::int64_t end = 0;
  for (const PlacedClip& placed : ClipsOf(Sequence())) end = std::max(end, placed.item.end.GetTicks());
  EXPECT_EQ(end, 4500 * draft::k25);
}

TEST(DemoTimeline, HasFourPictureAndFiveSoundTracks) {
  EXPECT_EQ(draft::Counts(Sequence()),
            "V1:41/4/11+3n V2:15/14/2 V3:9/9/3 V4:3/3/0(off) "
            "A1:9/8/3 A2:10/6/1 A3:12/11/0 A4:5/5/2 A5:3/3/0");
  EXPECT_TRUE(Sequence().tracks.back().isMuted);
}

/// Each filter of the panel by the fact that it asks for; for "fonts missing" the font that nobody has.
TEST(DemoTimeline, EachFilterSelectsSomeClipsAndRejectsSome) {
  const std::map<std::string, PlacedCondition> filters = {
      {"video", [](const auto& p) { return p.track.kind == TrackKind::kVideo; }},
      {"audio", [](const auto& p) { return p.track.kind == TrackKind::kAudio; }},
      {"graphics", [](const auto& p) { return p.clip.isGraphic; }},
      {"fonts missing", [](const auto& p) { return HasFont(p.clip, kMissingFont); }},
      {"still image", [](const auto& p) { return p.clip.media.isStill; }},
      {"effects", [](const auto& p) { return HasEffect(p.clip); }},
      {"effects missing", [](const auto& p) { return HasMissingEffect(p.clip); }},
      {"transitions", [](const auto& p) { return HasTransition(p.clip, false); }},
      {"offline media", [](const auto& p) { return p.clip.media.isOffline; }},
      {"speed change", [](const auto& p) { return p.clip.hasSpeedChange; }},
      {"tracks", [](const auto& p) { return p.track.isDisabled || p.track.isMuted; }},
      {"disabled clips", [](const auto& p) { return p.clip.isDisabled; }},
      {"nested sequence", [](const auto& p) { return p.clip.nestedSequence.has_value(); }},
      {"multicam", [](const auto& p) { return p.clip.multicam.isMulticam; }},
  };
  EXPECT_EQ(filters.size(), 14U);
  const std::ptrdiff_t all = Count([](const PlacedClip&) { return true; });
  EXPECT_GE(all, 60);
  for (const auto& [name, condition] : filters) {
    EXPECT_GE(Count(condition), 3) << name;
    EXPECT_LT(Count(condition), all) << name;
  }
}

TEST(DemoTimeline, EachColumnThatIsNotOnEveryRowHasSeveralTexts) {
  const std::map<std::string, Condition> columns = {
      {"Codec", [](const auto& c) { return !c.media.codec.empty() && !c.media.isOffline; }},
      {"Comment", [](const auto& c) { return !c.comment.empty(); }},
      {"Description", [](const auto& c) { return !c.description.empty(); }},
      {"Effects", HasEffect},
      {"Effects Missing", HasMissingEffect},
      {"File Path", [](const auto& c) { return !c.media.address.empty(); }},
      {"Fonts Used", [](const auto& c) { return HasFont(c, kInstalledFont); }},
      {"Fonts Missing", [](const auto& c) { return HasFont(c, kMissingFont); }},
      {"Multicam Camera", [](const auto& c) { return !c.multicam.cameraNames.empty(); }},
      {"Offline Status", [](const auto& c) { return !c.media.offlineReason.empty(); }},
      {"Proxy Media Path", [](const auto& c) { return c.proxy && !c.proxy->address.empty(); }},
      {"Proxy Status: Online", [](const auto& c) { return c.proxy && !c.proxy->isOffline; }},
      {"Proxy Status: Offline", [](const auto& c) { return c.proxy && c.proxy->isOffline; }},
      {"Source Clip Name", [](const auto& c) { return !c.sourceClipName.empty(); }},
      {"Tape Name", [](const auto& c) { return !c.tapeName.empty(); }},
      {"Transitions", [](const auto& c) { return HasTransition(c, false); }},
      {"Video Info", [](const auto& c) { return !c.videoInfo.empty(); }},
  };
  for (const auto& [name, condition] : columns) EXPECT_GE(CountClips(condition), 3) << name;
}

TEST(DemoTimeline, HasOneGapOfTwoFramesOnAPictureTrack) {
  EXPECT_THAT(draft::Rows(Sequence(), draft::k25), Contains("V1 272-274 (gap)"));
  int shortGaps = 0;
  for (const TrackDraft& track : Sequence().tracks) {
    for (const TrackItemDraft& item : track.items) {
      if (!item.clip && item.end - item.start <= qelmediatypes::TickTime(5 * draft::k25)) ++shortGaps;
    }
  }
  EXPECT_EQ(shortGaps, 1);
}

/// Neighbours in the list may stand on different tracks; of these only the two around that gap are
/// close enough to be marked.
TEST(DemoTimeline, OnlyThatGapTurnsTimesRed) {
  std::vector<std::tuple<std::int64_t, std::size_t, std::int64_t>> rows;
  for (std::size_t t = 0; t < Sequence().tracks.size(); ++t) {
    const TrackDraft& track = Sequence().tracks[t];
    if (track.kind != TrackKind::kVideo || track.isDisabled || track.isMuted) continue;
    for (const TrackItemDraft& item : track.items) {
      if (item.clip) rows.emplace_back(item.start.GetTicks(), t, item.end.GetTicks());
    }
  }
  std::sort(rows.begin(), rows.end());
  std::vector<std::int64_t> marked;
  for (std::size_t i = 1; i < rows.size(); ++i) {
    const std::int64_t distance = std::get<0>(rows[i]) - std::get<2>(rows[i - 1]);
    if (distance > 0 && distance <= 5 * draft::k25) marked.push_back(distance / draft::k25);
  }
  EXPECT_THAT(marked, ElementsAre(2));
}

TEST(DemoTimeline, HasMediaInEachState) {
  EXPECT_EQ(CountClips([](const auto& c) { return c.media.isPendingConnection; }), 1);
  EXPECT_EQ(CountClips([](const auto& c) { return c.media.isGrowing; }), 1);
  EXPECT_EQ(CountClips([](const auto& c) { return c.media.isPendingRelink; }), 1);
  std::set<std::string> reasons;
  for (const PlacedClip& placed : ClipsOf(Sequence())) reasons.insert(placed.clip.media.offlineReason);
  EXPECT_THAT(reasons, ElementsAre("", "Drive \"Harbour Archive\" is not connected",
                                   "Media file not found", "Media is missing"));
}

TEST(DemoTimeline, HasTransitionsAtHeadsAndTailsAndOneThatIsMissing) {
  const auto isAlone = [](const ClipDraft& c, bool hasHead) {
    return c.headTransition.has_value() == hasHead && c.tailTransition.has_value() != hasHead;
  };
  EXPECT_GE(CountClips([&](const auto& c) { return isAlone(c, true); }), 3);
  EXPECT_GE(CountClips([&](const auto& c) { return isAlone(c, false); }), 3);
  EXPECT_GE(CountClips([](const auto& c) { return c.headTransition && c.tailTransition; }), 3);
  // It touches two clips.
  EXPECT_EQ(CountClips([](const auto& c) { return HasTransition(c, true); }), 2);
}

TEST(DemoTimeline, HasTwoNestedSequencesAndUsesOneTwice) {
  std::map<std::string, std::vector<std::vector<std::string>>> contents;
  const auto& sequences = Demo().document.sequences;
  for (std::size_t i = Demo().document.timelineCount; i < sequences.size(); ++i) {
    contents[sequences[i].name].push_back(draft::Rows(sequences[i], draft::k25));
  }
  ASSERT_EQ(contents.size(), 2U);
  ASSERT_EQ(contents["Chart montage"].size(), 2U);
  EXPECT_EQ(contents["Chart montage"][0], contents["Chart montage"][1]);
  EXPECT_EQ(contents["Farewell"].size(), 1U);
}

TEST(DemoTimeline, HasPictureAndSoundOfSeveralRates) {
  std::set<std::int64_t> picture;
  std::set<std::int64_t> sound;
  for (const PlacedClip& placed : ClipsOf(Sequence())) {
    const bool isVideo = placed.track.kind == TrackKind::kVideo;
    (isVideo ? picture : sound).insert(placed.clip.frameDuration.GetTicks());
  }
  EXPECT_THAT(picture, IsSupersetOf({draft::k24, draft::k25, draft::k2997}));
  EXPECT_THAT(sound, ElementsAre(draft::k48000, draft::k44100));
}

TEST(DemoTimeline, HasNamesOfManyScripts) {
  EXPECT_THAT(Names(), IsSupersetOf({"渡し船の夜明け", "Ακτή, πρωί", "الميناء عند الفجر", "Boat wake 🌊",
                                     "Cafe\u0301 at the quay", "Nils says \"not yet\", twice"}));
  EXPECT_EQ(CountClips([](const auto& c) { return c.comment.find('\n') != std::string::npos; }), 1);
}

TEST(DemoTimeline, LabelsMostClipsFromThePaletteAndSomeWithAColourOfItsOwn) {
  const auto isLabelled = [](const ClipDraft& c) { return c.labelColor != kDefaultLabelColor; };
  EXPECT_GT(CountClips(isLabelled), CountClips([](const ClipDraft&) { return true; }) * 3 / 4);
  EXPECT_GT(CountClips([&](const auto& c) { return !isLabelled(c); }), 0);
  std::set<std::string> strange;
  for (const PlacedClip& placed : ClipsOf(Sequence())) {
    if (FindLabelName(placed.clip.labelColor) != placed.clip.labelName) {
      strange.insert(placed.clip.labelName);
    }
  }
  EXPECT_THAT(strange, ElementsAre("Seaweed"));
}

TEST(DemoTimeline, UsesMediaAgainForPictureAndForSound) {
  std::map<std::string, int> uses;
  for (const PlacedClip& placed : ClipsOf(Sequence())) ++uses[std::string(placed.clip.media.address)];
  EXPECT_EQ(uses["media/day1/ferry_pier.mov"], 4);
  EXPECT_EQ(uses["media/sound/harbour_air.m4a"], 4);
  EXPECT_EQ(uses["media/day1/harbour_dawn.mov"], 1);
}

TEST(DemoTimeline, HasAMatteAnAdjustmentLayerAndReelsOfCutLists) {
  EXPECT_EQ(CountClips([](const auto& c) { return c.isAdjustment; }), 1);
  EXPECT_EQ(CountClips([](const auto& c) { return c.media.isSynthetic && c.name == "Sky matte"; }), 1);
  EXPECT_EQ(CountClips([](const auto& c) { return c.tapeName == "R14"; }), 1);
  EXPECT_EQ(CountClips([](const auto& c) { return c.comment == "GRADED BY M. OKORO; SEE SHOT 41"; }),
            1);
}

/// The file of a relative address; nothing that is shipped lies elsewhere.
void ExpectFile(const MediaDraft& media) {
  if (media.isOffline || media.address.empty()) return;
  const fs::path address{std::string_view(media.address)};
  EXPECT_TRUE(address.is_relative()) << address;
  EXPECT_TRUE(fs::is_regular_file(kSamples / address)) << address;
}

TEST(DemoTimeline, ShipsTheFilesOfAllOnlineMedia) {
  for (const SequenceDraft& sequence : Demo().document.sequences) {
    for (const PlacedClip& placed : ClipsOf(sequence)) {
      ExpectFile(placed.clip.media);
      if (placed.clip.proxy) ExpectFile(*placed.clip.proxy);
    }
  }
  for (int picture = 1001; picture <= 1012; ++picture) {
    const std::string name = "beacon." + std::to_string(picture) + ".png";
    EXPECT_TRUE(fs::is_regular_file(kSamples / "media/stills/beacon" / name)) << name;
  }
}

TEST(DemoTimeline, ShipsLessThanAMegabyteOfMedia) {
  std::uintmax_t size = 0;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(kSamples / "media")) {
    if (entry.is_regular_file()) size += entry.file_size();
  }
  EXPECT_GT(size, 0U);
  EXPECT_LT(size, 1'000'000U);
}

}  // namespace
}  // namespace standalone

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "data/GenerateFilters.h"
#include "data/RandomSequence.h"
#include "data/SearchPredicate.h"
#include "support/CollectedRows.h"
#include "support/Drafts.h"

/// Random sequences, filtered and searched once by the module and once straight from the draft.
namespace Vantrel {
namespace {

using MZ::SequenceIndex::Options;
using qelmediatypes::TickTime;
using standalone::TrackKind;

/// A row as the draft has it; a gap has no clip.
struct NaiveRow {
  const standalone::TrackDraft* track;
  const standalone::ClipDraft* clip;
  bool IsVideo() const { return track->kind == TrackKind::kVideo; }
};

std::vector<NaiveRow> CollectNaively(const standalone::SequenceDraft& sequence) {
  std::vector<NaiveRow> rows;
  for (const TrackKind kind : {TrackKind::kVideo, TrackKind::kAudio}) {
    for (const auto& track : sequence.tracks) {
      if (track.kind != kind) continue;
      TickTime position;
      for (const auto& item : track.items) {
        if (item.start > position) rows.push_back({&track, nullptr});
        rows.push_back({&track, &*item.clip});
        position = item.end;
      }
    }
  }
  return rows;
}

std::string JoinNaively(const std::vector<std::string>& names) {
  std::string text;
  for (const auto& name : names) text += name + "; ";
  return text;
}

/// The list texts of a row, once more.
struct NaiveLists {
  std::string effects, effectsMissing, transitions, fonts;

  explicit NaiveLists(const NaiveRow& row) {
    const auto& clip = *row.clip;
    bool hasText = false;
    std::vector<std::string> missing;
    std::vector<std::string> present;
    for (const auto& component : clip.components) {
      hasText = hasText || !component.fonts.empty();
      if (!component.isIntrinsic)
        (component.isMissing ? missing : present).push_back(component.displayName);
    }
    std::vector<std::string> found;
    const auto add = [&](const auto& transition, const std::string& prefix) {
      if (transition)
        (transition->isMissing ? missing : found).push_back(prefix + transition->displayName);
    };
    add(clip.headTransition, "[IN]: ");
    add(clip.tailTransition, "[OUT]: ");
    effects = JoinNaively(present);
    effectsMissing = JoinNaively(missing);
    transitions = JoinNaively(found);
    if (hasText && row.IsVideo() && clip.isGraphic) fonts = JoinNaively({RandomSequence::kMissingFont});
  }
};

bool PassesNaively(std::uint32_t id, const NaiveRow& row) {
  const auto& clip = *row.clip;
  const auto hasEffect = [&clip](auto test) { return std::ranges::any_of(clip.components, test); };
  switch (id) {
    case 0:
      return row.IsVideo();
    case 1:
      return !row.IsVideo();
    case 2:
      return row.IsVideo() && clip.isGraphic;
    case 3:
      return clip.media.isOffline;
    case 4:
      return hasEffect([](const auto& effect) { return !effect.isIntrinsic; });
    case 5:
      return hasEffect([](const auto& effect) { return !effect.isIntrinsic && effect.isMissing; });
    case 6:
      return !NaiveLists(row).fonts.empty();
    case 7:
      return !NaiveLists(row).transitions.empty();
    case 8:
      return clip.hasSpeedChange;
    case 9:
      return clip.nestedSequence.has_value();
    case 10:
      return row.track->isDisabled || row.track->isMuted;
    case 11:
      return clip.isDisabled;
    case 12:
      return clip.multicam.isMulticam;
    default:
      return row.IsVideo() && clip.media.isStill;
  }
}

bool PassesNaively(const Options& options, const NaiveRow& row) {
  if (row.clip == nullptr) return options.isKeepingGaps;
  const auto& colors = options.labelColors;
  if (!colors.empty() && std::ranges::find(colors, row.clip->labelColor) == colors.end()) return false;
  int selected = 0;
  int passed = 0;
  for (const auto& [id, isSelected] : options.filterToggles) {
    if (!isSelected) continue;
    ++selected;
    if (PassesNaively(id, row)) ++passed;
  }
  return options.matchMode == 1 ? selected == 0 || passed > 0 : passed == selected;
}

std::string LowerNaively(std::string text) {
  for (char& byte : text) {
    if (byte >= 'A' && byte <= 'Z') byte = static_cast<char>(byte + 32);
  }
  return text;
}

std::vector<std::string> SearchedTexts(const NaiveRow& row) {
  const auto& clip = *row.clip;
  const NaiveLists lists(row);
  std::string name = clip.name;
  std::ranges::replace(name, '\n', ' ');
  const bool hasCodec = row.IsVideo() && !clip.media.isOffline && !clip.media.isSynthetic;
  return {name,
          clip.comment,
          clip.description,
          hasCodec ? clip.media.codec : "",
          clip.sourceClipName,
          clip.proxy ? std::string(clip.proxy->address) : "",
          lists.effects,
          lists.effectsMissing,
          lists.transitions,
          lists.fonts,
          clip.videoInfo,
          row.IsVideo() ? "25.00 fps" : "48000 Hz"};
}

bool IsFoundNaively(const std::string& loweredText, const NaiveRow& row) {
  return std::ranges::any_of(SearchedTexts(row), [&](const std::string& text) {
    return LowerNaively(text).find(loweredText) != std::string::npos;
  });
}

/// Random sequences, options and search texts.
class NaiveFilter : public testing::TestWithParam<unsigned> {
 protected:
  NaiveFilter() {
    naive = CollectNaively(draft);
    list = rows::Collect(host.Add(draft));
    rows::Number(list);
  }

  std::size_t Below(std::size_t limit) { return random() % limit; }

  Options RandomOptions() {
    Options options;
    options.matchMode = static_cast<std::uint32_t>(Below(3));
    options.isKeepingGaps = Below(2) == 0;
    options.shortGapThreshold = static_cast<std::int32_t>(Below(100)) - 50;
    for (auto& [id, isSelected] : options.filterToggles) isSelected = Below(5) == 0;
    for (std::size_t i = Below(3); i > 0; --i) {
      options.labelColors.push_back({static_cast<std::uint8_t>(Below(3)), 0, 255, 255});
    }
    return options;
  }

  /// A stretch of a text of a random row, in any case; or what likely stands nowhere.
  std::string RandomText() {
    const NaiveRow& row = naive[Below(naive.size())];
    if (row.clip == nullptr || Below(8) == 0) return Below(2) == 0 ? "gap" : "Ab\u00c9;";
    const auto texts = SearchedTexts(row);
    const std::string& text = texts[Below(texts.size())];
    const std::size_t start = Below(text.size() + 1);
    std::string found = text.substr(start, 1 + Below(6));
    if (Below(3) == 0) std::ranges::reverse(found);
    return found.empty() ? "a" : found;
  }

  std::vector<std::uint64_t> Positions(const std::vector<FilterGroup>& groups, bool isKeepingGaps) {
    std::vector<std::uint64_t> positions;
    const auto kept = FilterTrackItemDataList(list, groups, isKeepingGaps);
    for (const auto& row : *kept) positions.push_back(row.index);
    return positions;
  }

  template <typename Test>
  std::vector<std::uint64_t> NaivePositions(Test test) {
    std::vector<std::uint64_t> positions;
    for (std::size_t i = 0; i < naive.size(); ++i) {
      if (test(naive[i])) positions.push_back(i);
    }
    return positions;
  }

  rows::Host host;
  std::mt19937 random{GetParam()};
  standalone::SequenceDraft draft = RandomSequence(GetParam()).Make();
  std::vector<NaiveRow> naive;
  TrackItemDataList list;
};

TEST_P(NaiveFilter, SelectsTheSameRowsByRandomOptions) {
  ASSERT_EQ(list.size(), naive.size());
  for (int i = 0; i < 40; ++i) {
    const Options options = RandomOptions();
    ASSERT_EQ(Positions(GenerateFiltersFromOptions(options), options.isKeepingGaps),
              NaivePositions([&](const NaiveRow& row) { return PassesNaively(options, row); }));
  }
}

TEST_P(NaiveFilter, FindsTheSameRowsByRandomTextsBesideRandomOptions) {
  if (naive.empty()) return;
  for (int i = 0; i < 40; ++i) {
    Options options;
    if (Below(2) == 0) options = RandomOptions();
    const std::string text = LowerNaively(RandomText());
    auto groups = GenerateFiltersFromOptions(options);
    groups.push_back({{MakeSearchPredicate(qelcore::UTF8String(text))}, kFilterGroupKind_Any});
    ASSERT_EQ(Positions(groups, options.isKeepingGaps), NaivePositions([&](const NaiveRow& row) {
                return PassesNaively(options, row) &&
                       (row.clip == nullptr || IsFoundNaively(text, row));
              }))
        << '"' << text << '"';
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, NaiveFilter, testing::Range(1U, 81U));

}  // namespace
}  // namespace Vantrel

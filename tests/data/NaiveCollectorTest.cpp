#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "data/RandomSequence.h"
#include "support/CollectedRows.h"
#include "support/Drafts.h"

/// Random sequences, collected once by the module and once straight from the draft.
namespace Vantrel {
namespace {

using qelmediatypes::TickTime;
using standalone::TrackKind;

/// Every text and number of a row as one line, for comparing and for reading failures.
using Line = std::string;

class NaiveCollector {
 public:
  std::vector<Line> Collect(const standalone::SequenceDraft& sequence) {
    for (const TrackKind kind : {TrackKind::kVideo, TrackKind::kAudio}) {
      std::uint64_t index = 0;
      for (const auto& track : sequence.tracks) {
        if (track.kind == kind) AddTrack(track, index++);
      }
    }
    return lines;
  }

 private:
  void AddTrack(const standalone::TrackDraft& track, std::uint64_t index) {
    TickTime position;
    for (const auto& item : track.items) {
      if (item.start > position) AddGap(track.kind, index, position, item.start);
      AddClip(track.kind, index, item);
      position = item.end;
    }
  }

  void AddGap(TrackKind kind, std::uint64_t index, TickTime start, TickTime end) {
    const auto rate = TickTime::kTicksPerSecond / (kind == TrackKind::kVideo ? 25 : 48000);
    Add({"Gap", Place(kind, index, start, end), std::to_string(rate), "0", "", "", "", "", "", "", ""});
  }

  void AddClip(TrackKind kind, std::uint64_t index, const standalone::TrackItemDraft& item) {
    const auto& clip = *item.clip;
    std::string effects;
    std::string missing;
    for (const auto& component : clip.components) {
      if (!component.isIntrinsic)
        (component.isMissing ? missing : effects) += component.displayName + "; ";
    }
    std::string transitions;
    const auto addTransition = [&](const auto& transition, const std::string& prefix) {
      if (transition) {
        (transition->isMissing ? missing : transitions) += prefix + transition->displayName + "; ";
      }
    };
    addTransition(clip.headTransition, "[IN]: ");
    addTransition(clip.tailTransition, "[OUT]: ");
    std::string name = clip.name;
    std::ranges::replace(name, '\n', ' ');
    const bool hasCodec = kind == TrackKind::kVideo && !clip.media.isOffline && !clip.media.isSynthetic;
    Add({name, Place(kind, index, item.start, item.end), std::to_string(clip.frameDuration.GetTicks()),
         std::to_string(clip.labelColor.red), clip.sourceClipName, hasCodec ? clip.media.codec : "",
         clip.proxy ? std::string(clip.proxy->address) : "",
         clip.proxy ? (clip.proxy->isOffline ? "Offline" : "Online") : "", missing, effects,
         transitions});
  }

  static std::string Place(TrackKind kind, std::uint64_t index, TickTime start, TickTime end) {
    return (kind == TrackKind::kVideo ? "V" : "A") + std::to_string(index + 1) + "," +
           std::to_string(start.GetTicks()) + "," + std::to_string(end.GetTicks());
  }

  void Add(const std::vector<std::string>& parts) {
    std::string text;
    for (const auto& part : parts) text += part + "|";
    lines.push_back(text);
  }

  std::vector<Line> lines;
};

Line Describe(const TrackItemRowData& row) {
  const auto red = static_cast<int>(row.labelColor.red * 255 + 0.5F);
  std::string text;
  for (const std::string& part :
       {std::string(row.name.View()),
        std::string(CellText(row, kColumnTrack).View()) + "," + std::to_string(row.start.GetTicks()) +
            "," + std::to_string(row.end.GetTicks()),
        std::to_string(row.frameRate.GetTicks()), std::to_string(red),
        std::string(row.sourceClipName.View()), std::string(row.codec.View()),
        std::string(row.proxyPath.View()), std::string(row.proxyStatus.View()),
        std::string(row.effectsMissing.View()), std::string(row.effects.View()),
        std::string(row.transitions.View())}) {
    text += part + "|";
  }
  return text;
}

TEST(NaiveCollector, AgreesWithTheModuleOnRandomSequences) {
  rows::Host host;
  for (unsigned seed = 1; seed <= 200; ++seed) {
    const auto draft = RandomSequence(seed).Make();
    const auto collected = rows::Collect(host.Add(draft));
    const auto wanted = NaiveCollector().Collect(draft);
    ASSERT_EQ(collected.size(), wanted.size()) << "seed " << seed;
    for (std::size_t i = 0; i < wanted.size(); ++i) {
      ASSERT_EQ(Describe(collected[i]), wanted[i]) << "seed " << seed << ", row " << i;
    }
  }
}

}  // namespace
}  // namespace Vantrel

#include "scaling/LongDocument.h"

#include <string>
#include <utility>
#include <vector>

#include "scaling/Chance.h"
#include "support/Drafts.h"

namespace scaling {
namespace {

using standalone::ClipDraft;
using standalone::SequenceDraft;
using standalone::TrackDraft;

constexpr std::size_t kTracksOfAKind = 4;
constexpr std::size_t kClipsPerMedia = 12;

class DocumentMaker {
 public:
  explicit DocumentMaker(std::size_t clips)
      : clipsPerTrack(clips / (2 * kTracksOfAKind)), mediaCount(1 + clips / kClipsPerMedia) {}

  standalone::DocumentDraft Make() {
    SequenceDraft sequence = drafts::MakeSequence("Long cut");
    for (const auto kind : {standalone::TrackKind::kVideo, standalone::TrackKind::kAudio}) {
      for (std::size_t i = 0; i < kTracksOfAKind; ++i) Fill(drafts::AddTrack(sequence, kind));
    }
    standalone::DocumentDraft document;
    document.timelineCount = 1;
    document.sequences.push_back(std::move(sequence));
    for (SequenceDraft& scene : scenes) document.sequences.push_back(std::move(scene));
    return document;
  }

 private:
  void Fill(TrackDraft& track) {
    std::int64_t frame = 0;
    bool isJoined = false;
    for (std::size_t i = 0; i < clipsPerTrack; ++i) {
      if (chance.OneIn(8)) {
        frame += static_cast<std::int64_t>(1 + chance.Below(50));
        isJoined = false;
      }
      const auto end = frame + static_cast<std::int64_t>(12 + chance.Below(180));
      isJoined = AddClip(track, frame, end, isJoined);
      frame = end;
    }
  }

  /// Returns whether a transition leads to the next clip.
  bool AddClip(TrackDraft& track, std::int64_t frame, std::int64_t end, bool isJoined) {
    if (chance.OneIn(40)) {
      drafts::AddTitle(track, "Title " + chance.NumberBelow(1000), frame, end, {"No Such Font"});
      return false;
    }
    ClipDraft& clip = drafts::AddClip(track, MakeName(), frame, end);
    SetMedia(clip);
    while (clip.components.size() < 3 && chance.OneIn(3)) {
      drafts::AddEffect(clip, "Look " + chance.NumberBelow(30), chance.OneIn(9));
    }
    SetNotes(clip);
    if (chance.OneIn(400)) clip.nestedSequence = AddScene();
    if (isJoined) clip.headTransition.emplace().displayName = "Cross Dissolve";
    const bool isJoining = chance.OneIn(10);
    if (isJoining) clip.tailTransition.emplace().displayName = "Cross Dissolve";
    return isJoining;
  }

  std::string MakeName() {
    return chance.OneIn(3) ? "Interview " + chance.NumberBelow(1000000)
                           : "Shot " + chance.NumberBelow(200);
  }

  void SetMedia(ClipDraft& clip) {
    const std::size_t media = chance.Below(mediaCount);
    const std::string name = "A" + std::to_string(media / 60) + "_C" + std::to_string(media % 60);
    clip.media.address = "/footage/day " + std::to_string(media % 30) + "/" + name + ".mov";
    clip.media.isOffline = media % 11 == 0;
    clip.sourceClipName = name;
    if (media % 3 == 0) clip.proxy.emplace().address = "proxies/" + name + ".mp4";
  }

  void SetNotes(ClipDraft& clip) {
    clip.tapeName = "A" + chance.NumberBelow(99);
    if (chance.OneIn(2)) clip.comment = "Note " + chance.NumberBelow(100000);
    if (chance.OneIn(4)) clip.description = "Slow pan, take " + chance.NumberBelow(9);
  }

  std::size_t AddScene() {
    scenes.push_back(drafts::MakeOneClip("Scene " + chance.NumberBelow(100)));
    return scenes.size();
  }

  const std::size_t clipsPerTrack;
  const std::size_t mediaCount;
  Chance chance;
  std::vector<SequenceDraft> scenes;
};

}  // namespace

standalone::DocumentDraft MakeLongDocument(std::size_t clips) {
  return DocumentMaker(clips).Make();
}

}  // namespace scaling

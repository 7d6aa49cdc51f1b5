#include "standalone/timeline/TimelineContent.h"

#include <algorithm>
#include <string>

#include "host/MZ/Sequences.h"
#include "standalone/model/ClipNode.h"
#include "standalone/model/SequenceContent.h"
#include "standalone/model/SequenceNode.h"

namespace standalone {

using qelmediatypes::TickTime;

namespace {

constexpr std::uint32_t kPictureFrames = 0;
constexpr int kForDisplay = 1;

TimelineLane MakeLane(const TrackNode& track, bool isVideo) {
  const TrackNode::Values& values = track.GetValues();
  std::string name = (isVideo ? "V" : "A") + std::to_string(track.GetIndex() + 1);
  // Many files name a track just so.
  if (!values.name.Empty() && values.name.View() != name) name.append(" ").append(values.name.View());
  return {qelcore::UTF8String(name), isVideo, values.isDisabledOrMuted, values.isLocked};
}

TimeNotation MakeNotation(const qelcore::Ref<BE::ISequence>& sequence, const SequenceContent& content) {
  if (MZ::SequenceActions::GetFrameAlignment(sequence) == kPictureFrames) {
    return {MZ::SequencePlayback::GetVideoTimeDisplayFormat(sequence, kForDisplay),
            content.videoFrameDuration, content.zeroPoint};
  }
  return {MZ::SequencePlayback::GetAudioTimeDisplayFormat(sequence), content.audioFrameDuration,
          content.zeroPoint};
}

bool IsOpenEnd(const TrackItemNode& node) {
  return node.GetType() == BE::kTrackItemType_Empty && node.GetEnd() == qelmediatypes::kOneHundredHours;
}

}  // namespace

TimelineContent::TimelineContent() = default;
TimelineContent::TimelineContent(const TimelineContent&) = default;
TimelineContent& TimelineContent::operator=(const TimelineContent&) = default;
TimelineContent::~TimelineContent() = default;

TimelineContent::TimelineContent(const qelcore::Ref<BE::ISequence>& sequence)
    : content(FindContent(sequence)) {
  if (!content) return;
  tracks.assign(content->videoGroup.tracks.rbegin(), content->videoGroup.tracks.rend());
  for (const TrackNode* const track : tracks) lanes.push_back(MakeLane(*track, true));
  for (const TrackNode* const track : content->audioGroup.tracks) {
    tracks.push_back(track);
    lanes.push_back(MakeLane(*track, false));
  }
  notation = MakeNotation(sequence, *content);
  frameDuration = content->videoFrameDuration;
  end = content->clipsEnd;
}

std::optional<TimelineItem> TimelineContent::FindItemAt(std::size_t lane, TickTime time) const {
  std::optional<TimelineItem> found;
  if (lane >= lanes.size()) return found;
  VisitItems(lane, time, time + TickTime(1), [&](const TimelineItem& item) {
    found = item;
    return TickTime::Highest();
  });
  return found;
}

std::optional<TickTime> TimelineContent::FindCutBefore(TickTime time) const {
  std::optional<TickTime> nearest;
  const auto consider = [&](TickTime cut) {
    if (cut < time && (!nearest || cut > *nearest)) nearest = cut;
  };
  for (std::size_t lane = 0; lane < lanes.size(); ++lane) {
    // From the item in which `time` lies or ends, back to the first clip that begins before it.
    const std::size_t count = CountItems(lane);
    std::size_t left = std::min(FindFirstEndingAfter(lane, time - TickTime(1), 0) + 1, count);
    for (; left > 0; --left) {
      const auto item = GetItem(lane, left - 1);
      if (!item || item->isGap) continue;
      consider(item->end);
      consider(item->start);
      if (item->start < time) break;
    }
  }
  return nearest;
}

std::optional<TickTime> TimelineContent::FindCutAfter(TickTime time) const {
  std::optional<TickTime> nearest;
  const auto consider = [&](TickTime cut) {
    if (cut > time && (!nearest || cut < *nearest)) nearest = cut;
  };
  for (std::size_t lane = 0; lane < lanes.size(); ++lane) {
    VisitItems(lane, time, TickTime::Highest(), [&](const TimelineItem& item) {
      if (item.isGap) return item.end;
      consider(item.start);
      consider(item.end);
      return TickTime::Highest();
    });
  }
  return nearest;
}

std::size_t TimelineContent::CountItems(std::size_t lane) const {
  return tracks[lane]->itemCount;
}

TrackItemNode& TimelineContent::GetNode(std::size_t lane, std::size_t index) const {
  return content->items[tracks[lane]->firstItem + index];
}

std::size_t TimelineContent::FindFirstEndingAfter(std::size_t lane, TickTime time,
                                                  std::size_t begin) const {
  std::size_t stop = CountItems(lane);
  while (begin < stop) {
    const std::size_t middle = begin + (stop - begin) / 2;
    if (GetNode(lane, middle).GetEnd() <= time) {
      begin = middle + 1;
    } else {
      stop = middle;
    }
  }
  return begin;
}

std::optional<TimelineItem> TimelineContent::GetItem(std::size_t lane, std::size_t index) const {
  TrackItemNode& node = GetNode(lane, index);
  if (node.GetType() == BE::kTrackItemType_Transition || IsOpenEnd(node)) return std::nullopt;
  TimelineItem item;
  item.start = node.GetStart();
  item.end = node.GetEnd();
  item.trackItem = qelcore::Ref<BE::ITrackItem>(&node);
  const ClipNode* const clip = node.GetClipNode();
  item.isGap = clip == nullptr;
  if (clip == nullptr) return item;
  const ClipNode::Values& values = clip->GetValues();
  item.isDisabled = values.isDisabled;
  item.isOffline = values.media->IsOffline();
  item.hasHeadTransition = values.headTransition != nullptr;
  item.hasTailTransition = values.tailTransition != nullptr;
  item.labelColor = values.labelColor;
  item.name = values.name;
  return item;
}

}  // namespace standalone

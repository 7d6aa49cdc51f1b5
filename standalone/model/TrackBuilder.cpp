#include <algorithm>

#include "host/BE/MediaTypes.h"
#include "standalone/model/ContentBuilder.h"

namespace standalone {
namespace {

using qelmediatypes::TickTime;

/// Items up to the last clip; the gaps behind it merge into the open filler.
std::size_t CountItemsToLastClip(const TrackDraft& draft) {
  std::size_t count = draft.items.size();
  while (count > 0 && !draft.items[count - 1].clip) --count;
  return count;
}

}  // namespace

TrackBuilder::TrackBuilder(SequenceContent& content, TextPool& texts)
    : content(content), texts(texts), clips(content, texts) {}

void TrackBuilder::Build(const TrackDraft& draft) {
  const bool isVideo = draft.kind == TrackKind::kVideo;
  TrackGroupNode& group = isVideo ? content.videoGroup : content.audioGroup;
  track = &content.tracks.Add(
      content, group.GetIdentifier(), group.tracks.size(),
      TrackNode::Values{texts.Share(draft.name), draft.isDisabled || draft.isMuted, draft.isLocked});
  group.tracks.push_back(track);
  track->firstItem = content.items.Size();
  position = TickTime();
  lastTail = nullptr;

  const std::size_t count = CountItemsToLastClip(draft);
  for (std::size_t i = 0; i < count; ++i) AddItem(draft.items[i]);
  if (position < qelmediatypes::kOneHundredHours) AddGap(position, qelmediatypes::kOneHundredHours);
  track->itemCount = content.items.Size() - track->firstItem;
}

void TrackBuilder::AddItem(const TrackItemDraft& item) {
  if (position < item.start) AddGap(position, item.start);
  if (item.clip) {
    AddClip(item);
  } else {
    AddGap(item.start, item.end);
  }
  // An item that lies over the ones before it is kept as it is, and opens no hole behind it.
  position = std::max(position, item.end);
}

void TrackBuilder::AddClip(const TrackItemDraft& item) {
  const ClipDraft& draft = *item.clip;
  TransitionNode* const head = ShareHead(draft, item.start);
  TransitionNode* const tail = draft.tailTransition ? &BuildTransition(*draft.tailTransition) : nullptr;
  ClipNode& clip = clips.Build(draft, track->GetMediaType() == BE::kMediaType_Video, head, tail);
  content.items.Add(*track, BE::kTrackItemType_Clip, item.start, item.end, &clip);
  content.clipsEnd = std::max(content.clipsEnd, item.end);
  lastTail = tail;
  if (tail == nullptr) return;
  lastTailDraft = &*draft.tailTransition;
  lastCut = item.end;
  AddTransitionItem(item.end);
}

void TrackBuilder::AddGap(TickTime start, TickTime end) {
  content.items.Add(*track, BE::kTrackItemType_Empty, start, end, nullptr);
  lastTail = nullptr;
}

void TrackBuilder::AddTransitionItem(TickTime cut) {
  content.items.Add(*track, BE::kTrackItemType_Transition, cut, cut, nullptr);
}

TransitionNode& TrackBuilder::BuildTransition(const TransitionDraft& draft) {
  return content.transitions.Add(content, texts.Share(draft.displayName), draft.isMissing);
}

TransitionNode* TrackBuilder::ShareHead(const ClipDraft& draft, TickTime cut) {
  if (!draft.headTransition) return nullptr;
  const bool isTailOfLast = lastTail != nullptr && lastCut == cut &&
                            lastTailDraft->displayName == draft.headTransition->displayName &&
                            lastTailDraft->isMissing == draft.headTransition->isMissing;
  if (isTailOfLast) return lastTail;
  TransitionNode& head = BuildTransition(*draft.headTransition);
  AddTransitionItem(cut);
  return &head;
}

}  // namespace standalone

#include <cstdint>

#include "standalone/model/ContentBuilder.h"
#include "standalone/model/SequenceContent.h"

namespace standalone {
namespace {

constexpr std::int64_t kDefaultPictureRate = 24;
constexpr std::int64_t kDefaultSampleRate = 48000;

qelmediatypes::TickTime FrameDurationOr(const qelmediatypes::FrameRate& rate, std::int64_t otherwise) {
  if (rate.IsKnown()) return rate.GetFrameDuration();
  return qelmediatypes::TickTime(qelmediatypes::TickTime::kTicksPerSecond / otherwise);
}

}  // namespace

qelcore::Ref<SequenceContent> BuildContent(const SequenceDraft& draft,
                                           const qelcore::Ref<ProjectNode>& project, TextPool& texts) {
  const qelcore::Ref<SequenceContent> content(new SequenceContent(project));
  content->name = texts.Share(draft.name);
  content->zeroPoint = draft.zeroPoint;
  content->videoFrameDuration = FrameDurationOr(draft.videoRate, kDefaultPictureRate);
  content->audioFrameDuration = FrameDurationOr(draft.audioRate, kDefaultSampleRate);
  content->isDropFrame = draft.isDropFrame;
  content->timeFormat = draft.timeFormat;
  TrackBuilder tracks(*content, texts);
  for (const TrackDraft& track : draft.tracks) tracks.Build(track);
  return content;
}

}  // namespace standalone

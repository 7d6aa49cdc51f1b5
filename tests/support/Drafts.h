#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/qelmediatypes/FrameRate.h"
#include "host/qelmediatypes/TickTime.h"
#include "standalone/model/SequenceDraft.h"

/// Sequences for tests, at 25 pictures and 48000 samples a second unless a test says otherwise:
///
///   auto draft = drafts::MakeSequence("Cut");
///   auto& v1 = drafts::AddTrack(draft, standalone::TrackKind::kVideo);
///   drafts::AddClip(v1, "A", 0, 50);
///   drafts::AddGap(v1, 50, 55);
///   auto& clip = drafts::AddClip(v1, "B", 55, 80);
///
/// References into a draft hold until the next track, or item of that track, is added.
namespace drafts {

inline constexpr std::int64_t kTicksPerFrame = qelmediatypes::TickTime::kTicksPerSecond / 25;

/// The time of a frame at 25 frames a second.
inline qelmediatypes::TickTime Frame(std::int64_t frame) {
  return qelmediatypes::TickTime(frame * kTicksPerFrame);
}

inline standalone::SequenceDraft MakeSequence(std::string_view name = "Sequence") {
  standalone::SequenceDraft sequence;
  sequence.name = name;
  sequence.videoRate = qelmediatypes::FrameRate::FromRational(25, 1);
  sequence.audioRate = qelmediatypes::FrameRate::FromRational(48000, 1);
  return sequence;
}

inline standalone::TrackDraft& AddTrack(standalone::SequenceDraft& sequence,
                                        standalone::TrackKind kind = standalone::TrackKind::kVideo) {
  standalone::TrackDraft& track = sequence.tracks.emplace_back();
  track.kind = kind;
  return track;
}

/// A clip over [startFrame, endFrame) with online media "/media/<name>.mov", whose frames last as long
/// as the sequence's.
inline standalone::ClipDraft& AddClip(standalone::TrackDraft& track, std::string_view name,
                                      std::int64_t startFrame, std::int64_t endFrame) {
  standalone::TrackItemDraft& item = track.items.emplace_back();
  item.start = Frame(startFrame);
  item.end = Frame(endFrame);
  standalone::ClipDraft& clip = item.clip.emplace();
  clip.name = name;
  const bool isVideo = track.kind == standalone::TrackKind::kVideo;
  clip.frameDuration =
      qelmediatypes::FrameRate::FromRational(isVideo ? 25 : 48000, 1).GetFrameDuration();
  clip.media.address = "/media/" + clip.name + ".mov";
  clip.media.lookUpPath = clip.media.address;
  clip.sourceClipName = clip.name;
  return clip;
}

/// A sequence that holds one clip of ten frames, both of that name.
inline standalone::SequenceDraft MakeOneClip(std::string_view name) {
  standalone::SequenceDraft sequence = MakeSequence(name);
  AddClip(AddTrack(sequence), name, 0, 10);
  return sequence;
}

inline standalone::TrackItemDraft& AddGap(standalone::TrackDraft& track, std::int64_t startFrame,
                                          std::int64_t endFrame) {
  standalone::TrackItemDraft& item = track.items.emplace_back();
  item.start = Frame(startFrame);
  item.end = Frame(endFrame);
  return item;
}

/// A title: a video clip with synthetic media, without address, whose text uses `fonts`.
inline standalone::ClipDraft& AddTitle(standalone::TrackDraft& track, std::string_view name,
                                       std::int64_t startFrame, std::int64_t endFrame,
                                       std::vector<std::string> fonts) {
  standalone::ClipDraft& clip = AddClip(track, name, startFrame, endFrame);
  clip.media = standalone::MediaDraft();
  clip.media.isSynthetic = true;
  clip.sourceClipName.clear();
  clip.isGraphic = true;
  standalone::ComponentDraft& text = clip.components.emplace_back();
  text.displayName = "Text";
  text.matchName = "Text";
  text.isIntrinsic = true;
  text.fonts = std::move(fonts);
  return clip;
}

/// An effect that somebody added to a clip.
inline standalone::ComponentDraft& AddEffect(standalone::ClipDraft& clip, std::string_view name,
                                             bool isMissing = false) {
  standalone::ComponentDraft& effect = clip.components.emplace_back();
  effect.displayName = name;
  effect.matchName = name;
  effect.isMissing = isMissing;
  return effect;
}

/// A document whose sequences are all timelines of their own.
inline standalone::DocumentDraft MakeDocument(std::vector<standalone::SequenceDraft> sequences) {
  standalone::DocumentDraft document;
  document.timelineCount = sequences.size();
  document.sequences = std::move(sequences);
  return document;
}

inline standalone::DocumentDraft MakeDocument(standalone::SequenceDraft sequence) {
  std::vector<standalone::SequenceDraft> sequences;
  sequences.push_back(std::move(sequence));
  return MakeDocument(std::move(sequences));
}

}  // namespace drafts

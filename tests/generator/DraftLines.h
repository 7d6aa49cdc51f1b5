#pragma once

#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "standalone/model/SequenceDraft.h"

/// All that drafts hold, a line for each sequence, track and item.
namespace draftlines {

using Line = std::ostringstream;

inline void AddMedia(const standalone::MediaDraft& media, Line& line) {
  line << " media{" << std::string_view(media.address) << '|' << std::string_view(media.lookUpPath)
       << '|' << media.isSynthetic << media.isOffline << media.isOnlineStated
       << media.isPendingConnection << media.isGrowing << media.isPendingRelink << media.isStill
       << media.isStillAssumed << '|' << media.offlineReason << '|' << media.codec << '|'
       << media.fourCC << '}';
}

inline void AddComponent(const standalone::ComponentDraft& component, Line& line) {
  line << " effect{" << component.displayName << '|' << component.matchName << '|'
       << component.isIntrinsic << component.isMissing << component.isMissingStated;
  for (const std::string& font : component.fonts) line << '|' << font;
  line << '}';
}

inline void AddTransition(std::string_view side, const standalone::TransitionDraft& transition,
                          Line& line) {
  line << ' ' << side << '{' << transition.displayName << '|' << transition.isMissing << '}';
}

inline void AddMulticam(const standalone::MulticamDraft& multicam, Line& line) {
  line << " multicam{" << multicam.isMulticam << '|' << multicam.selectedCamera;
  for (const std::string& camera : multicam.cameraNames) line << '|' << camera;
  line << '}';
}

inline void AddClip(const standalone::ClipDraft& clip, Line& line) {
  line << clip.name << '|' << clip.frameDuration.GetTicks() << '|' << clip.isFrameDurationAssumed << '|'
       << clip.labelName << '|' << int{clip.labelColor.red} << ',' << int{clip.labelColor.green} << ','
       << int{clip.labelColor.blue} << '|' << clip.sourceClipName << '|' << clip.comment << '|'
       << clip.description << '|' << clip.tapeName << '|' << clip.videoInfo << '|' << clip.isGraphic
       << clip.isDisabled << clip.isAdjustment << clip.hasSpeedChange << '|'
       << clip.nestedSequence.value_or(0);
  AddMedia(clip.media, line);
  if (clip.proxy) AddMedia(*clip.proxy, line);
  for (const standalone::ComponentDraft& component : clip.components) AddComponent(component, line);
  if (clip.headTransition) AddTransition("in", *clip.headTransition, line);
  if (clip.tailTransition) AddTransition("out", *clip.tailTransition, line);
  AddMulticam(clip.multicam, line);
}

inline std::string DescribeItem(const standalone::TrackItemDraft& item) {
  Line line;
  line << item.start.GetTicks() << '-' << item.end.GetTicks() << ' ';
  if (item.clip) AddClip(*item.clip, line);
  return line.str();
}

inline std::string DescribeTrack(const standalone::TrackDraft& track) {
  Line line;
  line << "track " << static_cast<int>(track.kind) << '|' << track.name << '|' << track.isDisabled
       << track.isMuted << track.isLocked;
  return line.str();
}

inline std::string DescribeSequence(const standalone::SequenceDraft& sequence) {
  Line line;
  line << "sequence " << sequence.name << '|' << sequence.zeroPoint.GetTicks() << '|'
       << sequence.videoRate.GetFrameDuration().GetTicks() << '|'
       << sequence.audioRate.GetFrameDuration().GetTicks() << '|' << sequence.isDropFrame << '|'
       << static_cast<int>(sequence.timeFormat);
  return line.str();
}

inline std::vector<std::string> DescribeDocument(const standalone::DocumentDraft& document) {
  std::vector<std::string> lines = {"timelines " + std::to_string(document.timelineCount)};
  for (const standalone::SequenceDraft& sequence : document.sequences) {
    lines.push_back(DescribeSequence(sequence));
    for (const standalone::TrackDraft& track : sequence.tracks) {
      lines.push_back(DescribeTrack(track));
      for (const standalone::TrackItemDraft& item : track.items) lines.push_back(DescribeItem(item));
    }
  }
  return lines;
}

}  // namespace draftlines

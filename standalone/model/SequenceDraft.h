#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/ZSL/Color.h"
#include "host/qelmediatypes/FrameRate.h"
#include "host/qelmediatypes/TickTime.h"
#include "standalone/model/Boxed.h"
#include "standalone/model/SharedText.h"
#include "standalone/model/TimeFormat.h"

/// What an importer, or a test, hands to the model to be published: plain values that name everything
/// the index shows. Texts are UTF-8; an empty text means "not known" or "none".
namespace standalone {

/// A media reference of a clip.
struct MediaDraft {
  /// The address as the file names it, decoded for people; empty for media without a file.
  SharedText address;
  /// Where to look for the file: absolute, or relative to the timeline file; a file inside an archive
  /// lies below the archive's path ("/cuts/harbour.otioz/media/quay.mov"); empty: nowhere.
  SharedText lookUpPath;
  bool isSynthetic = false;
  bool isOffline = false;
  /// The timeline itself says that the media is online; a look at the file does not change that.
  bool isOnlineStated = false;
  /// Why it is offline, for people.
  std::string offlineReason;
  bool isPendingConnection = false;
  bool isGrowing = false;
  bool isPendingRelink = false;
  std::string codec;
  /// First character in the highest byte; 0: not known.
  std::uint32_t fourCC = 0;
  bool isStill = false;
  /// `isStill` is a guess from the file's name, which the file itself may correct.
  bool isStillAssumed = false;
};

/// An effect or built-in setting of a clip.
struct ComponentDraft {
  std::string displayName;
  /// Tells kinds apart; ML::kMatchnameText draws the text document whose fonts stand in `fonts`.
  std::string matchName;
  bool isIntrinsic = false;
  bool isMissing = false;
  /// The timeline itself says whether it is missing; a list of effects does not change that.
  bool isMissingStated = false;
  std::vector<std::string> fonts;
};

struct TransitionDraft {
  std::string displayName;
  bool isMissing = false;
};

struct MulticamDraft {
  bool isMulticam = false;
  std::vector<std::string> cameraNames;
  /// Index into the names.
  std::size_t selectedCamera = 0;
};

struct ClipDraft {
  std::string name;
  qelmediatypes::TickTime frameDuration = qelmediatypes::kUnknownFrameDuration;
  /// The timeline does not tell `frameDuration`; the media file may.
  bool isFrameDurationAssumed = false;
  ZSL::Color labelColor;
  std::string labelName;
  MediaDraft media;
  Boxed<MediaDraft> proxy;
  std::vector<ComponentDraft> components;
  Boxed<TransitionDraft> headTransition;
  Boxed<TransitionDraft> tailTransition;
  std::string sourceClipName;
  std::string comment;
  std::string description;
  std::string tapeName;
  std::string videoInfo;
  MulticamDraft multicam;
  bool isGraphic = false;
  bool isDisabled = false;
  bool isAdjustment = false;
  bool hasSpeedChange = false;
  /// Index of the nested sequence in DocumentDraft::sequences that this clip plays.
  std::optional<std::size_t> nestedSequence;
};

/// Something on a track. Items of a track stand in time order and do not overlap; what lies between
/// them is filled with gaps when the draft is published, and every track is closed with the open
/// filler to 100 hours.
struct TrackItemDraft {
  qelmediatypes::TickTime start;
  /// Exclusive; at or after the start, below 100 hours.
  qelmediatypes::TickTime end;
  /// Empty: a gap.
  std::optional<ClipDraft> clip;
};

enum class TrackKind : std::uint8_t { kVideo, kAudio };

struct TrackDraft {
  TrackKind kind = TrackKind::kVideo;
  std::string name;
  bool isDisabled = false;
  bool isMuted = false;
  bool isLocked = false;
  std::vector<TrackItemDraft> items;
};

struct SequenceDraft {
  std::string name;
  /// The time that the first frame carries; may be negative.
  qelmediatypes::TickTime zeroPoint;
  qelmediatypes::FrameRate videoRate;
  qelmediatypes::FrameRate audioRate;
  bool isDropFrame = false;
  /// How times are to be written.
  TimeFormat timeFormat = TimeFormat::kTimecode;
  /// Within each kind from the lowest track.
  std::vector<TrackDraft> tracks;
};

/// What one timeline file holds.
struct DocumentDraft {
  std::vector<SequenceDraft> sequences;
  /// How many of them, from the front, are timelines of their own; the rest are nested in these.
  std::size_t timelineCount = 0;
};

}  // namespace standalone

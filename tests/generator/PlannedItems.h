#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "generator/MediaFile.h"
#include "generator/TimeBase.h"
#include "host/ZSL/Color.h"
#include "standalone/import/LabelPalette.h"
#include "standalone/model/SequenceDraft.h"

/// What stands on a planned timeline, as plain values from which both the draft and the file are made.
/// Lengths are counted in the time base of the track.
namespace generator {

struct PlannedEffect {
  std::string_view name;
  /// A panel that every clip of the program has, such as "Transform".
  bool isBuiltIn = false;
  bool isDisabled = false;
  /// The timeline says that the host lacks it.
  bool isMissing = false;
  int amount = 0;
};

struct PlannedTransition {
  std::string_view name;
  std::int64_t length = 0;
  bool isMissing = false;
};

struct PlannedMarker {
  std::string_view name;
  std::int64_t position = 0;
};

/// What the editing program draws by itself.
enum class Generator : std::uint8_t { kNone, kTitle, kColour, kAdjustment };

struct PlannedClip {
  std::string name;
  std::int64_t length = 0;
  /// Into its media.
  std::int64_t offset = 0;
  /// None: generated.
  const MediaFile* media = nullptr;
  /// Whether the timeline tells nothing of what the clip plays.
  bool isWithoutMedia = false;
  Generator generator = Generator::kNone;
  std::string_view font;
  /// Shared by a picture and its sound.
  std::uint64_t linkGroup = 0;
  std::vector<PlannedEffect> effects;
  std::vector<PlannedMarker> markers;
  /// In percent; 0 holds a frame.
  int speed = 100;
  /// None: the clip carries no label.
  const standalone::LabelColor* label = nullptr;
  std::string comment;
  std::string description;
  bool isDisabled = false;
  /// Of three cameras; none: it is no multicam clip.
  std::optional<std::size_t> camera;
};

inline constexpr std::string_view kCameras[] = {"Cam A wide", "Cam B close", "Cam C rail"};

struct PlannedTrack {
  standalone::TrackKind kind = standalone::TrackKind::kVideo;
  std::string name;
  bool isDisabled = false;
  bool isMuted = false;
  bool isLocked = false;
  TimeBase base;
};

/// The content of a nested sequence: clips one behind the other.
struct PlannedSceneTrack {
  PlannedTrack track;
  std::vector<PlannedClip> clips;
};

/// A nested sequence on a track.
struct PlannedScene {
  std::string name;
  std::int64_t length = 0;
  std::vector<PlannedSceneTrack> tracks;
};

/// Gets the items of a track one after the other.
class ItemSink {
 public:
  virtual void AddGap(std::int64_t length) = 0;
  /// Never two in a row, and always next to a clip or scene.
  virtual void AddTransition(const PlannedTransition& transition) = 0;
  virtual void AddClip(const PlannedClip& clip) = 0;
  virtual void AddScene(const PlannedScene& scene) = 0;

 protected:
  ~ItemSink() = default;
};

}  // namespace generator

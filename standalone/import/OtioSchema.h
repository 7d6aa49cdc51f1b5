#pragma once

#include <cstdint>
#include <string_view>

#include "standalone/import/JsonTree.h"

namespace standalone {

/// The kinds of object that a timeline is made of, old names included.
enum class OtioKind : std::uint8_t {
  kUnknown,  ///< A name of a studio's own, or none.
  kTimeline,
  kCollection,
  kStack,
  kTrack,
  kClip,
  kGap,
  kTransition,
  kExternalReference,
  kImageSequenceReference,
  kGeneratorReference,
  kMissingReference,
  kEffect,
  kLinearTimeWarp,
  kFreezeFrame,
  kTimeEffect,
};

struct OtioSchema {
  OtioKind kind = OtioKind::kUnknown;
  /// "Clip" of "Clip.2"; a view into the tree.
  std::string_view name;
  /// Whether the version is above the newest one that this reader knows.
  bool isNewer = false;
};

OtioSchema GetOtioSchema(JsonValue object);

}  // namespace standalone

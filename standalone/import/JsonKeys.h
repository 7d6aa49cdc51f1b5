#pragma once

#include <cstdint>
#include <string_view>

namespace standalone {

/// The member names that readers of JSON timelines look at; all other members are dropped while
/// parsing.
enum class JsonKey : std::uint8_t {
  kNone,   ///< No member: an array element or the top value.
  kNamed,  ///< A member whose name is free text and stands in the tree.
  kSchema,
  kName,
  kMetadata,
  kTracks,
  kChildren,
  kGlobalStartTime,
  kSourceRange,
  kStartTime,
  kDuration,
  kValue,
  kRate,
  kKind,
  kEnabled,
  kColor,
  kEffects,
  kMarkers,
  kMediaReference,
  kMediaReferences,
  kActiveMediaReferenceKey,
  kAvailableRange,
  kTargetURL,
  kTargetURLBase,
  kNamePrefix,
  kNameSuffix,
  kStartFrame,
  kFrameZeroPadding,
  kGeneratorKind,
  kParameters,
  kEffectName,
  kTimeScalar,
  kTransitionType,
  kInOffset,
  kOutOffset,
  kRed,
  kGreen,
  kBlue,
  kAlpha,
  kSequenceIndex,
  kResolve,
  kCMX3600,
  kFCPXML7,
  kFCPX,
  kFrameRate,
  kAudioRate,
  kDropFrame,
  kTimeDisplay,
  kMuted,
  kLocked,
  kLabelColor,
  kLabelName,
  kComment,
  kDescription,
  kTape,
  kSourceClipName,
  kVideoInfo,
  kAdjustment,
  kMulticam,
  kIsMulticam,
  kCamera,
  kAngles,
  kFonts,
  kMissing,
  kIntrinsic,
  kDisplayName,
  kCodec,
  kFourCC,
  kWidth,
  kHeight,
  kPixelAspect,
  kStill,
  kSynthetic,
  kGraphic,
  kOffline,
  kOfflineReason,
  kStatus,
  kProxy,
  kWriterLocked,
  kWriterMediaURL,
  kWriterEffectName,
  kWriterEffects,
  kReel,
  kComments,
  kLabels,
  kLabel2,
  kMasterComment1,
  kLoggingInfo,
  kFile,
  kTimecode,
  kNote,
  kFont,
  kText,
  kCount,  ///< The number of keys, no key.
};

/// What an object of the tree is, which decides the members that are kept.
enum class JsonContext : std::uint8_t {
  kObject = 1,       ///< An object of the format, known or not.
  kMetadata = 2,     ///< Its metadata: writers' dictionaries, and flat parameters of some effects.
  kWriter = 4,       ///< A known writer's dictionary, at any depth.
  kReferences = 8,   ///< Media references by free names: every member is kept.
  kParameters = 16,  ///< Parameters of a generator.
  kUnread = 32,      ///< Something of which only the number counts: no member is kept.
};

/// The key of a member called `name` in an object of that context; kNone: not wanted.
JsonKey FindJsonKey(std::string_view name, JsonContext context);

/// What the value of that member is, when it is an object.
JsonContext ContextOfMember(JsonKey key, JsonContext parent);

}  // namespace standalone

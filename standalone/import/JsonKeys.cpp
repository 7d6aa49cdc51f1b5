#include "standalone/import/JsonKeys.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>

#include "standalone/import/ShortText.h"

namespace standalone {
namespace {

struct KeyUse {
  std::string_view name;
  JsonKey key;
  /// The contexts, as bits, in which the name counts.
  unsigned contexts;
};

constexpr unsigned kObject = static_cast<unsigned>(JsonContext::kObject);
constexpr unsigned kMetadata = static_cast<unsigned>(JsonContext::kMetadata);
constexpr unsigned kWriter = static_cast<unsigned>(JsonContext::kWriter);
constexpr unsigned kParameters = static_cast<unsigned>(JsonContext::kParameters);

constexpr KeyUse kKeyUses[] = {
    {"OTIO_SCHEMA", JsonKey::kSchema, kObject},
    {"name", JsonKey::kName, kObject | kWriter},
    {"metadata", JsonKey::kMetadata, kObject},
    {"tracks", JsonKey::kTracks, kObject},
    {"children", JsonKey::kChildren, kObject},
    {"global_start_time", JsonKey::kGlobalStartTime, kObject},
    {"source_range", JsonKey::kSourceRange, kObject},
    {"start_time", JsonKey::kStartTime, kObject},
    {"duration", JsonKey::kDuration, kObject},
    {"value", JsonKey::kValue, kObject},
    {"rate", JsonKey::kRate, kObject},
    {"kind", JsonKey::kKind, kObject},
    {"enabled", JsonKey::kEnabled, kObject},
    {"color", JsonKey::kColor, kObject},
    {"effects", JsonKey::kEffects, kObject},
    {"markers", JsonKey::kMarkers, kObject},
    {"media_reference", JsonKey::kMediaReference, kObject},
    {"media_references", JsonKey::kMediaReferences, kObject},
    {"active_media_reference_key", JsonKey::kActiveMediaReferenceKey, kObject},
    {"available_range", JsonKey::kAvailableRange, kObject},
    {"target_url", JsonKey::kTargetURL, kObject},
    {"target_url_base", JsonKey::kTargetURLBase, kObject},
    {"name_prefix", JsonKey::kNamePrefix, kObject},
    {"name_suffix", JsonKey::kNameSuffix, kObject},
    {"start_frame", JsonKey::kStartFrame, kObject},
    {"frame_zero_padding", JsonKey::kFrameZeroPadding, kObject},
    {"generator_kind", JsonKey::kGeneratorKind, kObject},
    {"parameters", JsonKey::kParameters, kObject},
    {"effect_name", JsonKey::kEffectName, kObject},
    {"time_scalar", JsonKey::kTimeScalar, kObject},
    {"transition_type", JsonKey::kTransitionType, kObject},
    {"in_offset", JsonKey::kInOffset, kObject},
    {"out_offset", JsonKey::kOutOffset, kObject},
    {"r", JsonKey::kRed, kObject},
    {"g", JsonKey::kGreen, kObject},
    {"b", JsonKey::kBlue, kObject},
    {"a", JsonKey::kAlpha, kObject},
    {"sequence_index", JsonKey::kSequenceIndex, kMetadata},
    {"Resolve_OTIO", JsonKey::kResolve, kMetadata},
    {"cmx_3600", JsonKey::kCMX3600, kMetadata},
    {"fcp_xml", JsonKey::kFCPXML7, kMetadata},
    {"fcpx", JsonKey::kFCPX, kMetadata},
    {"frame_rate", JsonKey::kFrameRate, kWriter},
    {"audio_rate", JsonKey::kAudioRate, kWriter},
    {"drop_frame", JsonKey::kDropFrame, kWriter},
    {"time_display", JsonKey::kTimeDisplay, kWriter},
    {"muted", JsonKey::kMuted, kWriter},
    {"locked", JsonKey::kLocked, kWriter},
    {"label_color", JsonKey::kLabelColor, kWriter},
    {"label_name", JsonKey::kLabelName, kWriter},
    {"comment", JsonKey::kComment, kWriter},
    {"description", JsonKey::kDescription, kWriter},
    {"tape", JsonKey::kTape, kWriter},
    {"source_clip_name", JsonKey::kSourceClipName, kWriter},
    {"video_info", JsonKey::kVideoInfo, kWriter},
    {"adjustment", JsonKey::kAdjustment, kWriter},
    {"multicam", JsonKey::kMulticam, kWriter},
    {"is_multicam", JsonKey::kIsMulticam, kWriter},
    {"camera", JsonKey::kCamera, kWriter},
    {"angles", JsonKey::kAngles, kWriter},
    {"fonts", JsonKey::kFonts, kWriter},
    {"missing", JsonKey::kMissing, kWriter},
    {"intrinsic", JsonKey::kIntrinsic, kWriter},
    {"display_name", JsonKey::kDisplayName, kWriter},
    {"codec", JsonKey::kCodec, kWriter},
    {"fourcc", JsonKey::kFourCC, kWriter},
    {"width", JsonKey::kWidth, kWriter},
    {"height", JsonKey::kHeight, kWriter},
    {"pixel_aspect", JsonKey::kPixelAspect, kWriter},
    {"still", JsonKey::kStill, kWriter},
    {"synthetic", JsonKey::kSynthetic, kWriter},
    {"graphic", JsonKey::kGraphic, kWriter},
    {"offline", JsonKey::kOffline, kWriter},
    {"offline_reason", JsonKey::kOfflineReason, kWriter},
    {"status", JsonKey::kStatus, kWriter},
    {"proxy", JsonKey::kProxy, kWriter},
    {"Locked", JsonKey::kWriterLocked, kWriter},
    {"Media Url", JsonKey::kWriterMediaURL, kWriter},
    {"Effect Name", JsonKey::kWriterEffectName, kWriter},
    {"Effects", JsonKey::kWriterEffects, kWriter},
    {"reel", JsonKey::kReel, kWriter},
    {"comments", JsonKey::kComments, kWriter},
    {"labels", JsonKey::kLabels, kWriter},
    {"label2", JsonKey::kLabel2, kWriter},
    {"mastercomment1", JsonKey::kMasterComment1, kWriter},
    {"logginginfo", JsonKey::kLoggingInfo, kWriter},
    {"file", JsonKey::kFile, kWriter},
    {"timecode", JsonKey::kTimecode, kWriter},
    {"note", JsonKey::kNote, kWriter},
    {"font", JsonKey::kFont, kMetadata | kParameters},
    {"fontname", JsonKey::kFont, kMetadata | kParameters},
    {"font_name", JsonKey::kFont, kMetadata | kParameters},
    {"font_family", JsonKey::kFont, kMetadata | kParameters},
    {"text", JsonKey::kText, kParameters},
};

/// Where a name has its place, or the first one free behind it. Its length and three letters tell most
/// names apart; the factors leave the fewest behind another one.
constexpr std::uint8_t HashName(std::string_view name) {
  const auto letter = [name](std::size_t at) -> std::size_t {
    return static_cast<unsigned char>(name[at]);
  };
  return static_cast<std::uint8_t>(name.size() * 7 + letter(0) * 29 + letter(name.size() / 2) +
                                   letter(name.size() - 1) * 41);
}

/// For each place, the position of its use behind a first one that stands for none.
using KeyTable = std::array<std::uint8_t, 256>;

constexpr KeyTable kKeyTable = [] {
  KeyTable table{};
  for (std::size_t i = 0; i < std::size(kKeyUses); ++i) {
    std::uint8_t place = HashName(kKeyUses[i].name);
    while (table[place] != 0) ++place;
    table[place] = static_cast<std::uint8_t>(i + 1);
  }
  return table;
}();

const KeyUse* FindKeyUse(std::string_view name) {
  if (name.empty()) return nullptr;
  for (std::uint8_t place = HashName(name); kKeyTable[place] != 0; ++place) {
    const KeyUse& use = kKeyUses[kKeyTable[place] - 1U];
    if (ShortText::IsSame(use.name, name)) return &use;
  }
  return nullptr;
}

}  // namespace

JsonKey FindJsonKey(std::string_view name, JsonContext context) {
  if (context == JsonContext::kReferences) return JsonKey::kNamed;
  const KeyUse* use = FindKeyUse(name);
  const bool counts = use != nullptr && (use->contexts & static_cast<unsigned>(context)) != 0;
  return counts ? use->key : JsonKey::kNone;
}

JsonContext ContextOfMember(JsonKey key, JsonContext parent) {
  switch (key) {
    case JsonKey::kMetadata:
      return JsonContext::kMetadata;
    case JsonKey::kMediaReferences:
      return JsonContext::kReferences;
    case JsonKey::kParameters:
      return JsonContext::kParameters;
    case JsonKey::kMarkers:
      return JsonContext::kUnread;
    default:
      break;
  }
  const bool isData = parent == JsonContext::kMetadata || parent == JsonContext::kParameters;
  if (isData || parent == JsonContext::kWriter) return JsonContext::kWriter;
  return JsonContext::kObject;
}

}  // namespace standalone

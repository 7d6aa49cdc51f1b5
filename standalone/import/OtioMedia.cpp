#include "standalone/import/OtioMedia.h"

#include <algorithm>
#include <charconv>

#include "standalone/model/FrameSizeText.h"
#include "standalone/model/TextCase.h"

namespace standalone {
namespace {

constexpr std::string_view kFileNotFound = "Media file not found";
constexpr std::string_view kNoMedia = "Media is missing";

std::string_view GetActiveKey(JsonValue clip) {
  const std::string_view key = clip[JsonKey::kActiveMediaReferenceKey].GetText();
  return key.empty() ? "DEFAULT_MEDIA" : key;
}

OtioReference Classify(JsonValue object, OtioImport& import, const OtioPlace& place) {
  if (!object.HasValue()) return {};
  if (!object.IsObject()) {
    import.AddNote(place, object, "Its media is no object; it is shown as missing.");
    return {};
  }
  const OtioSchema schema = import.Recognise(object, place);
  OtioReference reference{object, schema.kind, ReadOtioRange(object[JsonKey::kAvailableRange])};
  if (schema.kind == OtioKind::kUnknown) {
    import.AddNote(place, object,
                   "Unknown kind of media reference \"" + std::string(schema.name) +
                       "\"; only its address is used.");
  }
  return reference;
}

std::optional<std::int64_t> ReadInteger(JsonValue value) {
  const auto number = ParseDecimal(value.GetNumber());
  if (!number) return std::nullopt;
  return static_cast<std::int64_t>(number->units / kUnitsPerOne);
}

struct ProxyEntry {
  JsonValue reference;
  bool isFoundByName = false;
};

ProxyEntry FindProxy(JsonValue references, std::string_view active) {
  ProxyEntry found;
  for (const JsonValue entry : references) {
    if (!entry.IsObject()) continue;
    const auto flag = GetIndexMetadata(entry)[JsonKey::kProxy].GetBool();
    if (flag.value_or(false)) return {entry, false};
    const bool hasName = ContainsIgnoringCase(entry.GetMemberName(), "proxy");
    if (hasName && !flag && entry.GetMemberName() != active && !found.isFoundByName) {
      found = {entry, true};
    }
  }
  return found;
}

/// Wider than any file name in use; the file could say anything.
constexpr std::int64_t kWidestNumber = 64;

/// base + prefix + first number + suffix, the number padded with zeros.
std::string GetFirstPicture(JsonValue reference) {
  std::string url(reference[JsonKey::kTargetURLBase].GetText());
  if (!url.empty() && url.back() != '/') url += '/';
  url += reference[JsonKey::kNamePrefix].GetText();
  const std::int64_t first = ReadInteger(reference[JsonKey::kStartFrame]).value_or(1);
  const auto width =
      std::min(ReadInteger(reference[JsonKey::kFrameZeroPadding]).value_or(0), kWidestNumber);
  const std::string digits = std::to_string(first < 0 ? -first : first);
  if (first < 0) url += '-';
  for (auto length = static_cast<std::int64_t>(digits.size()); length < width; ++length) url += '0';
  return url.append(digits).append(reference[JsonKey::kNameSuffix].GetText());
}

std::uint32_t ReadFourCC(JsonValue value) {
  const std::string_view text = value.GetText();
  if (text.size() != 4) return 0;
  std::uint32_t code = 0;
  for (const char c : text) code = code << 8 | static_cast<unsigned char>(c);
  return code;
}

/// A file of which the timeline plays one frame, or does not say how many.
bool CanBeStill(const OtioReference& reference) {
  if (reference.kind != OtioKind::kExternalReference) return false;
  const OtioRange& range = reference.availableRange;
  constexpr Decimal kOneFrame{kUnitsPerOne};
  return !range.isPresent || (range.duration.time && range.duration.time->value == kOneFrame);
}

void ReadStatus(JsonValue status, MediaDraft& media) {
  media.isPendingConnection = status.GetText() == "pending_connection";
  media.isGrowing = status.GetText() == "growing";
  media.isPendingRelink = status.GetText() == "pending_relink";
}

bool HasFile(OtioKind kind) {
  return kind == OtioKind::kExternalReference || kind == OtioKind::kImageSequenceReference;
}

/// Addresses of other schemes can't be looked up and count as online.
bool IsFileLost(const OtioReference& reference, LocatedMedia& located, OtioImport& import,
                const OtioPlace& place) {
  if (!HasFile(reference.kind)) return false;
  const MediaAddress& address = located.address;
  if (!address.lookUpPath.empty()) return !import.FileExists(located);
  const bool isOnline = address.text.find("://") != std::string::npos;
  const OtioRemark remark = isOnline ? OtioRemark::kMediaOnline : OtioRemark::kForeignPaths;
  if (!address.text.empty()) import.GetReport().Count(remark, place, reference.object);
  return !isOnline;
}

void ReadOffline(const OtioReference& reference, LocatedMedia& located, OtioImport& import,
                 const OtioPlace& place, MediaDraft& media) {
  const JsonValue index = GetIndexMetadata(reference.object);
  const bool isMissing = reference.kind == OtioKind::kMissingReference;
  const auto flag = index[JsonKey::kOffline].GetBool();
  media.isOnlineStated = flag && !*flag;
  media.isOffline = flag ? *flag : isMissing || IsFileLost(reference, located, import, place);
  if (!media.isOffline) return;
  media.offlineReason = index[JsonKey::kOfflineReason].GetString();
  if (media.offlineReason.empty()) media.offlineReason = isMissing ? kNoMedia : kFileNotFound;
}

/// Numbers that no picture file has give an address that is only a guess.
void CheckPictureNumbers(JsonValue reference, OtioImport& import, const OtioPlace& place) {
  constexpr std::int64_t kLastPicture = 999'999'999'999;
  const JsonValue first = reference[JsonKey::kStartFrame];
  const JsonValue padding = reference[JsonKey::kFrameZeroPadding];
  const auto isUsable = [](JsonValue value, std::int64_t lowest, std::int64_t highest) {
    if (!value.HasValue()) return true;
    const auto number = ReadInteger(value);
    return number && *number >= lowest && *number <= highest;
  };
  if (isUsable(first, -kLastPicture, kLastPicture) && isUsable(padding, 0, kWidestNumber)) return;
  import.AddNote(place, reference,
                 "No picture file has such a number; the address of its first picture is a guess.");
}

void CheckAddress(const OtioReference& reference, OtioImport& import, const OtioPlace& place) {
  if (reference.kind == OtioKind::kImageSequenceReference) {
    CheckPictureNumbers(reference.object, import, place);
  }
  if (reference.kind == OtioKind::kExternalReference) {
    import.Expect(reference.object, JsonKey::kTargetURL, JsonValue::Type::kString, place,
                  "The address of its media is no text; it is left out.");
  }
}

}  // namespace

JsonValue FindActiveMedia(JsonValue clip) {
  const JsonValue references = clip[JsonKey::kMediaReferences];
  if (!references.IsObject()) return clip[JsonKey::kMediaReference];
  const std::string_view key = GetActiveKey(clip);
  for (const JsonValue entry : references) {
    if (entry.GetMemberName() == key) return entry;
  }
  return {};
}

OtioReference FindActiveReference(JsonValue clip, OtioImport& import, const OtioPlace& place) {
  import.Expect(clip, JsonKey::kMediaReferences, JsonValue::Type::kObject, place,
                "Its media references are no object; they are left out.");
  const JsonValue media = FindActiveMedia(clip);
  if (media.GetType() == JsonValue::Type::kNone && clip[JsonKey::kMediaReferences].IsObject()) {
    import.AddNote(place, clip,
                   "The active media \"" + std::string(GetActiveKey(clip)) +
                       "\" is not among the clip's media; it is shown as missing.");
  }
  return Classify(media, import, place);
}

OtioReference FindProxyReference(JsonValue clip, OtioImport& import, const OtioPlace& place) {
  const JsonValue references = clip[JsonKey::kMediaReferences];
  if (!references.IsObject()) return {};
  const std::string_view active = GetActiveKey(clip);
  const ProxyEntry proxy = FindProxy(references, active);
  if (proxy.isFoundByName) {
    import.GetReport().Count(OtioRemark::kProxiesByName, place, proxy.reference);
  }
  for (const JsonValue entry : references) {
    const bool isUsed =
        entry.GetMemberName() == active || entry.GetIndex() == proxy.reference.GetIndex();
    if (entry.IsObject() && !isUsed) import.GetReport().Count(OtioRemark::kFurtherMedia, place, entry);
  }
  return Classify(proxy.reference, import, place);
}

LocatedMedia& ReadReferenceAddress(const OtioReference& reference, OtioImport& import) {
  switch (reference.kind) {
    case OtioKind::kGeneratorReference:
      return import.LocateMedia({});
    case OtioKind::kImageSequenceReference:
      return import.LocateMedia(GetFirstPicture(reference.object));
    case OtioKind::kMissingReference:
      return import.LocateMedia(
          reference.object[JsonKey::kMetadata][JsonKey::kResolve][JsonKey::kWriterMediaURL].GetText());
    default:
      return import.LocateMedia(reference.object[JsonKey::kTargetURL].GetText());
  }
}

MediaDraft ReadMedia(const OtioReference& reference, OtioImport& import, const OtioPlace& place) {
  CheckAddress(reference, import, place);
  const JsonValue index = GetIndexMetadata(reference.object);
  LocatedMedia& located = ReadReferenceAddress(reference, import);
  MediaDraft media;
  media.address = located.text;
  media.lookUpPath = located.lookUpPath;
  media.isSynthetic =
      index[JsonKey::kSynthetic].GetBool().value_or(reference.kind == OtioKind::kGeneratorReference);
  ReadOffline(reference, located, import, place, media);
  ReadStatus(index[JsonKey::kStatus], media);
  media.codec = index[JsonKey::kCodec].GetString();
  media.fourCC = ReadFourCC(index[JsonKey::kFourCC]);
  const auto still = index[JsonKey::kStill].GetBool();
  media.isStillAssumed = !still && CanBeStill(reference);
  const bool looksLikeStill =
      media.isStillAssumed && HasStillImageExtension(GetFileName(media.address));
  media.isStill = still.value_or(looksLikeStill);
  return media;
}

std::optional<Rate> ReadMediaRate(const OtioReference& reference, TrackKind kind) {
  const auto range = reference.availableRange.GetRate();
  if (kind == TrackKind::kAudio) return range && !range->IsPictureRate() ? range : std::nullopt;
  if (range && range->IsPictureRate()) return range;
  if (reference.kind != OtioKind::kImageSequenceReference) return std::nullopt;
  const auto pictures = ParseRate(reference.object[JsonKey::kRate].GetNumber());
  return pictures && pictures->IsPictureRate() ? pictures : std::nullopt;
}

std::string ReadFrameSize(JsonValue reference) {
  const JsonValue index = GetIndexMetadata(reference);
  const auto width = ReadInteger(index[JsonKey::kWidth]);
  const auto height = ReadInteger(index[JsonKey::kHeight]);
  if (!width || !height || *width <= 0 || *height <= 0) return {};
  std::string aspect(index[JsonKey::kPixelAspect].GetNumber());
  if (!ParseDecimal(aspect)) aspect = "1";
  if (aspect.find('.') == std::string::npos) aspect += ".0";
  return FormatFrameSize(*width, *height, aspect);
}

}  // namespace standalone

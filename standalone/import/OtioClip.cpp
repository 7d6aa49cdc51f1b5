#include "standalone/import/OtioClip.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>

#include "standalone/import/LabelPalette.h"
#include "standalone/import/OtioEffects.h"

namespace standalone {
namespace {

/// The metadata of a clip that is read again and again.
struct ClipMetadata {
  explicit ClipMetadata(JsonValue metadata)
      : index(metadata[JsonKey::kSequenceIndex]),
        cmx(metadata[JsonKey::kCMX3600]),
        xml(metadata[JsonKey::kFCPXML7]) {}

  JsonValue index;
  JsonValue cmx;
  JsonValue xml;
};

/// A channel of 0 to 1 in 8 bits.
std::optional<std::uint8_t> ReadChannel(JsonValue value) {
  const auto number = ParseDecimal(value.GetNumber());
  if (!number) return std::nullopt;
  const Wide units = std::clamp(number->units, Wide{0}, Wide{kUnitsPerOne});
  return static_cast<std::uint8_t>((units * 255 + kUnitsPerOne / 2) / kUnitsPerOne);
}

std::optional<ZSL::Color> ReadColor(JsonValue color) {
  const auto red = ReadChannel(color[JsonKey::kRed]);
  const auto green = ReadChannel(color[JsonKey::kGreen]);
  const auto blue = ReadChannel(color[JsonKey::kBlue]);
  if (!red || !green || !blue) return std::nullopt;
  return ZSL::Color{*red, *green, *blue, ReadChannel(color[JsonKey::kAlpha]).value_or(255)};
}

void ReadLabel(JsonValue item, const ClipMetadata& metadata, OtioImport& import, const OtioPlace& place,
               ClipDraft& clip) {
  const JsonValue own = metadata.index[JsonKey::kLabelColor];
  const JsonValue color = item[JsonKey::kColor];
  const JsonValue label2 = metadata.xml[JsonKey::kLabels][JsonKey::kLabel2];
  auto found = ParseHexColor(own.GetText());
  if (!found && own.HasValue()) {
    import.AddNote(place, own, "\"label_color\" must be written as \"#RRGGBB\"; it is left out.");
  }
  JsonValue name = metadata.index[JsonKey::kLabelName];
  if (!found) {
    found = ReadColor(color);
    if (found && name.GetText().empty()) name = color[JsonKey::kName];
  }
  if (!found && !label2.GetText().empty()) {
    found = FindLabelColor(label2.GetText());
    if (name.GetText().empty()) name = label2;
  }
  clip.labelColor = found.value_or(kDefaultLabelColor);
  clip.labelName = name.GetString();
  if (clip.labelName.empty()) clip.labelName = FindLabelName(clip.labelColor);
}

std::string JoinTexts(const std::vector<std::string>& texts) {
  std::string joined;
  for (const std::string& text : texts) {
    if (!joined.empty()) joined += "; ";
    joined += text;
  }
  return joined;
}

std::string ReadTape(const ClipMetadata& metadata, JsonValue referenceXML) {
  const auto reel = [](JsonValue file) {
    return file[JsonKey::kTimecode][JsonKey::kReel][JsonKey::kName];
  };
  return FirstText({metadata.index[JsonKey::kTape], metadata.cmx[JsonKey::kReel],
                    reel(metadata.xml[JsonKey::kFile]), reel(referenceXML[JsonKey::kFile]),
                    reel(referenceXML)});
}

void ReadRemarks(const ClipMetadata& metadata, JsonValue reference, ClipDraft& clip) {
  const JsonValue referenceMetadata = reference[JsonKey::kMetadata];
  clip.description = FirstText({metadata.index[JsonKey::kDescription],
                                metadata.xml[JsonKey::kLoggingInfo][JsonKey::kDescription]});
  clip.comment = FirstText({metadata.index[JsonKey::kComment],
                            metadata.xml[JsonKey::kComments][JsonKey::kMasterComment1],
                            referenceMetadata[JsonKey::kFCPX][JsonKey::kNote]});
  if (clip.comment.empty()) clip.comment = JoinTexts(ReadTexts(metadata.cmx[JsonKey::kComments]));
  clip.tapeName = ReadTape(metadata, referenceMetadata[JsonKey::kFCPXML7]);
}

MulticamDraft ReadMulticam(JsonValue multicam) {
  MulticamDraft draft;
  if (!multicam.IsObject()) return draft;
  draft.isMulticam = multicam[JsonKey::kIsMulticam].GetBool().value_or(true);
  draft.cameraNames = ReadTexts(multicam[JsonKey::kAngles]);
  const std::string camera = multicam[JsonKey::kCamera].GetString();
  const auto found = std::find(draft.cameraNames.begin(), draft.cameraNames.end(), camera);
  draft.selectedCamera = static_cast<std::size_t>(found - draft.cameraNames.begin());
  // A camera that is not among the angles is still the one that plays.
  if (found == draft.cameraNames.end() && !camera.empty()) draft.cameraNames.push_back(camera);
  if (camera.empty()) draft.selectedCamera = 0;
  return draft;
}

/// Members of the wrong type, which count as absent.
void CheckItem(JsonValue item, OtioImport& import, const OtioPlace& place) {
  using Type = JsonValue::Type;
  import.Expect(item, JsonKey::kName, Type::kString, place, "Its name is no text; it is left out.");
  import.Expect(item, JsonKey::kMetadata, Type::kObject, place,
                "Its metadata is no object; it is left out.");
  import.Expect(item, JsonKey::kEnabled, Type::kBool, place,
                "\"enabled\" must be true or false; it is taken as enabled.");
}

/// What clips, nested items and unknown ones have in common.
void ReadItem(JsonValue item, JsonValue reference, OtioImport& import, const OtioPlace& place,
              ClipDraft& clip) {
  CheckItem(item, import, place);
  const ClipMetadata metadata(item[JsonKey::kMetadata]);
  clip.name = item[JsonKey::kName].GetString();
  clip.sourceClipName = metadata.index[JsonKey::kSourceClipName].GetString();
  clip.videoInfo = metadata.index[JsonKey::kVideoInfo].GetString();
  clip.isAdjustment = metadata.index[JsonKey::kAdjustment].GetBool().value_or(false);
  clip.isDisabled = !IsOtioEnabled(item);
  clip.multicam = ReadMulticam(metadata.index[JsonKey::kMulticam]);
  ReadLabel(item, metadata, import, place, clip);
  ReadRemarks(metadata, reference, clip);
  ReadEffects(item, import, place, clip);
}

/// Tells whether the clip's own name was empty and its media had one.
bool FillNames(JsonValue reference, ClipDraft& clip) {
  const bool isNameless = clip.name.empty();
  const std::string_view fileName = GetFileName(clip.media.address);
  const std::string referenceName = reference[JsonKey::kName].GetString();
  if (clip.name.empty()) clip.name = referenceName;
  if (clip.name.empty()) clip.name = RemoveExtension(fileName);
  if (clip.sourceClipName.empty()) clip.sourceClipName = referenceName;
  if (clip.sourceClipName.empty()) clip.sourceClipName = fileName;
  return isNameless && !clip.name.empty();
}

/// Picture files that do not tell their rate keep it unknown; what the host generates runs at the
/// sequence's. Sound never has a picture rate.
qelmediatypes::TickTime AssumeFrameDuration(bool isSynthetic, TrackKind kind,
                                            const OtioSequenceRates& rates, OtioReport& report,
                                            const OtioPlace& place, JsonValue clip) {
  if (kind == TrackKind::kAudio) {
    if (!rates.isUnknownAudioNamed) report.Count(OtioRemark::kSampleRates, place, clip);
    return rates.unknownAudio.GetFrameDuration();
  }
  if (!isSynthetic) return qelmediatypes::kUnknownFrameDuration;
  report.Count(OtioRemark::kFrameRatesOfSequence, place, clip);
  return rates.video.GetFrameDuration();
}

/// What a generated clip is made of, which no column has room for.
void ReportGenerator(const OtioReference& reference, OtioReport& report, const OtioPlace& place,
                     JsonValue clip) {
  if (reference.object[JsonKey::kParameters][JsonKey::kText].HasValue()) {
    report.Count(OtioRemark::kTitleTexts, place, clip);
  } else if (!reference.object[JsonKey::kGeneratorKind].GetText().empty()) {
    report.Count(OtioRemark::kGenerators, place, clip);
  }
}

}  // namespace

void ReadOtioClip(JsonValue clip, const OtioReference& reference, TrackKind kind,
                  const OtioSequenceRates& rates, OtioImport& import, const OtioPlace& place,
                  ClipDraft& draft) {
  ReadItem(clip, reference.object, import, place, draft);
  OtioReport& report = import.GetReport();
  draft.media = ReadMedia(reference, import, place);
  const OtioReference proxy = FindProxyReference(clip, import, place);
  if (proxy.object.HasValue()) draft.proxy = ReadMedia(proxy, import, place);
  if (FillNames(reference.object, draft)) report.Count(OtioRemark::kNamesOfMedia, place, clip);
  if (const auto rate = ReadMediaRate(reference, kind)) {
    draft.frameDuration = rate->ToFrameRate().GetFrameDuration();
  } else {
    draft.isFrameDurationAssumed = true;
    draft.frameDuration =
        AssumeFrameDuration(draft.media.isSynthetic, kind, rates, report, place, clip);
  }
  if (draft.videoInfo.empty() && kind == TrackKind::kVideo) {
    draft.videoInfo = ReadFrameSize(reference.object);
  }
  ReadGraphics(clip, reference, draft);
  ReportGenerator(reference, report, place, clip);
}

void ReadOtioNestedItem(JsonValue item, OtioImport& import, const OtioPlace& place, ClipDraft& draft) {
  ReadItem(item, JsonValue(), import, place, draft);
  draft.media.isSynthetic = true;
  if (draft.sourceClipName.empty()) draft.sourceClipName = draft.name;
  ReadGraphics(item, OtioReference(), draft);
}

void ReadOtioUnknownItem(JsonValue item, OtioImport& import, const OtioPlace& place, ClipDraft& draft) {
  ReadItem(item, JsonValue(), import, place, draft);
  ReadGraphics(item, OtioReference(), draft);
}

}  // namespace standalone

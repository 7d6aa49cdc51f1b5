#include "standalone/import/OtioEffects.h"

#include <unordered_set>
#include <utility>

#include "host/ML/TextFilter.h"
#include "standalone/import/KnownWriters.h"
#include "standalone/model/TextCase.h"

namespace standalone {
namespace {

void AddFonts(JsonValue names, std::vector<std::string>& fonts) {
  for (std::string& font : ReadTexts(names)) fonts.push_back(std::move(font));
}

/// The members of an object that name a font.
void AddFontMembers(JsonValue object, std::vector<std::string>& fonts) {
  for (const JsonValue member : object) {
    if (member.GetKey() == JsonKey::kFont) AddFonts(member, fonts);
  }
}

/// Keeps the first of each name.
void RemoveRepeats(std::vector<std::string>& fonts) {
  if (fonts.size() < 2) return;
  std::unordered_set<std::string> known;
  std::erase_if(fonts, [&](const std::string& font) { return !known.insert(font).second; });
}

bool ChangesSpeed(JsonValue effect, OtioKind kind) {
  if (!IsOtioEnabled(effect)) return false;
  if (kind == OtioKind::kFreezeFrame) return true;
  const JsonValue scalar = effect[JsonKey::kTimeScalar];
  if (!scalar.HasValue()) return kind == OtioKind::kTimeEffect;
  constexpr Decimal kNormalSpeed{kUnitsPerOne};
  return ParseDecimal(scalar.GetNumber()) != kNormalSpeed;
}

void ReadSpeed(JsonValue effect, OtioKind kind, OtioImport& import, const OtioPlace& place,
               ClipDraft& clip) {
  if (!ChangesSpeed(effect, kind)) return;
  if (!clip.hasSpeedChange) import.GetReport().Count(OtioRemark::kSpeeds, place, effect);
  clip.hasSpeedChange = true;
}

bool IsIntrinsic(JsonValue effect, OtioImport& import, const OtioPlace& place) {
  const auto flag = GetIndexMetadata(effect)[JsonKey::kIntrinsic].GetBool();
  if (flag) return *flag;
  const JsonValue writer = effect[JsonKey::kMetadata][JsonKey::kResolve];
  const bool isBuiltIn = IsBuiltInPanel(writer[JsonKey::kWriterEffectName].GetText());
  if (isBuiltIn) import.GetReport().Count(OtioRemark::kBuiltInPanels, place, effect);
  return isBuiltIn;
}

ComponentDraft ReadEffect(JsonValue effect, std::string_view schemaName, OtioImport& import,
                          const OtioPlace& place) {
  const JsonValue metadata = effect[JsonKey::kMetadata];
  const JsonValue index = metadata[JsonKey::kSequenceIndex];
  ComponentDraft component;
  component.displayName = FirstText({index[JsonKey::kDisplayName], effect[JsonKey::kName],
                                     metadata[JsonKey::kResolve][JsonKey::kWriterEffectName],
                                     effect[JsonKey::kEffectName]});
  if (component.displayName.empty()) component.displayName = schemaName;
  component.isIntrinsic = IsIntrinsic(effect, import, place);
  if (!component.isIntrinsic && !IsOtioEnabled(effect)) {
    import.GetReport().Count(OtioRemark::kDisabledEffects, place, effect);
  }
  const auto missing = index[JsonKey::kMissing].GetBool();
  component.isMissing = missing.value_or(false);
  component.isMissingStated = missing.has_value();
  AddFontMembers(metadata, component.fonts);
  RemoveRepeats(component.fonts);
  component.matchName = component.fonts.empty() ? effect[JsonKey::kEffectName].GetString()
                                                : std::string(ML::kMatchnameText);
  return component;
}

/// "studio:Text" and "Text" alike.
bool DrawsText(std::string_view effectName) {
  const std::string_view name = effectName.substr(effectName.rfind(':') + 1);
  return EqualsIgnoringCase(name, "text") || EqualsIgnoringCase(name, "draw");
}

bool IsTextGenerator(JsonValue item, const OtioReference& reference) {
  if (reference.kind != OtioKind::kGeneratorReference) return false;
  const JsonValue parameters = reference.object[JsonKey::kParameters];
  if (parameters[JsonKey::kText].HasValue() || parameters[JsonKey::kFont].HasValue()) return true;
  for (const JsonValue effect : item[JsonKey::kEffects]) {
    if (DrawsText(effect[JsonKey::kEffectName].GetText())) return true;
  }
  return false;
}

}  // namespace

void ReadEffects(JsonValue item, OtioImport& import, const OtioPlace& place, ClipDraft& clip) {
  const JsonValue effects = import.Expect(item, JsonKey::kEffects, JsonValue::Type::kArray, place,
                                          "Its effects are no list; they are left out.");
  for (const JsonValue effect : effects) {
    if (!effect.IsObject()) {
      import.AddNote(place, effect, "One of its effects is no object; it is left out.");
      continue;
    }
    const OtioSchema schema = import.Recognise(effect, place);
    switch (schema.kind) {
      case OtioKind::kLinearTimeWarp:
      case OtioKind::kFreezeFrame:
      case OtioKind::kTimeEffect:
        ReadSpeed(effect, schema.kind, import, place, clip);
        continue;
      case OtioKind::kEffect:
        break;
      default:
        import.AddNote(
            place, effect,
            "Unknown kind of effect \"" + std::string(schema.name) + "\"; only its name is used.");
    }
    clip.components.push_back(ReadEffect(effect, schema.name, import, place));
  }
}

void ReadGraphics(JsonValue item, const OtioReference& reference, ClipDraft& clip) {
  const JsonValue clipIndex = GetIndexMetadata(item);
  const JsonValue mediaIndex = GetIndexMetadata(reference.object);
  ComponentDraft text;
  for (const JsonValue listed : {clipIndex[JsonKey::kFonts], mediaIndex[JsonKey::kFonts]}) {
    AddFonts(listed, text.fonts);
  }
  const bool hasListedFonts = !text.fonts.empty();
  AddFontMembers(reference.object[JsonKey::kParameters], text.fonts);
  RemoveRepeats(text.fonts);
  const auto flag = mediaIndex[JsonKey::kGraphic].GetBool();
  clip.isGraphic = flag ? *flag : hasListedFonts || IsTextGenerator(item, reference);
  if (text.fonts.empty()) return;
  text.displayName = ML::kMatchnameText;
  text.matchName = ML::kMatchnameText;
  text.isIntrinsic = true;
  clip.components.push_back(std::move(text));
}

TransitionDraft ReadTransition(JsonValue transition) {
  const JsonValue metadata = transition[JsonKey::kMetadata];
  const JsonValue index = metadata[JsonKey::kSequenceIndex];
  TransitionDraft draft;
  draft.displayName =
      FirstText({index[JsonKey::kDisplayName], transition[JsonKey::kName],
                 metadata[JsonKey::kResolve][JsonKey::kWriterEffects][JsonKey::kWriterEffectName],
                 transition[JsonKey::kTransitionType]});
  if (draft.displayName.empty()) draft.displayName = "Transition";
  draft.isMissing = index[JsonKey::kMissing].GetBool().value_or(false);
  return draft;
}

}  // namespace standalone

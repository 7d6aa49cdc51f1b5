#include "standalone/import/OtioSchema.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace standalone {
namespace {

struct KnownSchema {
  std::string_view name;
  OtioKind kind;
  int newestVersion;
};

constexpr std::array kKnownSchemas = {
    KnownSchema{"Timeline", OtioKind::kTimeline, 1},
    KnownSchema{"SerializableCollection", OtioKind::kCollection, 1},
    // An early release misspelt it.
    KnownSchema{"SerializeableCollection", OtioKind::kCollection, 1},
    KnownSchema{"Stack", OtioKind::kStack, 1},
    KnownSchema{"Track", OtioKind::kTrack, 1},
    KnownSchema{"Sequence", OtioKind::kTrack, 1},
    KnownSchema{"Clip", OtioKind::kClip, 2},
    KnownSchema{"Gap", OtioKind::kGap, 1},
    KnownSchema{"Filler", OtioKind::kGap, 1},
    KnownSchema{"Transition", OtioKind::kTransition, 1},
    KnownSchema{"ExternalReference", OtioKind::kExternalReference, 1},
    KnownSchema{"ImageSequenceReference", OtioKind::kImageSequenceReference, 1},
    KnownSchema{"GeneratorReference", OtioKind::kGeneratorReference, 1},
    KnownSchema{"MissingReference", OtioKind::kMissingReference, 1},
    KnownSchema{"Effect", OtioKind::kEffect, 1},
    KnownSchema{"LinearTimeWarp", OtioKind::kLinearTimeWarp, 1},
    KnownSchema{"FreezeFrame", OtioKind::kFreezeFrame, 1},
    KnownSchema{"TimeEffect", OtioKind::kTimeEffect, 1},
};

int ParseVersion(std::string_view text) {
  int version = 1;
  std::from_chars(text.data(), text.data() + text.size(), version);
  return version;
}

}  // namespace

OtioSchema GetOtioSchema(JsonValue object) {
  OtioSchema schema;
  const std::string_view text = object[JsonKey::kSchema].GetText();
  const std::size_t point = text.rfind('.');
  schema.name = text.substr(0, point);
  const auto known = std::find_if(kKnownSchemas.begin(), kKnownSchemas.end(),
                                  [&](const KnownSchema& k) { return k.name == schema.name; });
  if (known == kKnownSchemas.end()) return schema;
  schema.kind = known->kind;
  schema.isNewer =
      point != std::string_view::npos && ParseVersion(text.substr(point + 1)) > known->newestVersion;
  return schema;
}

}  // namespace standalone

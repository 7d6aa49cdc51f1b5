#include "standalone/import/OtioPlace.h"

#include <vector>

#include "standalone/import/OtioSchema.h"

namespace standalone {
namespace {

void Append(std::string& text, std::string_view word, std::string_view name) {
  if (!text.empty()) text += ", ";
  text.append(word).append(" \"").append(name).append("\"");
}

bool IsComposition(OtioKind kind) {
  return kind == OtioKind::kStack || kind == OtioKind::kTrack;
}

std::string_view GetItemWord(OtioKind kind) {
  switch (kind) {
    case OtioKind::kClip:
      return "clip";
    case OtioKind::kGap:
      return "gap";
    case OtioKind::kTransition:
      return "transition";
    case OtioKind::kStack:
      return "stack";
    case OtioKind::kTrack:
      return "track";
    default:
      return "item";
  }
}

/// "V2" of a child of a stack; empty for tracks that hold neither picture nor sound.
std::string FindTrackLabel(JsonValue stack, JsonValue track) {
  const auto letterOf = [](JsonValue child) {
    const std::string_view kind = child[JsonKey::kKind].GetText();
    const bool isTrack = GetOtioSchema(child).kind == OtioKind::kTrack;
    if (!isTrack || kind.empty() || kind == "Video") return 'V';
    return kind == "Audio" ? 'A' : '\0';
  };
  const char letter = letterOf(track);
  if (letter == '\0') return {};
  int number = 1;
  for (const JsonValue child : stack[JsonKey::kChildren]) {
    if (child.GetIndex() == track.GetIndex()) break;
    const bool isTransition = GetOtioSchema(child).kind == OtioKind::kTransition;
    if (child.IsObject() && !isTransition && letterOf(child) == letter) ++number;
  }
  return letter + std::to_string(number);
}

/// Follows the way from the root of a file down to an object.
class PlaceWalk {
 public:
  explicit PlaceWalk(bool isOneOfSeveral) : isNamingTimelines(isOneOfSeveral) {}

  /// An object that stands for itself or is a child; `isEntered` when the way leads on to its children.
  void Reach(JsonValue object, bool isEntered) {
    const OtioKind kind = GetOtioSchema(object).kind;
    if (kind == OtioKind::kCollection) return;
    const std::string_view name = object[JsonKey::kName].GetText();
    if (kind == OtioKind::kTimeline) {
      if (isNamingTimelines) place.sequence = name;
    } else if (!composition.IsObject()) {
      Begin(object, kind);
    } else if (place.track.empty() && IsComposition(kind) && !isInItem) {
      ReachChildOfStack(object, kind, isEntered);
    } else {
      ReachItem(object, kind, isEntered);
    }
  }

  std::string Describe() const { return place.Describe(); }

 private:
  void Begin(JsonValue object, OtioKind kind) {
    composition = object;
    if (kind != OtioKind::kStack) SetLabel(FindTrackLabel({}, object));
    if (!IsComposition(kind)) SetItem(object, kind);
  }

  void ReachChildOfStack(JsonValue child, OtioKind kind, bool isEntered) {
    SetLabel(FindTrackLabel(composition, child));
    if (kind == OtioKind::kTrack) {
      if (place.track.empty()) SetItem(child, kind);
      return;
    }
    ReachItem(child, kind, isEntered);
  }

  void ReachItem(JsonValue item, OtioKind kind, bool isEntered) {
    if (place.track.empty() && !isInItem) SetLabel(FindTrackLabel(composition, item));
    if (!isEntered || !IsComposition(kind)) {
      SetItem(item, kind);
      return;
    }
    const std::string_view name = item[JsonKey::kName].GetText();
    place = OtioPlace{name.empty() ? "Nested sequence" : name, {}, {}, {}};
    composition = JsonValue();
    Begin(item, kind);
  }

  void SetItem(JsonValue item, OtioKind kind) {
    place.itemWord = GetItemWord(kind);
    place.itemName = item[JsonKey::kName].GetText();
    isInItem = true;
  }

  void SetLabel(std::string text) {
    label = std::move(text);
    place.track = label;
  }

  bool isNamingTimelines;
  bool isInItem = false;
  OtioPlace place;
  std::string label;
  JsonValue composition;
};

}  // namespace

std::string OtioPlace::Describe() const {
  std::string text;
  if (!sequence.empty()) Append(text, "sequence", sequence);
  if (!track.empty()) text.append(text.empty() ? "track " : ", track ").append(track);
  if (!itemWord.empty()) Append(text, itemWord, itemName);
  return text;
}

std::string DescribeObject(const JsonTree& tree, std::uint32_t index, bool isOneOfSeveral) {
  const std::vector<JsonValue> path = tree.GetPath(index);
  PlaceWalk walk(isOneOfSeveral);
  for (std::size_t i = 0; i < path.size(); ++i) {
    const bool isChild = i > 0 && path[i - 1].GetKey() == JsonKey::kChildren;
    const bool isPart = i == 0 || isChild || path[i].GetKey() == JsonKey::kTracks;
    if (!isPart || !path[i].IsObject()) continue;
    walk.Reach(path[i], i + 1 < path.size() && path[i + 1].GetKey() == JsonKey::kChildren);
  }
  return walk.Describe();
}

}  // namespace standalone

#include "standalone/import/JsonTree.h"

#include <memory>
#include <utility>

#include "standalone/import/JsonTreeBuilder.h"
#include "standalone/import/JsonWindow.h"

namespace standalone {

JsonTree::JsonTree(TextSource& source, const ImportProgress& progress, double lastFraction) {
  JsonWindow window(source, repairs);
  JsonTreeBuilder(*this, window, source.GetLength(), progress, lastFraction).Parse();
}

JsonTree::JsonTree(std::string text, const ImportProgress& progress, double lastFraction)
    : JsonTree(*std::make_unique<TextInMemory>(std::move(text)), progress, lastFraction) {}

std::vector<JsonValue> JsonTree::GetPath(std::uint32_t index) const {
  std::vector<JsonValue> path = {GetRoot()};
  while (path.back().index != index) {
    const JsonValue outer = path.back();
    for (const JsonValue inner : outer) {
      if (index >= GetEnd(inner.index)) continue;
      path.push_back(inner);
      break;
    }
    if (path.back().index == outer.index || path.back().index > index) break;
  }
  return path;
}

JsonKey JsonValue::GetKey() const {
  return tree == nullptr ? JsonKey::kNone : GetNode().key;
}

std::string_view JsonValue::GetMemberName() const {
  // The name is a node of its own in front of the value.
  if (tree == nullptr || index == 0) return {};
  const JsonNode& name = tree->nodes[index - 1];
  return name.key == JsonKey::kNamed ? tree->GetText(name) : std::string_view();
}

std::size_t JsonValue::GetLine() const {
  return tree == nullptr ? 0 : GetNode().line;
}

}  // namespace standalone

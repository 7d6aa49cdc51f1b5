#include "standalone/import/JsonTree.h"

#include <utility>

#include "standalone/import/JsonTreeBuilder.h"

namespace standalone {
namespace {

/// UTF-8 of U+D800 to U+DFFF is ED A0..BF 80..BF: what an unpaired "\udc00" decodes to.
void ReplaceSurrogates(std::string& text) {
  for (std::size_t at = text.find('\xED'); at != std::string::npos; at = text.find('\xED', at + 1)) {
    if (at + 2 < text.size() && static_cast<unsigned char>(text[at + 1]) >= 0xA0) {
      text.replace(at, 3, "\xEF\xBF\xBD");
    }
  }
}

}  // namespace

JsonTree::JsonTree(std::string text, const ImportProgress& progress, double lastFraction)
    : buffer(std::move(text)) {
  JsonTreeBuilder(*this, progress, lastFraction).Parse();
}

JsonValue::Type JsonValue::GetType() const {
  return tree == nullptr ? Type::kNone : tree->nodes[index].type;
}

JsonValue JsonValue::operator[](JsonKey key) const {
  if (!IsObject()) return {};
  const auto& nodes = tree->nodes;
  const std::uint32_t last = nodes[index].end;
  for (std::uint32_t member = index + 1; member < last; member = nodes[member].end) {
    if (nodes[member].key == key) return {tree, member};
  }
  return {};
}

std::string_view JsonValue::GetText() const {
  if (GetType() != Type::kString) return {};
  return {tree->nodes[index].text, tree->nodes[index].length};
}

std::string JsonValue::GetString() const {
  std::string text(GetText());
  ReplaceSurrogates(text);
  return text;
}

std::string_view JsonValue::GetNumber() const {
  if (GetType() != Type::kNumber) return {};
  return {tree->nodes[index].text, tree->nodes[index].length};
}

std::optional<bool> JsonValue::GetBool() const {
  if (GetType() != Type::kBool) return std::nullopt;
  return tree->nodes[index].length != 0;
}

JsonKey JsonValue::GetKey() const {
  return tree == nullptr ? JsonKey::kNone : tree->nodes[index].key;
}

std::string_view JsonValue::GetMemberName() const {
  // The name is a node of its own in front of the value.
  if (tree == nullptr || index == 0 || tree->nodes[index - 1].key != JsonKey::kNamed) return {};
  return {tree->nodes[index - 1].text, tree->nodes[index - 1].length};
}

std::size_t JsonValue::GetLine() const {
  return tree == nullptr ? 0 : tree->nodes[index].line;
}

JsonValue JsonValue::Iterator::operator*() const {
  const bool isName = tree->nodes[index].key == JsonKey::kNamed;
  return {tree, isName ? index + 1 : index};
}

JsonValue::Iterator& JsonValue::Iterator::operator++() {
  index = tree->nodes[index].end;
  return *this;
}

JsonValue::Iterator JsonValue::begin() const {
  if (!IsObject() && !IsArray()) return end();
  return {tree, index + 1};
}

JsonValue::Iterator JsonValue::end() const {
  return {tree, tree == nullptr ? 0 : tree->nodes[index].end};
}

}  // namespace standalone

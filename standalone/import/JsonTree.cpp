#include "standalone/import/JsonTree.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

#include "standalone/import/JsonTreeBuilder.h"

namespace standalone {
namespace {

/// "\uXXXX"
constexpr std::size_t kEscapeLength = 6;

/// The code of such an escape, where one begins.
std::optional<unsigned> ReadEscape(std::string_view text) {
  if (text.size() < kEscapeLength || !text.starts_with("\\u")) return std::nullopt;
  unsigned code = 0;
  const char* last = text.data() + kEscapeLength;
  const auto [end, error] = std::from_chars(text.data() + 2, last, code, 16);
  if (error != std::errc{} || end != last) return std::nullopt;
  return code;
}

bool IsFirstHalf(std::optional<unsigned> code) {
  return code && *code >= 0xD800 && *code < 0xDC00;
}

bool IsSecondHalf(std::optional<unsigned> code) {
  return code && *code >= 0xDC00 && *code < 0xE000;
}

/// The number of the line that the byte stands in.
std::size_t CountLines(std::string_view text, std::size_t at) {
  const std::string_view before = text.substr(0, at);
  return 1 + static_cast<std::size_t>(std::count(before.begin(), before.end(), '\n'));
}

}  // namespace

/// Exporters write halves of surrogate pairs for file names that are no UTF-8, or cut a pair in two. A
/// half alone is no character: U+FFFD takes its place.
void JsonTree::ReplaceLoneSurrogates() {
  for (std::size_t at = buffer.find('\\'); at != std::string::npos; at = buffer.find('\\', at)) {
    const std::string_view rest = std::string_view(buffer).substr(at);
    const auto code = ReadEscape(rest);
    if (!code) {
      at += 2;
    } else if (IsFirstHalf(code) && IsSecondHalf(ReadEscape(rest.substr(kEscapeLength)))) {
      at += 2 * kEscapeLength;
    } else {
      if (IsFirstHalf(code) || IsSecondHalf(code)) {
        buffer.replace(at, kEscapeLength, "\\ufffd");
        if (repairs.brokenCharacters++ == 0) repairs.brokenCharacterLine = CountLines(buffer, at);
      }
      at += kEscapeLength;
    }
  }
}

JsonTree::JsonTree(std::string text, const ImportProgress& progress, double lastFraction)
    : buffer(std::move(text)) {
  ReplaceLoneSurrogates();
  JsonTreeBuilder(*this, progress, lastFraction).Parse();
}

std::vector<JsonValue> JsonTree::GetPath(std::uint32_t index) const {
  std::vector<JsonValue> path = {GetRoot()};
  while (path.back().index != index) {
    const JsonValue outer = path.back();
    for (const JsonValue inner : outer) {
      if (index >= nodes[inner.index].end) continue;
      path.push_back(inner);
      break;
    }
    if (path.back().index == outer.index || path.back().index > index) break;
  }
  return path;
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

#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "standalone/import/JsonKeys.h"
#include "standalone/import/TimelineReader.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

class JsonTree;
class JsonValues;
class TextSource;
struct JsonNode;

/// A value of a JsonTree, or none: asking a missing value for anything gives nothing, so that chains of
/// members need no checks. As cheap to copy as two numbers; valid as long as the tree.
class STANDALONE_API JsonValue {
 public:
  enum class Type : std::uint8_t { kNone, kNull, kBool, kNumber, kString, kObject, kArray };

  JsonValue() = default;

  Type GetType() const;
  bool IsObject() const { return GetType() == Type::kObject; }
  bool IsArray() const { return GetType() == Type::kArray; }
  /// False for a missing value and for null.
  bool HasValue() const { return GetType() != Type::kNone && GetType() != Type::kNull; }

  /// The member of an object; the first one where a name is repeated.
  JsonValue operator[](JsonKey key) const;
  /// The text of a string, valid UTF-8; empty for all else.
  std::string_view GetText() const;
  std::string GetString() const { return std::string(GetText()); }
  /// The digits of a number as the file writes them, also "NaN" or "-Inf"; empty for all else.
  std::string_view GetNumber() const;
  std::optional<bool> GetBool() const;
  /// Which member of its object this is; kNone for elements and members of free-text names.
  JsonKey GetKey() const;
  /// The name of a member of free-text names.
  std::string_view GetMemberName() const;
  /// Line of the file where the value begins; 0 for none.
  std::size_t GetLine() const;
  /// Tells values of one tree apart.
  std::uint32_t GetIndex() const { return index; }

  /// Elements of an array, or values of an object's members.
  class STANDALONE_API Iterator {
   public:
    Iterator(const JsonTree* tree, std::uint32_t index) : tree(tree), index(index) {}
    JsonValue operator*() const;
    Iterator& operator++();
    bool operator!=(const Iterator& other) const { return index != other.index; }

   private:
    const JsonTree* tree;
    std::uint32_t index;
  };
  Iterator begin() const;
  Iterator end() const;
  /// Of an array; none of all else.
  JsonValues GetElements() const;
  /// This value as the only one of a list; none of a missing value.
  JsonValues GetAlone() const;

 private:
  friend class JsonTree;
  JsonValue(const JsonTree* tree, std::uint32_t index) : tree(tree), index(index) {}
  const JsonNode& GetNode() const;

  const JsonTree* tree = nullptr;
  std::uint32_t index = 0;
};

/// Values that follow each other. To go through a long timeline's items is to fetch each of them from
/// the memory: whoever only wants to know how many there are asks for that. As cheap to copy as a few
/// numbers; valid as long as the tree.
class JsonValues {
 public:
  JsonValues() = default;
  JsonValues(JsonValue::Iterator first, JsonValue::Iterator last, std::size_t count)
      : first(first), last(last), count(count) {}

  JsonValue::Iterator begin() const { return first; }
  JsonValue::Iterator end() const { return last; }
  std::size_t Count() const { return count; }

 private:
  JsonValue::Iterator first{nullptr, 0};
  JsonValue::Iterator last{nullptr, 0};
  std::size_t count = 0;
};

/// A timeline of 100,000 clips has millions of them, so a node is kept small: it has a length or an
/// end, never both.
struct JsonNode {
  /// Where the text begins among those of the tree; of an object, the bits of its members' keys; of an
  /// array, the number of its elements.
  std::uint32_t text = 0;
  /// The length of a text or number; of a container, the index of the first node that is not inside it;
  /// 1 for true.
  std::uint32_t extent = 0;
  std::uint32_t line = 0;
  JsonKey key = JsonKey::kNone;
  JsonValue::Type type = JsonValue::Type::kNone;

  bool IsContainer() const {
    return type == JsonValue::Type::kObject || type == JsonValue::Type::kArray;
  }
  /// A bit that few keys share: most members that readers ask for are absent, which a look at the
  /// object tells.
  static constexpr std::uint32_t BitOf(JsonKey key) {
    return std::uint32_t{1} << static_cast<unsigned>(key) % 32U;
  }
};

/// Metadata under one name that no reader looks at, or not at all of it.
struct UnreadMetadata {
  std::string_view name;
  /// GetIndex() of the first object that has it.
  std::uint32_t firstOwner = 0;
  std::size_t count = 0;
  /// A known writer's dictionary, of which some members are read.
  bool isPartlyRead = false;
};

/// What of a document is kept in another way than it is written.
struct JsonRepairs {
  /// Halves of surrogate pairs, each replaced by U+FFFD.
  std::size_t brokenCharacters = 0;
  std::size_t brokenCharacterLine = 0;
  /// Members whose name their object has already; the first of a name counts.
  std::size_t repeatedMembers = 0;
  std::size_t repeatedMemberLine = 0;
  std::string_view repeatedMemberName;
};

/// A JSON document cut down to the members that readers look at: one flat list of nodes in the order of
/// the file, each with the index behind its last descendant. Texts are decoded and kept side by side;
/// an escaped half of a surrogate pair becomes U+FFFD. NaN and infinities are numbers; numbers keep
/// their digits. Parsing takes linear time and no stack, however deep the nesting.
class STANDALONE_API JsonTree {
 public:
  /// Throws ImportError with the line when the text is not JSON, ends early, is no UTF-8, or when the
  /// progress says that the read is cancelled. Reports from 0 to `lastFraction`.
  JsonTree(TextSource& source, const ImportProgress& progress, double lastFraction);
  JsonTree(std::string text, const ImportProgress& progress, double lastFraction);
  JsonTree(const JsonTree&) = delete;
  JsonTree& operator=(const JsonTree&) = delete;

  JsonValue GetRoot() const { return {this, 0}; }
  std::size_t GetNodeCount() const { return nodes.size(); }
  /// The value of that index with all that it stands in, from the root on. Looks at the siblings of
  /// each, so it is for the few values that people are told about.
  std::vector<JsonValue> GetPath(std::uint32_t index) const;

  /// Metadata that was dropped, name by name in the order of the file; of a known writer's dictionary,
  /// how many lost some of their members. Empty values don't count, nor do the flat parameters that
  /// effects have for metadata.
  const std::vector<UnreadMetadata>& GetUnreadMetadata() const { return unreadMetadata; }
  /// What was dropped under names beyond the first 20, without a name.
  const UnreadMetadata& GetFurtherUnreadMetadata() const { return furtherUnreadMetadata; }
  const JsonRepairs& GetRepairs() const { return repairs; }

 private:
  friend class JsonValue;
  friend class JsonTreeBuilder;

  std::string_view GetText(const JsonNode& node) const {
    return {texts.data() + node.text, node.extent};
  }
  /// Index of the first node that is not inside that one. A free-text name ends where its value ends.
  std::uint32_t GetEnd(std::uint32_t index) const {
    if (nodes[index].key == JsonKey::kNamed) ++index;
    return nodes[index].IsContainer() ? nodes[index].extent : index + 1;
  }

  /// Of all nodes, some of which share a text.
  std::string texts;
  std::vector<JsonNode> nodes;
  /// What is told about the document, apart; a name never moves.
  std::deque<std::string> names;
  std::vector<UnreadMetadata> unreadMetadata;
  UnreadMetadata furtherUnreadMetadata;
  JsonRepairs repairs;
};

// Readers ask some hundred questions for each clip, so the answers are inline.

inline const JsonNode& JsonValue::GetNode() const {
  return tree->nodes[index];
}

inline JsonValue::Type JsonValue::GetType() const {
  return tree == nullptr ? Type::kNone : GetNode().type;
}

inline JsonValue JsonValue::operator[](JsonKey key) const {
  if (!IsObject() || (GetNode().text & JsonNode::BitOf(key)) == 0) return {};
  const std::uint32_t last = GetNode().extent;
  for (std::uint32_t member = index + 1; member < last; member = tree->GetEnd(member)) {
    if (tree->nodes[member].key == key) return {tree, member};
  }
  return {};
}

inline std::string_view JsonValue::GetText() const {
  return GetType() == Type::kString ? tree->GetText(GetNode()) : std::string_view();
}

inline std::string_view JsonValue::GetNumber() const {
  return GetType() == Type::kNumber ? tree->GetText(GetNode()) : std::string_view();
}

inline std::optional<bool> JsonValue::GetBool() const {
  if (GetType() != Type::kBool) return std::nullopt;
  return GetNode().extent != 0;
}

inline JsonValue JsonValue::Iterator::operator*() const {
  const bool isName = tree->nodes[index].key == JsonKey::kNamed;
  return {tree, isName ? index + 1 : index};
}

inline JsonValue::Iterator& JsonValue::Iterator::operator++() {
  index = tree->GetEnd(index);
  return *this;
}

inline JsonValue::Iterator JsonValue::begin() const {
  if (!IsObject() && !IsArray()) return end();
  return {tree, index + 1};
}

inline JsonValue::Iterator JsonValue::end() const {
  return {tree, tree == nullptr ? 0 : tree->GetEnd(index)};
}

inline JsonValues JsonValue::GetElements() const {
  return IsArray() ? JsonValues(begin(), end(), GetNode().text) : JsonValues();
}

inline JsonValues JsonValue::GetAlone() const {
  return tree == nullptr ? JsonValues() : JsonValues({tree, index}, end(), 1);
}

}  // namespace standalone

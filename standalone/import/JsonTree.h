#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "standalone/import/JsonKeys.h"
#include "standalone/import/TimelineReader.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

class JsonTree;

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

 private:
  friend class JsonTree;
  JsonValue(const JsonTree* tree, std::uint32_t index) : tree(tree), index(index) {}

  const JsonTree* tree = nullptr;
  std::uint32_t index = 0;
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
/// the file, each with the index behind its last descendant. Texts are decoded in place and stay in the
/// buffer, which the tree owns; an escaped half of a surrogate pair becomes U+FFFD. NaN and infinities
/// are numbers; numbers keep their digits.
/// Parsing takes linear time and no stack, however deep the nesting.
class STANDALONE_API JsonTree {
 public:
  /// Throws ImportError with the line when the text is not JSON, ends early, is no UTF-8, or when the
  /// progress says that the read is cancelled. Reports from 0 to `lastFraction`.
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

  struct Node {
    const char* text = nullptr;
    std::uint32_t length = 0;
    /// Index of the first node that is not inside this one.
    std::uint32_t end = 0;
    std::uint32_t line = 0;
    JsonKey key = JsonKey::kNone;
    JsonValue::Type type = JsonValue::Type::kNone;
  };

  void ReplaceLoneSurrogates();

  std::string buffer;
  std::vector<Node> nodes;
  std::vector<UnreadMetadata> unreadMetadata;
  UnreadMetadata furtherUnreadMetadata;
  JsonRepairs repairs;
};

}  // namespace standalone

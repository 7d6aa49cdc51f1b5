#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "standalone/import/JsonTree.h"

namespace standalone {

class JsonWindow;
struct JsonStream;

/// Fills a JsonTree from the events of the parser, which calls the operations named after JSON's
/// values. Each returns false to end the parse.
class JsonTreeBuilder {
 public:
  /// The text that comes through the window is about that long.
  JsonTreeBuilder(JsonTree& tree, JsonWindow& window, std::size_t expectedLength,
                  const ImportProgress& progress, double lastFraction);
  void Parse();

  bool Null();
  bool Bool(bool value);
  bool RawNumber(const char* text, unsigned length, bool copy);
  bool String(const char* text, unsigned length, bool copy);
  bool StartObject();
  bool Key(const char* text, unsigned length, bool copy);
  bool EndObject(unsigned memberCount);
  bool StartArray();
  bool EndArray(unsigned elementCount);
  /// Never called, since numbers come with their digits, but the parser's template names them.
  bool Int(int) { return false; }
  bool Uint(unsigned) { return false; }
  bool Int64(std::int64_t) { return false; }
  bool Uint64(std::uint64_t) { return false; }
  bool Double(double) { return false; }

 private:
  struct KeptText {
    std::uint32_t place = 0;
    std::uint32_t size = 0;
  };
  struct OpenContainer {
    std::uint32_t node;
    JsonContext context;
    /// The keys that an object has so far.
    std::bitset<static_cast<std::size_t>(JsonKey::kCount)> keys;
    std::uint32_t keyBits = 0;

    /// False: the object has it already.
    bool AddKey(JsonKey key) {
      const auto position = static_cast<std::size_t>(key);
      const bool isNew = !keys[position];
      keys[position] = true;
      keyBits |= JsonNode::BitOf(key);
      return isNew;
    }
  };

  bool IsWanted(bool hasContent);
  void NoteRepeat(std::string_view name);
  /// Metadata that no reader looks at: counted once its value is known to hold something.
  void BeginUnread(std::string_view name);
  void EndUnread(bool hasContent, bool isObject);
  void CountUnread(const UnreadMetadata& metadata);
  /// Returns where the text stands among those of the tree.
  std::uint32_t Keep(std::string_view text);
  /// The same for what comes under the pending key: members of one name often hold one text, as rates
  /// and schemas do, which is kept once as long as it does not change.
  std::uint32_t KeepValue(std::string_view text);
  std::string_view KeepName(std::string_view name);
  std::size_t ExpectInAll(std::size_t countSoFar) const;
  void MakeRoom();
  void AddNode(JsonValue::Type type, const char* text, std::size_t extent);
  bool Open(JsonValue::Type type);
  bool Close(unsigned count, bool isObject);
  bool GoesOn();
  bool IsPaddingToEnd(const JsonStream& source);
  [[noreturn]] void ThrowParseError(int code, std::size_t offset) const;

  JsonTree& tree;
  JsonWindow& window;
  std::size_t expectedLength;
  const ImportProgress& progress;
  double lastFraction;
  const JsonStream* stream = nullptr;
  std::vector<OpenContainer> open;
  /// Depth inside a container that is dropped; 0: nothing is dropped.
  std::size_t droppedDepth = 0;
  JsonKey key = JsonKey::kNone;
  /// Of each key, where its last text stands; elements and free names share one.
  std::array<KeptText, static_cast<std::size_t>(JsonKey::kCount)> lastTexts;
  bool isMemberDropped = false;
  /// The known writer's dictionary that was opened last, and whether it counts already; without a name:
  /// a parameter of a generator. The window slides below names, so they are copies.
  UnreadMetadata writer;
  std::string writerName;
  /// Name of the metadata that is being dropped; empty: none that counts.
  std::string unreadName;
  bool isCancelled = false;
  std::size_t nextReport = 0;
};

}  // namespace standalone

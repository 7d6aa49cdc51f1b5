#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>
#include <utility>

#include "export/ShortField.h"

namespace Vantrel {

/// One line of the exported text while it is put together, in memory of its own that stays in the
/// fastest cache; it moves to the text as a whole. One thread at a time.
class CSVLine {
 public:
  /// A line of at most so many fields, each added once and followed by one comma at most.
  explicit CSVLine(std::size_t mostFields);

  /// Adds a field, quoted where needed.
  void AddField(std::string_view text) {
    if (!text.empty()) AddText(text);
  }

  /// Adds a field as it is: it has its quotes.
  void AddReadyField(std::string_view field) {
    MakeRoom(field.size());
    std::memcpy(bytes.get() + size, field.data(), field.size());
    size += field.size();
  }
  void AddReadyField(const ShortField& field) {
    std::memcpy(bytes.get() + size, field.bytes.data(), ShortField::kRoom);
    size += field.size;
  }

  void AddComma() { bytes[size++] = ','; }

  /// So many bytes; what was added since is GetFrom of that number, valid until more is added.
  std::size_t GetSize() const noexcept { return size; }
  std::string_view GetFrom(std::size_t begin) const noexcept {
    return {bytes.get() + begin, size - begin};
  }

  /// The whole line with its line feed, valid until the next call. A new line begins.
  std::string_view End() {
    bytes[size++] = '\n';
    return {bytes.get(), std::exchange(size, 0)};
  }

 private:
  void AddText(std::string_view text);
  void AddQuoted(std::string_view text);
  void MakeRoom(std::size_t more) {
    if (more + spare > capacity - size) Grow(more + spare);
  }
  void Grow(std::size_t more);

  /// Room that is there between any two calls: nobody asks for that of short fields and commas.
  const std::size_t spare;
  std::unique_ptr<char[]> bytes;
  std::size_t size = 0;
  std::size_t capacity = 0;
};

}  // namespace Vantrel

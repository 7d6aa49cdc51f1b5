#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>

#include "export/ShortField.h"
#include "export/TextArena.h"

namespace Vantrel {

/// Some lines of the exported text while they are put together, in memory of their own that stays in
/// the fastest cache. They move to the text together: to read in large steps what was only just stored
/// in small ones waits until the stores are done. One thread at a time. Throws: std::bad_alloc.
///
/// What adds to the lines is told where, and tells where the next begins: the place stays in a
/// register, where a member would be read and written again for each byte that is stored.
class CSVLines {
 public:
  /// Lines of at most so many fields, each added once and followed by one comma at most.
  explicit CSVLines(std::size_t mostFields);

  /// Where the first line begins, in place of what was added before.
  char* Begin() const noexcept { return bytes.get(); }

  /// Adds a field, quoted where needed.
  char* AddField(char* next, std::string_view text) {
    return text.empty() ? next : AddText(next, text);
  }

  /// Adds a field as it is: it has its quotes.
  static char* AddReadyField(char* next, const ShortField& field) noexcept {
    std::memcpy(next, field.bytes.data(), ShortField::kRoom);
    return next + field.size;
  }

  /// Adds a field of a TextArena as it is, in steps that take as many bytes as may be read behind it:
  /// most such fields take one or two, so that little is decided by their lengths.
  char* AddKeptField(char* next, std::string_view field) {
    constexpr std::size_t kStep = ShortField::kRoom;
    static_assert(kStep <= TextArena::kBytesBehind);
    next = MakeRoom(next, field.size());
    for (std::size_t i = 0; i < field.size(); i += kStep) {
      std::memcpy(next + i, field.data() + i, kStep);
    }
    return next + field.size();
  }

  /// Adds a comma, or nothing, without a decision.
  static char* AddComma(char* next, bool isAdded) noexcept {
    *next = ',';
    return next + (isAdded ? 1 : 0);
  }

  /// So many bytes stand before; what was added since is GetFrom of that number, valid until more is
  /// added.
  std::size_t CountBytes(const char* next) const noexcept {
    return static_cast<std::size_t>(next - bytes.get());
  }
  std::string_view GetFrom(std::size_t begin, const char* next) const noexcept {
    return {bytes.get() + begin, CountBytes(next) - begin};
  }

  /// Adds the line feed; another line may follow.
  char* End(char* next) {
    *next = '\n';
    return MakeRoom(next + 1, 0);
  }

 private:
  char* AddText(char* next, std::string_view text);
  // This and Grow stand apart from what calls them, which then has little to save and restore.
  [[gnu::noinline]] char* AddQuoted(char* next, std::string_view text);
  char* MakeRoom(char* next, std::size_t more) {
    return more + spare > static_cast<std::size_t>(end - next) ? Grow(next, more + spare) : next;
  }
  [[gnu::noinline]] char* Grow(const char* next, std::size_t more);

  /// Room that is there between any two calls: nobody asks for that of short fields and commas.
  const std::size_t spare;
  std::unique_ptr<char[]> bytes;
  const char* end;
};

}  // namespace Vantrel

#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "standalone/runtime/StandaloneAPI.h"
#include "standalone/window/ShapedLine.h"

namespace standalone {

/// The lines drawn lately in one font, shaped once: shaping takes many times as long as drawing.
///
/// Two generations: what is asked for is in the recent one, or comes over from the older; when the
/// recent one is full, it becomes the older, and what nobody asked for since is let go of. So a
/// viewport's lines stay, and memory is bounded whatever the table. [main-thread]
class STANDALONE_API ShapedLines {
 public:
  /// The line that ShapeLine makes; valid until the next call. `font` is always the same.
  const ShapedLine& Find(std::string_view utf8, const TextFont& font, float width,
                         std::u16string_view ellipsis);

  /// How many lines are kept, at most.
  static constexpr std::size_t kMostLines = 8192;
  std::size_t Count() const noexcept { return recent.size() + older.size(); }

 private:
  /// What a line is made of, borrowed.
  struct Wanted {
    std::string_view utf8;
    float width;
    std::u16string_view ellipsis;
    friend bool operator==(const Wanted&, const Wanted&) noexcept = default;
  };
  struct Key {
    std::string utf8;
    float width;
    std::u16string ellipsis;
    operator Wanted() const noexcept { return {utf8, width, ellipsis}; }
  };
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(const Wanted& wanted) const noexcept;
  };
  struct Equal {
    using is_transparent = void;
    bool operator()(const Wanted& left, const Wanted& right) const noexcept { return left == right; }
  };
  using Generation = std::unordered_map<Key, ShapedLine, Hash, Equal>;

  void MakeRoom();

  Generation recent;
  Generation older;
  /// Of the texts in the recent generation.
  std::size_t recentBytes = 0;
};

}  // namespace standalone

#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "host/qelcore/UTF8String.h"

namespace Vantrel {

/// Gives equal texts one buffer. The names of effects, and the lists that they make, repeat on almost
/// every row: shared, they cost a row neither memory nor the making of a text. For one pass over a
/// sequence; one thread at a time. Throws: std::bad_alloc.
class TextShare {
 public:
  /// The text, in the buffer of the first equal one that was asked for.
  qelcore::UTF8String Share(std::string_view text);

  /// A name that the host gives in UTF-16, converted when it is met first. Valid as long as this
  /// object.
  std::string_view ToUTF8(const std::u16string& name);

 private:
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const noexcept {
      return std::hash<std::string_view>()(text);
    }
  };

  using Names = std::unordered_map<std::u16string, qelcore::UTF8String>;

  qelcore::UTF8String Find(std::string_view text);
  const Names::value_type& FindName(const std::u16string& name);

  std::unordered_set<qelcore::UTF8String, Hash, std::equal_to<>> texts;
  Names names;

  /// What was asked for last, by a number that takes next to nothing to find: a sequence has some
  /// dozens of texts, and most of them have a number of their own.
  static constexpr unsigned kRecentBits = 8;
  static constexpr std::size_t kRecent = std::size_t{1} << kRecentBits;
  std::array<qelcore::UTF8String, kRecent> recentTexts;
  std::array<const Names::value_type*, kRecent> recentNames{};
};

}  // namespace Vantrel

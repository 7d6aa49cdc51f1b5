#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "host/qelcore/Locale.h"
#include "host/qelcore/UTF8String.h"

namespace Vantrel {

/// Looks for one text within others, byte by byte, whether letters are capital or small as far as the
/// host's locale knows them. Finds UTF-8 in UTF-8. [any-thread]
///
/// A mismatch moves the comparison on by up to the length of the wanted text (Horspool 1980), so that
/// most bytes of a text are never looked at.
class FoldedSearch {
 public:
  /// `wanted` is lowered here.
  explicit FoldedSearch(const qelcore::UTF8String& wanted);

  /// An empty wanted text is within every text. Most texts of a table are empty or short, and cost no
  /// more than a look at their size.
  bool IsWithin(std::string_view text) const noexcept {
    return text.size() >= lowered.Size() && Find(text);
  }

 private:
  /// `text` is at least as long as what is wanted.
  bool Find(std::string_view text) const noexcept;
  bool BeginsWith(const char* bytes) const noexcept;

  /// The host's, there for as long as the module is.
  const qelcore::Locale* locale;
  qelcore::UTF8String lowered;
  /// How far to move on when the last of the compared bytes is this one; 0 when it is the last of the
  /// wanted ones, too, so that the others have to be compared. At most what a byte holds: moving on by
  /// less than possible finds the same.
  std::array<std::uint8_t, 256> steps{};
  /// How far to move on when the last byte was the wanted one but another was not.
  std::uint8_t stepAfterLast = 1;
};

}  // namespace Vantrel

#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "data/TrackItemRowData.h"
#include "host/qelcore/UTF8String.h"

namespace benchmarks {

inline constexpr std::size_t kSearchedTexts = 13;

/// The texts of a row that a search looks at, those among them that are asked of the host as it asks
/// for them.
std::array<qelcore::UTF8String, kSearchedTexts> GetSearchedTexts(const Vantrel::TrackItemRowData& row);

/// The texts that a search looks at, ready to be searched by somebody who derives nothing: thirteen of
/// each row, one after the other in one block of memory.
class SearchTexts {
 public:
  static constexpr std::size_t kTextsOfARow = kSearchedTexts;

  explicit SearchTexts(const Vantrel::TrackItemDataList& rows);

  std::size_t CountRows() const noexcept { return texts.size() / kTextsOfARow; }
  /// The first of a row's texts.
  const std::string_view* GetTexts(std::size_t row) const noexcept {
    return &texts[row * kTextsOfARow];
  }
  const std::string& GetBytes() const noexcept { return bytes; }

 private:
  std::string bytes;
  std::vector<std::string_view> texts;
};

}  // namespace benchmarks

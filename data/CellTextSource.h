#pragma once

#include <array>
#include <optional>
#include <string_view>
#include <unordered_map>

#include "data/ColumnIdentifiers.h"
#include "data/RecentTexts.h"
#include "data/RowClip.h"
#include "data/StoredTexts.h"
#include "data/TimeText.h"
#include "data/TrackItemRowData.h"
#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"
#include "host/qelcore/Strings.h"
#include "host/qelcore/UTF8String.h"
#include "host/qelmediatypes/TickTime.h"

namespace Vantrel {

/// The texts of cells. What several cells share is asked of the host once: what they want of the
/// sequence, of the row's clip, of the same media. One thread at a time.
///
/// The rows that were set stay as they are while this object is used, and so does what they reach: a
/// media is known by its address, and its texts are those of the moment when it was first met.
class CellTextSource {
 public:
  /// What it remembers from one row to the next.
  enum class Memory { kOfOneRow, kOfManyRows };

  /// `zeroPoint` is that of the rows' sequence.
  CellTextSource(qelmediatypes::TickTime zeroPoint, Memory memory);

  /// The row whose cells are asked from now on.
  void SetRow(const TrackItemRowData& newRow);

  /// The text of a cell of the row; what the columns show is told by CellText. Valid until the next
  /// call. Throws: null_pointer_exception when the row has no track item and the column asks it.
  std::string_view Get(ColumnID column) {
    if (column < kFirstColumn || column > kLastColumn) return {};
    const qelcore::UTF8String* const stored = FindStoredText(*row, column);
    return stored != nullptr ? stored->View() : GetOfRow(column);
  }

 private:
  struct MediaTexts {
    std::optional<qelcore::UTF8String> fileName;
    std::optional<qelcore::UTF8String> filePath;
    std::optional<qelcore::UTF8String> offlineStatus;
  };
  using MediaText = std::optional<qelcore::UTF8String> MediaTexts::*;

  std::string_view GetOfRow(ColumnID column);
  std::string_view GetOfClip(ColumnID column);
  std::string_view GetTime(qelmediatypes::TickTime time);
  std::string_view GetFrameRate();
  std::string_view GetTrack();
  std::string_view GetUsageCount();
  template <typename Make>
  std::string_view GetOfMedia(MediaText text, const Make& make);
  MediaTexts& GetMediaTexts();
  MediaTexts& FindMediaTexts();
  std::string_view Keep(qelcore::UTF8String&& text) noexcept;

  const qelmediatypes::TickTime zeroPoint;
  const Memory memory;
  const TrackItemRowData* row = nullptr;
  RowClip clip;
  /// The text told last, unless it is remembered elsewhere.
  qelcore::UTF8String lastText;
  std::array<char, qelcore::string::kUInt64BufferSize> lastDigits;
  /// Asked of the sequence of the row.
  std::optional<TimeFormat> timeFormat;
  std::optional<qelcore::Ref<BE::IProject>> project;
  RecentTexts times;
  /// Of picture rows, and of the others.
  std::array<RecentTexts, 2> frameRates;
  std::array<RecentTexts, 2> tracks;
  RecentTexts usageCounts;
  /// By media; stays empty when only one row is remembered.
  std::unordered_map<const BE::IMedia*, MediaTexts> textsOfMedia;
  MediaTexts textsOfOneMedia;
  /// Those of the row's media, in one of the two, once they are asked for.
  MediaTexts* mediaTexts = nullptr;
};

}  // namespace Vantrel

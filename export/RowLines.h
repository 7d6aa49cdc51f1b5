#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "data/CellTextSource.h"
#include "data/ClipsAhead.h"
#include "data/ColumnIdentifiers.h"
#include "data/StoredTexts.h"
#include "data/TrackItemRowData.h"
#include "export/CSVLines.h"
#include "export/MediaFields.h"
#include "export/RecentFields.h"
#include "export/ShortField.h"
#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"
#include "host/qelcore/UTF8StringStream.h"
#include "host/qelmediatypes/TickTime.h"
#include "host/qelui/Geometry.h"

namespace Vantrel {

/// The lines of many rows, one after the other. A field that rows share is made once and remembered as
/// it is written. One thread at a time.
///
/// The rows stay as they are while this object is used, and so does what they reach: a media is known
/// by its address, and what its fields say is that of the moment when it was first met.
class RowLines {
 public:
  /// The columns in their display order, and the zero point of the exported sequence.
  RowLines(std::span<const ColumnID> shownColumns, qelmediatypes::TickTime zeroPoint);

  /// Appends the lines of rows. Throws: as CellTextSource::Maker.
  void Append(qelcore::oUTF8StringStream& stream, std::span<const TrackItemRowData> rows);

 private:
  using RecentNumbers = RecentFields<std::uint64_t>;

  struct Column {
    /// Adds the field of the row at the end of the line, and tells where the line ends then.
    char* (*add)(RowLines& lines, const Column& column, char* next);
    /// Where a row holds the text; or else null, and what makes it.
    StoredText stored;
    CellTextSource::Maker make;
    bool hasComma;
  };

  static std::vector<Column> MakeColumns(std::span<const ColumnID> shown);

  void AppendBlock(qelcore::oUTF8StringStream& stream, std::span<const TrackItemRowData> rows);
  void RequestTexts(const TrackItemRowData& ahead, RowClip& clip) const;
  void SetSequence(const BE::ISequence* newSequence);
  void AskAhead(std::span<const TrackItemRowData> rows);
  void AskMediaAhead(std::size_t count);
  char* AddLine(char* next);
  static std::uint64_t TicksOf(qelmediatypes::TickTime time) {
    return static_cast<std::uint64_t>(time.GetTicks());
  }
  static auto FindAdd(ColumnID column) -> decltype(Column::add);
  char* AddOfTime(RecentNumbers& known, qelmediatypes::TickTime time, const Column& column,
                  char* next) {
    return AddOfNumber(known, TicksOf(time), column, next);
  }
  char* AddOfNumber(RecentNumbers& known, std::uint64_t number, const Column& column, char* next) {
    const ShortField* const field = known.Find(number);
    return field != nullptr ? CSVLines::AddReadyField(next, *field)
                            : AddNewNumber(known, number, column, next);
  }
  char* AddIndex(char* next);
  char* AddNewNumber(RecentNumbers& known, std::uint64_t number, const Column& column, char* next);
  char* AddColor(char* next);
  template <MediaField kField>
  static char* AddOfMedia(RowLines& self, const Column& column, char* next);

  const std::vector<Column> columns;
  /// Where the rows hold what is shown.
  const std::vector<StoredText> storedTexts;
  const bool asksClips;
  const bool asksProjectItems;
  const bool asksMedia;
  const bool hasDurations;
  const qelmediatypes::TickTime zeroPoint;
  const BE::ISequence* sequence = nullptr;
  ClipsAhead clips;
  CellTextSource texts;
  CSVLines lines;
  const TrackItemRowData* row = nullptr;
  /// The number of the row before without its last digit; and how a number of these ten is written.
  std::uint64_t writtenTens = 0;
  ShortField indexField;
  RecentNumbers durations;
  RecentNumbers positions;
  /// Of picture rows, and of the others.
  std::array<RecentNumbers, 2> frameRates;
  std::array<RecentNumbers, 2> tracks;
  RecentFields<qelui::ColorRGBA> colors;
  KnownMediaFields knownMedia;
  /// Those of the media of the next rows, and of the row's; null where there is no media.
  std::array<FieldsOfMedia*, ClipsAhead::kMostRows> fieldsAhead{};
  FieldsOfMedia* mediaFields = nullptr;
};

}  // namespace Vantrel

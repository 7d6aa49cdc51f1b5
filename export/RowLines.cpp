#include "export/RowLines.h"

#include <algorithm>
#include <cstddef>

#include "data/ClipColumns.h"
#include "data/MediaTypes.h"
#include "data/StoredTexts.h"
#include "export/CSVFormat.h"
#include "host/qelcore/Strings.h"

namespace Vantrel {
namespace {

using qelmediatypes::TickTime;

/// Room for the positions on many tracks side by side: a clip mostly starts where one before it ended.
/// Durations come back at any time.
constexpr unsigned kPositionBits = 10;
constexpr unsigned kDurationBits = 12;
constexpr unsigned kFewBits = 6;
/// Some dozens of colours, hardly two of them in one place.
constexpr unsigned kColorBits = 9;

using Rows = std::span<const TrackItemRowData>;

/// How many rows, from the first, are of one sequence and can be asked ahead.
std::size_t CountBlock(Rows rows) {
  const Rows most = rows.first(std::min(rows.size(), ClipsAhead::kMostRows));
  const auto isOfOther = [&](const TrackItemRowData& row) {
    return row.sequence != rows.front().sequence;
  };
  return static_cast<std::size_t>(std::ranges::find_if(most, isOfOther) - most.begin());
}

constexpr bool IsMediaColumn(ColumnID column) noexcept {
  return column == kColumnFileName || column == kColumnFilePath || column == kColumnOfflineStatus ||
         column == kColumnUsageCountInSequence;
}

/// The first of the fields, with the others behind it, or else what they are asked of.
void FetchFields(const FieldsOfMedia& fields, const BE::IMedia& media) noexcept {
  const void* const first = fields.front().data();
  __builtin_prefetch(first == nullptr ? &media : first);
}

std::size_t KindOf(const TrackItemRowData& row) noexcept {
  return IsVideoRow(row) ? 0 : 1;
}

}  // namespace

RowLines::RowLines(std::span<const ColumnID> shownColumns, TickTime zeroPoint)
    : columns(MakeColumns(shownColumns)),
      asksClips(std::ranges::any_of(shownColumns, IsClipColumn)),
      asksMedia(std::ranges::any_of(shownColumns, IsMediaColumn)),
      zeroPoint(zeroPoint),
      texts(zeroPoint),
      line(shownColumns.size()),
      durations(kDurationBits),
      positions(kPositionBits),
      frameRates{RecentNumbers(kFewBits), RecentNumbers(kFewBits)},
      tracks{RecentNumbers(kFewBits), RecentNumbers(kFewBits)},
      colors(kColorBits) {}

std::vector<RowLines::Column> RowLines::MakeColumns(std::span<const ColumnID> shown) {
  std::vector<Column> columns;
  for (std::size_t i = 0; i < shown.size(); ++i) {
    if (!IsExportedColumn(shown[i])) continue;
    const ColumnID id = shown[i];
    columns.push_back(
        {FindAdd(id), GetStoredText(id), CellTextSource::GetMaker(id), HasCommaAfter(i, shown.size())});
  }
  return columns;
}

void RowLines::Append(qelcore::oUTF8StringStream& stream, Rows rows) {
  while (!rows.empty()) {
    const Rows block = rows.first(CountBlock(rows));
    AppendBlock(stream, block);
    rows = rows.subspan(block.size());
  }
}

void RowLines::AppendBlock(qelcore::oUTF8StringStream& stream, Rows rows) {
  SetSequence(rows.front().sequence.Get());
  AskAhead(rows);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    row = &rows[i];
    texts.SetRow(rows[i], clips[i]);
    mediaFields = fieldsAhead[i];
    stream << MakeLine();
  }
}

void RowLines::SetSequence(const BE::ISequence* newSequence) {
  if (sequence == newSequence) return;
  sequence = newSequence;
  durations.Forget();
  positions.Forget();
  knownMedia.Forget();
}

void RowLines::AskAhead(Rows rows) {
  clips.SetRows(rows);
  if (!asksClips) return;
  clips.AskMasterClips();
  if (asksMedia) AskMediaAhead(rows.size());
}

/// In steps, like all that is asked ahead.
void RowLines::AskMediaAhead(std::size_t count) {
  std::array<const BE::IMedia*, ClipsAhead::kMostRows> media;
  for (std::size_t i = 0; i < count; ++i) {
    media[i] = clips[i].IsGap() ? nullptr : clips[i].GetMedia().Get();
    if (media[i] != nullptr) knownMedia.Fetch(*media[i]);
  }
  for (std::size_t i = 0; i < count; ++i) {
    fieldsAhead[i] = media[i] == nullptr ? nullptr : &knownMedia.Get(*media[i]);
    if (media[i] != nullptr) FetchFields(*fieldsAhead[i], *media[i]);
  }
}

std::string_view RowLines::MakeLine() {
  for (const Column& column : columns) {
    column.add(*this, column);
    if (column.hasComma) line.AddComma();
  }
  return line.End();
}

/// Found once for each column: what differs from column to column is no question for each row.
auto RowLines::FindAdd(ColumnID column) -> decltype(Column::add) {
  using Lines = RowLines&;
  using Self = const Column&;
  switch (column) {
    case kColumnIndex:
      return [](Lines lines, Self) { lines.AddIndex(); };
    case kColumnLabelColor:
      return [](Lines lines, Self) { lines.AddColor(); };
    case kColumnDuration:
      return [](Lines l, Self self) { l.AddOfTime(l.durations, l.row->end - l.row->start, self); };
    case kColumnStartTime:
      return [](Lines l, Self self) { l.AddOfTime(l.positions, l.zeroPoint + l.row->start, self); };
    case kColumnEndTime:
      return [](Lines l, Self self) { l.AddOfTime(l.positions, l.zeroPoint + l.row->end, self); };
    case kColumnFrameRate:
      return
          [](Lines l, Self self) { l.AddOfTime(l.frameRates[KindOf(*l.row)], l.row->frameRate, self); };
    case kColumnTrack:
      return
          [](Lines l, Self self) { l.AddOfNumber(l.tracks[KindOf(*l.row)], l.row->trackIndex, self); };
    case kColumnFileName:
      return [](Lines l, Self self) { l.AddOfMedia<MediaField::kFileName>(self); };
    case kColumnFilePath:
      return [](Lines l, Self self) { l.AddOfMedia<MediaField::kFilePath>(self); };
    case kColumnOfflineStatus:
      return [](Lines l, Self self) { l.AddOfMedia<MediaField::kOfflineStatus>(self); };
    case kColumnUsageCountInSequence:
      return [](Lines l, Self self) { l.AddOfMedia<MediaField::kUsageCount>(self); };
    default:
      break;
  }
  if (GetStoredText(column) != nullptr) {
    return [](Lines l, Self self) { l.line.AddField((l.row->*self.stored).View()); };
  }
  return [](Lines l, Self self) { l.line.AddField(self.make(l.texts)); };
}

/// No two rows share it, so that it is not worth a text of its own.
void RowLines::AddIndex() {
  char digits[qelcore::string::kUInt64BufferSize];
  line.AddField(qelcore::string::ConvertUInt64ToBufferT(row->index + 1, digits));
}

void RowLines::AddNewNumber(RecentNumbers& known, std::uint64_t number, const Column& column) {
  const std::size_t begin = line.GetSize();
  line.AddField(column.make(texts));
  known.Remember(number, line.GetFrom(begin));
}

void RowLines::AddColor() {
  if (const ShortField* const field = colors.Find(row->labelColor)) return line.AddReadyField(*field);
  const std::size_t begin = line.GetSize();
  line.AddField(ColorFieldText(row->labelColor));
  colors.Remember(row->labelColor, line.GetFrom(begin));
}

template <MediaField kField>
void RowLines::AddOfMedia(const Column& column) {
  if (mediaFields == nullptr) return line.AddField(column.make(texts));
  std::string_view& field = (*mediaFields)[static_cast<std::size_t>(kField)];
  if (field.data() == nullptr) field = knownMedia.Keep(QuoteCSVField(column.make(texts)));
  line.AddReadyField(field);
}

}  // namespace Vantrel

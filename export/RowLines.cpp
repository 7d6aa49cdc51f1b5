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

/// A row is written in less time than the memory takes to answer once.
constexpr std::size_t kRowsAhead = 4;

using Rows = std::span<const TrackItemRowData>;

/// How many rows, from the first, are of one sequence and can be asked ahead.
std::size_t CountBlock(Rows rows) {
  const Rows most = rows.first(std::min(rows.size(), ClipsAhead::kMostRows));
  const auto isOfOther = [&](const TrackItemRowData& row) {
    return row.sequence != rows.front().sequence;
  };
  return static_cast<std::size_t>(std::ranges::find_if(most, isOfOther) - most.begin());
}

std::vector<StoredText> FindStoredTexts(std::span<const ColumnID> columns) {
  std::vector<StoredText> texts;
  for (const ColumnID column : columns) {
    if (const StoredText text = GetStoredText(column)) texts.push_back(text);
  }
  return texts;
}

constexpr bool IsMediaColumn(ColumnID column) noexcept {
  return column == kColumnFileName || column == kColumnFilePath || column == kColumnOfflineStatus ||
         column == kColumnUsageCountInSequence;
}

constexpr bool IsProjectItemColumn(ColumnID column) noexcept {
  return column == kColumnComment || column == kColumnDescription || column == kColumnTapeName;
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
      storedTexts(FindStoredTexts(shownColumns)),
      asksClips(std::ranges::any_of(shownColumns, IsClipColumn)),
      asksProjectItems(std::ranges::any_of(shownColumns, IsProjectItemColumn)),
      asksMedia(std::ranges::any_of(shownColumns, IsMediaColumn)),
      hasDurations(std::ranges::count(shownColumns, kColumnDuration) > 0),
      zeroPoint(zeroPoint),
      texts(zeroPoint),
      lines(shownColumns.size()),
      durations(kDurationBits),
      positions(kPositionBits),
      frameRates{RecentNumbers(kFewBits), RecentNumbers(kFewBits)},
      tracks{RecentNumbers(kFewBits), RecentNumbers(kFewBits)},
      colors(kColorBits) {
  indexField.Set("1");
}

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
  char* next = lines.Begin();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (i + kRowsAhead < rows.size()) RequestTexts(rows[i + kRowsAhead], clips[i + kRowsAhead]);
    row = &rows[i];
    texts.SetRow(rows[i], clips[i]);
    mediaFields = fieldsAhead[i];
    next = AddLine(next);
  }
  stream << lines.GetFrom(0, next);
}

/// Of a whole block at once, the first would have left the cache when the last are there.
void RowLines::RequestTexts(const TrackItemRowData& ahead, RowClip& clip) const {
  for (const StoredText text : storedTexts) __builtin_prefetch((ahead.*text).View().data());
  if (hasDurations) durations.Fetch(TicksOf(ahead.end - ahead.start));
  // A host may fetch what the item says when it is asked for.
  if (asksProjectItems && !clip.IsGap()) clip.GetProjectItem();
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

char* RowLines::AddLine(char* next) {
  for (const Column& column : columns) {
    next = column.add(*this, column, next);
    next = CSVLines::AddComma(next, column.hasComma);
  }
  return lines.End(next);
}

/// Found once for each column: what differs from column to column is no question for each row.
auto RowLines::FindAdd(ColumnID column) -> decltype(Column::add) {
  using Self = RowLines&;
  using Of = const Column&;
  switch (column) {
    case kColumnIndex:
      return [](Self self, Of, char* next) { return self.AddIndex(next); };
    case kColumnLabelColor:
      return [](Self self, Of, char* next) { return self.AddColor(next); };
    case kColumnDuration:
      return [](Self self, Of shown, char* next) {
        return self.AddOfTime(self.durations, self.row->end - self.row->start, shown, next);
      };
    case kColumnStartTime:
      return [](Self self, Of shown, char* next) {
        return self.AddOfTime(self.positions, self.zeroPoint + self.row->start, shown, next);
      };
    case kColumnEndTime:
      return [](Self self, Of shown, char* next) {
        return self.AddOfTime(self.positions, self.zeroPoint + self.row->end, shown, next);
      };
    case kColumnFrameRate:
      return [](Self self, Of shown, char* next) {
        return self.AddOfTime(self.frameRates[KindOf(*self.row)], self.row->frameRate, shown, next);
      };
    case kColumnTrack:
      return [](Self self, Of shown, char* next) {
        return self.AddOfNumber(self.tracks[KindOf(*self.row)], self.row->trackIndex, shown, next);
      };
    case kColumnFileName:
      return &AddOfMedia<MediaField::kFileName>;
    case kColumnFilePath:
      return &AddOfMedia<MediaField::kFilePath>;
    case kColumnOfflineStatus:
      return &AddOfMedia<MediaField::kOfflineStatus>;
    case kColumnUsageCountInSequence:
      return &AddOfMedia<MediaField::kUsageCount>;
    default:
      break;
  }
  if (GetStoredText(column) != nullptr) {
    return [](Self self, Of shown, char* next) {
      return self.lines.AddField(next, self.row->*shown.stored);
    };
  }
  return
      [](Self self, Of shown, char* next) { return self.lines.AddField(next, shown.make(self.texts)); };
}

/// Ten rows differ in their last digit.
char* RowLines::AddIndex(char* next) {
  const std::uint64_t number = row->index + 1;
  if (number / 10 != writtenTens) {
    char digits[qelcore::string::kUInt64BufferSize];
    indexField.Set(qelcore::string::ConvertUInt64ToBufferT(number, digits));
    writtenTens = number / 10;
  }
  next = CSVLines::AddReadyField(next, indexField);
  next[-1] = static_cast<char>('0' + number % 10);
  return next;
}

char* RowLines::AddNewNumber(RecentNumbers& known, std::uint64_t number, const Column& column,
                             char* next) {
  const std::size_t begin = lines.CountBytes(next);
  next = lines.AddField(next, column.make(texts));
  known.Remember(number, lines.GetFrom(begin, next));
  return next;
}

char* RowLines::AddColor(char* next) {
  if (const ShortField* const field = colors.Find(row->labelColor)) {
    return CSVLines::AddReadyField(next, *field);
  }
  const std::size_t begin = lines.CountBytes(next);
  next = lines.AddField(next, ColorFieldText(row->labelColor));
  colors.Remember(row->labelColor, lines.GetFrom(begin, next));
  return next;
}

template <MediaField kField>
char* RowLines::AddOfMedia(RowLines& self, const Column& column, char* next) {
  FieldsOfMedia* const fields = self.mediaFields;
  if (fields == nullptr) return self.lines.AddField(next, column.make(self.texts));
  std::string_view& field = (*fields)[static_cast<std::size_t>(kField)];
  if (field.data() != nullptr) return self.lines.AddKeptField(next, field);
  const std::size_t begin = self.lines.CountBytes(next);
  next = self.lines.AddField(next, column.make(self.texts));
  field = self.knownMedia.Keep(self.lines.GetFrom(begin, next));
  return next;
}

}  // namespace Vantrel

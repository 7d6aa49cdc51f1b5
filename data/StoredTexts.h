#pragma once

#include <array>

#include "data/ColumnIdentifiers.h"
#include "data/TrackItemRowData.h"
#include "host/qelcore/UTF8String.h"

namespace Vantrel {

using StoredText = qelcore::UTF8String TrackItemRowData::*;

/// Where a row holds the text of each column, by the column's place among the identifiers; null for
/// columns whose texts are made when they are asked for.
inline constexpr auto kStoredTexts = [] {
  std::array<StoredText, kLastColumn - kFirstColumn + 1> texts{};
  const auto place = [&texts](ColumnID column) -> StoredText& { return texts[column - kFirstColumn]; };
  place(kColumnCodec) = &TrackItemRowData::codec;
  place(kColumnFontsUsed) = &TrackItemRowData::fontsUsed;
  place(kColumnFontsMissing) = &TrackItemRowData::fontsMissing;
  place(kColumnEffectsMissing) = &TrackItemRowData::effectsMissing;
  place(kColumnClipName) = &TrackItemRowData::name;
  place(kColumnEffects) = &TrackItemRowData::effects;
  place(kColumnTransitions) = &TrackItemRowData::transitions;
  place(kColumnProxyMediaPath) = &TrackItemRowData::proxyPath;
  place(kColumnProxyStatus) = &TrackItemRowData::proxyStatus;
  place(kColumnSourceClipName) = &TrackItemRowData::sourceClipName;
  return texts;
}();

/// Where a row holds the text of a column; null for other columns, and for what is no column.
/// [any-thread]
constexpr StoredText GetStoredText(ColumnID column) noexcept {
  return column < kFirstColumn || column > kLastColumn ? nullptr : kStoredTexts[column - kFirstColumn];
}

/// The text that a row holds for a column, or null. [any-thread]
inline const qelcore::UTF8String* FindStoredText(const TrackItemRowData& row,
                                                 ColumnID column) noexcept {
  const StoredText text = GetStoredText(column);
  return text == nullptr ? nullptr : &(row.*text);
}

}  // namespace Vantrel

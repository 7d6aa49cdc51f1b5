#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "data/ColumnIdentifiers.h"
#include "data/TrackItemRowData.h"
#include "export/CSVFormat.h"
#include "host/qelmediatypes/TickTime.h"
#include "support/Drafts.h"

namespace Vantrel {

/// Clips whose media, times, colours and counts come back, some of them only after others that would
/// take their place in a small memory.
inline standalone::SequenceDraft MakeRepeatingSequence() {
  auto draft = drafts::MakeSequence();
  draft.zeroPoint = drafts::Frame(1000);
  for (const auto kind : {standalone::TrackKind::kVideo, standalone::TrackKind::kAudio}) {
    auto& track = drafts::AddTrack(draft, kind);
    for (int i = 0; i < 3000; ++i) {
      if (i % 7 == 0) continue;
      auto& clip = drafts::AddClip(track, "Shot " + std::to_string(i), i * 10, i * 10 + 10);
      clip.media.address = "/media/" + std::to_string(i * i % 37) + ".mov";
      clip.media.isOffline = i % 5 == 0;
      clip.labelColor = {static_cast<std::uint8_t>(i % 200), static_cast<std::uint8_t>(i % 3), 0, 255};
      clip.comment = i % 2 == 0 ? "" : "Note, " + std::to_string(i % 11);
      clip.videoInfo = i % 3 == 0 ? "1920 x 1080 (1.0)" : "";
      clip.frameDuration = drafts::Frame(1 + i % 4);
    }
  }
  return draft;
}

inline std::vector<ColumnID> AllColumns() {
  std::vector<ColumnID> columns;
  for (ColumnID column = kFirstColumn - 1; column <= kLastColumn + 1; ++column)
    columns.push_back(column);
  return columns;
}

/// What a row's line says when nothing is known of other rows.
inline std::string LineOf(const TrackItemRowData& row, const std::vector<ColumnID>& columns,
                          qelmediatypes::TickTime zeroPoint) {
  std::string line;
  for (const ColumnID column : columns) {
    if (column != columns.front()) line.push_back(',');
    line.append(QuoteCSVField(RowFieldText(row, column, zeroPoint)).View());
  }
  return line + '\n';
}

inline std::string LinesOf(const TrackItemDataList& rows, const std::vector<ColumnID>& columns,
                           qelmediatypes::TickTime zeroPoint) {
  std::string lines;
  for (const auto& row : rows) lines += LineOf(row, columns, zeroPoint);
  return lines;
}

}  // namespace Vantrel

#pragma once

#include <cstddef>
#include <map>
#include <utility>

#include "data/FilterGroups.h"
#include "data/RowCollection.h"
#include "data/TrackItemRowData.h"
#include "generator/LongDocument.h"
#include "generator/TimelineShape.h"
#include "host/BE/MediaTypes.h"
#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"
#include "standalone/model/ProjectModel.h"
#include "support/SteppedHost.h"
#include "table/RowOrder.h"

namespace benchmarks {

/// What the benchmarks of one program work on: a host whose tasks run when the benchmark says so, on
/// its own thread, and generated sequences with their rows, each made when it is first asked for and
/// kept.
class Inputs {
 public:
  static Inputs& Get() {
    static Inputs inputs;
    return inputs;
  }

  SteppedHost& GetHost() noexcept { return host; }

  const qelcore::Ref<BE::ISequence>& GetSequence(
      std::size_t clips, unsigned worldTextPercent = generator::TimelineShape().worldTextPercent) {
    qelcore::Ref<BE::ISequence>& sequence = sequences[{clips, worldTextPercent}];
    if (!sequence) {
      generator::TimelineShape shape;
      shape.clips = clips;
      shape.worldTextPercent = worldTextPercent;
      sequence = host->GetProject().AddDocument(generator::MakeDocument(shape)).front();
    }
    return sequence;
  }

  /// In visiting order, gaps included. Into a list that has room, from the second time on, as that of a
  /// table has.
  Vantrel::TrackItemDataList CollectRows(
      std::size_t clips, unsigned worldTextPercent = generator::TimelineShape().worldTextPercent) {
    Vantrel::TrackItemDataList rows;
    std::size_t& expected = rowCounts[{clips, worldTextPercent}];
    rows.reserve(expected);
    Vantrel::CollectRows(GetSequence(clips, worldTextPercent),
                         {BE::kMediaType_Video, BE::kMediaType_Audio}, rows);
    expected = rows.size();
    return rows;
  }

  /// As a whole table has them: ordered and numbered, gaps included.
  const Vantrel::TrackItemDataList& GetRows(
      std::size_t clips, unsigned worldTextPercent = generator::TimelineShape().worldTextPercent) {
    Vantrel::TrackItemDataList& rows = lists[{clips, worldTextPercent}];
    if (rows.empty()) {
      rows = CollectRows(clips, worldTextPercent);
      Vantrel::OrderAndNumberRows(rows);
    }
    return rows;
  }

  /// The same without the gaps.
  const Vantrel::TrackItemDataList& GetClipRows(std::size_t clips, unsigned worldTextPercent) {
    constexpr bool kIsKeepingGaps = false;
    Vantrel::TrackItemDataList& rows = clipLists[{clips, worldTextPercent}];
    if (rows.empty()) {
      rows = *Vantrel::FilterTrackItemDataList(GetRows(clips, worldTextPercent), {}, kIsKeepingGaps);
    }
    return rows;
  }

 private:
  Inputs() = default;

  SteppedHost host;
  std::map<std::pair<std::size_t, unsigned>, qelcore::Ref<BE::ISequence>> sequences;
  std::map<std::pair<std::size_t, unsigned>, std::size_t> rowCounts;
  std::map<std::pair<std::size_t, unsigned>, Vantrel::TrackItemDataList> lists;
  std::map<std::pair<std::size_t, unsigned>, Vantrel::TrackItemDataList> clipLists;
};

}  // namespace benchmarks

#pragma once

#include <cstddef>

#include "data/RowCollection.h"
#include "data/TrackItemRowData.h"
#include "generator/LongDocument.h"
#include "host/BE/MediaTypes.h"
#include "host/BE/Model.h"
#include "host/MZ/SequenceIndexOptions.h"
#include "host/qelcore/Reference.h"
#include "support/SteppedHost.h"
#include "table/ColumnLayout.h"
#include "table/RowOrder.h"
#include "table/SequenceIndexTree.h"

namespace budgets {

/// A generated sequence in a host whose tasks run when a stage says so, on the one thread that counts.
class OpenSequence {
 public:
  explicit OpenSequence(std::size_t clips)
      : sequence(host->GetProject().AddDocument(generator::MakeDocument({.clips = clips})).front()) {
    host->GetProject().ActivateSequence(sequence);
    host.Settle();
  }

  Vantrel::TrackItemDataList CollectRows() const {
    Vantrel::TrackItemDataList rows;
    Vantrel::CollectRows(sequence, {BE::kMediaType_Video, BE::kMediaType_Audio}, rows);
    return rows;
  }
  Vantrel::TrackItemDataList MakeRows() const {
    Vantrel::TrackItemDataList rows = CollectRows();
    Vantrel::OrderAndNumberRows(rows);
    return rows;
  }

  SteppedHost host;
  const qelcore::Ref<BE::ISequence> sequence;
};

/// The table of a sequence with all its rows and columns, in a viewport of 44 rows.
class OpenTable {
 public:
  explicit OpenTable(std::size_t clips) : input(clips) {
    MZ::SequenceIndex::Options options;
    options.isKeepingGaps = true;
    tree->SetOptions(options);
    tree->SetSequence(input.sequence);
    input.host.Settle();
    for (auto& column : Vantrel::GetColumnLayoutStore()) column.shown = true;
    Vantrel::ApplyColumnLayout(tree->GetHeaderRow());
    tree->UI_SetBounds({0, 0, 3000, 44 * kRowHeight});
  }

  static constexpr float kRowHeight = 18;

  OpenSequence input;
  const qelcore::Ref<Vantrel::SequenceIndexTree> tree{
      new Vantrel::SequenceIndexTree({}, 0, kRowHeight)};
};

}  // namespace budgets

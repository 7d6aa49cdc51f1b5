#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

#include "data/TrackItemRowData.h"
#include "generator/LongDocument.h"
#include "host/BE/Utilities.h"
#include "host/qelcore/Reference.h"
#include "standalone/assembly/StandaloneHost.h"
#include "support/Process.h"
#include "table/ColumnLayout.h"
#include "table/SequenceIndexTree.h"

/// A table of about so many clips that shows all its columns, and the folder that it is exported to.
class ExportedTable {
 public:
  explicit ExportedTable(std::size_t clips) {
    generator::TimelineShape shape;
    shape.clips = clips;
    tree->SetSequence(host.GetProject().AddDocument(generator::MakeDocument(shape)).front());
    host.GetRuntime().Drain();
    for (auto& column : Vantrel::GetColumnLayoutStore()) column.shown = true;
    Vantrel::ApplyColumnLayout(tree->GetHeaderRow());
    // Tables of different sizes take turns, so that the longest would be measured by first exports
    // alone, which are mostly the system's work to find fresh memory. This one does not count.
    Export();
  }

  const Vantrel::TrackItemDataList& GetRows() const { return tree->GetFilteredList(); }
  qelmediatypes::TickTime GetZeroPoint() const {
    return BE::SequenceUtils::GetZeroPoint(tree->GetSequence());
  }
  std::filesystem::path GetFile() const { return folder / "index.csv"; }

  bool Export() {
    return tree->ExportSequenceIndexToCSV(qelcore::UTF8String(GetFile().native()), false);
  }
  std::string GetExportedText() {
    Export();
    return process::ReadFile(GetFile());
  }

 private:
  const process::Folder folder;
  standalone::StandaloneHost host;
  qelcore::Ref<Vantrel::SequenceIndexTree> tree{new Vantrel::SequenceIndexTree({}, 0, 18)};
};

/// One table at a time, made when another size is asked for; there is one host in a process.
inline ExportedTable& GetTable(std::size_t clips) {
  static std::unique_ptr<ExportedTable> table;
  static std::size_t made = 0;
  if (made != clips) {
    table.reset();
    table = std::make_unique<ExportedTable>(clips);
    made = clips;
  }
  return *table;
}

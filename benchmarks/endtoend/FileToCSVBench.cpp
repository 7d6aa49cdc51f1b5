#include <benchmark/benchmark.h>

#include <cstddef>

#include "import/TimelineFiles.h"
#include "standalone/app/IndexSession.h"
#include "standalone/app/PanelSetUp.h"
#include "standalone/import/TimelineReader.h"
#include "support/Process.h"

namespace {

using standalone::IndexSession;

standalone::IndexOptions ShowEverything() {
  standalone::IndexOptions options;
  options.rows.isKeepingGaps = true;
  options.columns.kind = standalone::ColumnChoice::Kind::kAll;
  return options;
}

// What the program does between its start and its end: host and panel, reading, rows, export.
void FileToCSV(benchmark::State& state) {
  const auto& file = benchmarks::GetTimelineFile(static_cast<std::size_t>(state.range()));
  const process::Folder folder;
  for (auto _ : state) {
    IndexSession session;
    standalone::SetUpPanel(session, ShowEverything());
    session.ShowDocument(standalone::ReadTimelineFile(file).document);
    session.Export(folder / "cut.csv");
  }
  benchmarks::CountFile(state, file);
}

const bool isRegistered = benchmarks::RegisterFileStage("file_to_csv", FileToCSV) != nullptr;

}  // namespace

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "data/ColumnIdentifiers.h"
#include "export/ExportedTable.h"
#include "export/RowLines.h"
#include "host/qelcore/UTF8StringStream.h"
#include "table/ColumnCatalogue.h"

namespace {

void CountRows(benchmark::State& state, std::size_t rows, std::size_t bytes) {
  const auto runs = static_cast<std::int64_t>(state.iterations());
  state.SetItemsProcessed(runs * static_cast<std::int64_t>(rows));
  state.SetBytesProcessed(runs * static_cast<std::int64_t>(bytes));
}

/// The whole export: texts, a new file, its bytes safe on the disk, and its name.
void Export(benchmark::State& state, std::size_t clips) {
  ExportedTable& table = GetTable(clips);
  for (auto _ : state) {
    state.PauseTiming();
    std::filesystem::remove(table.GetFile());
    state.ResumeTiming();
    if (!table.Export()) state.SkipWithError("nothing was exported");
  }
  CountRows(state, table.GetRows().size(), std::filesystem::file_size(table.GetFile()));
}

/// The same bytes, written at once into a new file. `isSynced`: and safe on the disk, as those of an
/// export are.
void Write(benchmark::State& state, std::size_t clips, bool isSynced) {
  ExportedTable& table = GetTable(clips);
  const std::string text = table.GetExportedText();
  for (auto _ : state) {
    state.PauseTiming();
    std::filesystem::remove(table.GetFile());
    state.ResumeTiming();
    const int file = open(table.GetFile().c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    const ssize_t written = write(file, text.data(), text.size());
    if (isSynced) fsync(file);
    close(file);
    if (written != static_cast<ssize_t>(text.size())) state.SkipWithError("not all was written");
  }
  CountRows(state, table.GetRows().size(), text.size());
}

/// The lines of some columns, made by one thread, without file.
void Lines(benchmark::State& state, std::size_t clips, const std::vector<Vantrel::ColumnID>& columns) {
  ExportedTable& table = GetTable(clips);
  std::size_t bytes = 0;
  for (auto _ : state) {
    qelcore::oUTF8StringStream stream;
    Vantrel::RowLines(columns, table.GetZeroPoint()).Append(stream, table.GetRows());
    bytes = stream.str().size();
  }
  CountRows(state, table.GetRows().size(), bytes);
}

std::string Name(const std::string& stage, std::size_t clips) {
  return stage + "/" + std::to_string(clips);
}

void RegisterAll() {
  const auto addLines = [](const std::string& stage, const std::vector<Vantrel::ColumnID>& columns) {
    benchmark::RegisterBenchmark(Name(stage, 100'000).c_str(), Lines, 100'000, columns)
        ->Unit(benchmark::kMillisecond);
  };
  for (const std::size_t clips : {1'000, 10'000, 100'000, 1'000'000}) {
    const auto add = [clips](const std::string& stage, auto function, auto... arguments) {
      benchmark::RegisterBenchmark(Name(stage, clips).c_str(), function, clips, arguments...)
          ->Unit(benchmark::kMillisecond)
          ->UseRealTime();
    };
    add("csv", Export);
    add("csv_write", Write, true);
    add("csv_write_unsynced", Write, false);
  }
  std::vector<Vantrel::ColumnID> columns;
  for (const auto& column : Vantrel::GetColumnCatalogue()) {
    columns.push_back(column.id);
    const std::string stage = "csv_cell/" + std::string(Vantrel::GetColumnName(column.id).View());
    addLines(stage, {column.id});
  }
  addLines("csv_lines", columns);
}

const bool areRegistered = (RegisterAll(), true);

}  // namespace

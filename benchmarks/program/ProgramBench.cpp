#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "generator/TimelineFile.h"
#include "program/ChildProcess.h"
#include "support/Process.h"

namespace {

using Words = std::vector<std::string>;

/// Generated timelines, each written when it is first asked for, and a place for what is made of them.
class Files {
 public:
  static Files& Get() {
    static Files files;
    return files;
  }

  std::string GetTimeline(std::size_t clips) { return Write({.clips = clips}, ".otio"); }
  /// One that holds names and times alone.
  std::string GetLeanTimeline(std::size_t clips) {
    return Write({.clips = clips, .isLean = true}, "-lean.otio");
  }
  std::string GetOutput() const { return (folder / "index.csv").native(); }

 private:
  std::string Write(const generator::TimelineShape& shape, const char* ending) {
    const std::filesystem::path file = folder / (std::to_string(shape.clips) + ending);
    if (!std::filesystem::exists(file)) generator::WriteTimeline(file, shape);
    return file.native();
  }

  const process::Folder folder;
};

/// Medians of that many runs of the program: its time on the processor is the benchmark's time.
void Measure(benchmark::State& state, const Words& words, int runs) {
  double clock = 0;
  for (auto _ : state) {
    const benchmarks::ProcessCost cost = benchmarks::MeasureProgram(words, runs);
    state.SetIterationTime(cost.processorSeconds);
    clock = cost.clockSeconds;
  }
  state.counters["clock_ms"] = clock * 1e3;
}

constexpr int kManyRuns = 41;

void Version(benchmark::State& state) {
  Measure(state, {PROGRAM, "--version"}, kManyRuns);
}

void StartWithTable(benchmark::State& state) {
  Measure(state, {PROGRAM, "table", "--no-probe", Files::Get().GetTimeline(1000)}, kManyRuns);
}

void StartWithLeanTable(benchmark::State& state) {
  Measure(state, {PROGRAM, "table", "--no-probe", Files::Get().GetLeanTimeline(1000)}, kManyRuns);
}

void ExportDemo(benchmark::State& state) {
  Measure(state, {PROGRAM, "export", DEMO, "--no-probe", "-o", Files::Get().GetOutput()}, kManyRuns);
}

int ChooseRuns(std::int64_t clips) {
  return clips <= 1000 ? kManyRuns : 1;
}

void SetCounts(benchmark::State& state, const std::string& file) {
  state.SetItemsProcessed(state.iterations() * state.range());
  state.SetBytesProcessed(state.iterations() *
                          static_cast<std::int64_t>(std::filesystem::file_size(file)));
}

void Table(benchmark::State& state) {
  const std::string file = Files::Get().GetTimeline(static_cast<std::size_t>(state.range()));
  Measure(state, {PROGRAM, "table", "--no-probe", file}, ChooseRuns(state.range()));
  SetCounts(state, file);
}

void Export(benchmark::State& state) {
  const std::string file = Files::Get().GetTimeline(static_cast<std::size_t>(state.range()));
  Measure(state,
          {PROGRAM, "export", file, "--no-probe", "--columns", "all", "-o", Files::Get().GetOutput()},
          ChooseRuns(state.range()));
  SetCounts(state, file);
}

void Register(const char* name, void (*measure)(benchmark::State&),
              const std::vector<int>& sizes = {}) {
  auto* const registered = benchmark::RegisterBenchmark(name, measure);
  registered->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(1);
  for (const int size : sizes) registered->Arg(size);
}

const bool isRegistered = [] {
  Register("start/version", &Version);
  Register("start/table_1000", &StartWithTable);
  Register("start/table_1000_lean", &StartWithLeanTable);
  Register("start/export_demo", &ExportDemo);
  Register("program_table", &Table, {1'000, 100'000});
  Register("program_export", &Export, {1'000, 100'000});
  return true;
}();

}  // namespace

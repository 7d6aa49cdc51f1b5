#include <benchmark/benchmark.h>

#include <cstddef>
#include <optional>
#include <utility>

#include "generator/LongDocument.h"
#include "import/TimelineFiles.h"
#include "standalone/import/TimelineReader.h"
#include "standalone/model/ProjectModel.h"
#include "standalone/runtime/Runtime.h"

namespace {

/// A host without windows, with a project that is empty at each start of the clock. What was in it goes
/// while the clock stands.
class Project {
 public:
  explicit Project(benchmark::State& state) : state(state) { project.emplace(); }

  void Clear() {
    state.PauseTiming();
    project.reset();
    project.emplace();
    state.ResumeTiming();
  }
  void Add(standalone::DocumentDraft document) {
    benchmark::DoNotOptimize(project->AddDocument(std::move(document)));
  }

 private:
  const standalone::Runtime runtime;
  benchmark::State& state;
  std::optional<standalone::ProjectModel> project;
};

// From the file to a sequence that can be visited.
void Import(benchmark::State& state) {
  const auto& file = benchmarks::GetTimelineFile(static_cast<std::size_t>(state.range()));
  Project project(state);
  for (auto _ : state) {
    project.Add(standalone::ReadTimelineFile(file).document);
    project.Clear();
  }
  benchmarks::CountFile(state, file);
}

// The last step of it: a read document becomes sequences.
void Publish(benchmark::State& state) {
  generator::TimelineShape shape;
  shape.clips = static_cast<std::size_t>(state.range());
  const standalone::DocumentDraft document = generator::MakeDocument(shape);
  Project project(state);
  for (auto _ : state) {
    state.PauseTiming();
    standalone::DocumentDraft copy = document;
    state.ResumeTiming();
    project.Add(std::move(copy));
    project.Clear();
  }
  state.SetItemsProcessed(state.iterations() * state.range());
}

const bool areRegistered = benchmarks::RegisterFileStage("import", Import) != nullptr &&
                           benchmarks::RegisterFileStage("publish", Publish)->Arg(1'000'000) != nullptr;

}  // namespace

#include "import/TimelineFiles.h"

#include <cstdint>
#include <cstdio>
#include <map>
#include <memory>
#include <stdexcept>

#include "generator/TimelineFile.h"
#include "support/Process.h"

namespace benchmarks {
namespace {

struct CloseFile {
  void operator()(std::FILE* stream) const { std::fclose(stream); }
};

}  // namespace

const std::filesystem::path& GetTimelineFile(std::size_t clips) {
  static const process::Folder folder;
  static std::map<std::size_t, std::filesystem::path> files;
  const auto [known, isNew] = files.try_emplace(clips, folder / (std::to_string(clips) + ".otio"));
  if (isNew) {
    generator::TimelineShape shape;
    shape.clips = clips;
    generator::WriteTimeline(known->second, shape);
  }
  return known->second;
}

std::string ReadFile(const std::filesystem::path& file) {
  std::string content(std::filesystem::file_size(file), '\0');
  const std::unique_ptr<std::FILE, CloseFile> stream(std::fopen(file.c_str(), "rbe"));
  if (!stream || std::fread(content.data(), 1, content.size(), stream.get()) != content.size()) {
    throw std::runtime_error(file.string() + " can't be read");
  }
  return content;
}

benchmark::internal::Benchmark* RegisterFileStage(const char* name,
                                                  void (*measure)(benchmark::State&)) {
  auto* const stage = benchmark::RegisterBenchmark(name, measure);
  for (const std::int64_t clips : {1'000, 10'000, 100'000}) stage->Arg(clips);
  return stage->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();
}

void CountFile(benchmark::State& state, const std::filesystem::path& file) {
  state.SetItemsProcessed(state.iterations() * state.range());
  state.SetBytesProcessed(state.iterations() *
                          static_cast<std::int64_t>(std::filesystem::file_size(file)));
}

}  // namespace benchmarks

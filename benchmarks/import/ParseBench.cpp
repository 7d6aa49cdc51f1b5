// The parser at its fastest: with the instructions that it has its own code for.
#ifdef __SSE2__
#define RAPIDJSON_SSE2
#endif
#include <benchmark/benchmark.h>
#include <rapidjson/reader.h>

#include <cstddef>
#include <string>

#include "import/TimelineFiles.h"

namespace {

/// As readers of timelines parse: NaN, any depth, checked text, numbers as they are written.
constexpr unsigned kParseFlags =
    rapidjson::kParseInsituFlag | rapidjson::kParseIterativeFlag | rapidjson::kParseNanAndInfFlag |
    rapidjson::kParseValidateEncodingFlag | rapidjson::kParseNumbersAsStringsFlag |
    rapidjson::kParseFullPrecisionFlag;

// The least that reading a timeline can cost: its file is read, and parsed for nothing.
void Parse(benchmark::State& state) {
  const auto& file = benchmarks::GetTimelineFile(static_cast<std::size_t>(state.range()));
  for (auto _ : state) {
    std::string text = benchmarks::ReadFile(file);
    rapidjson::InsituStringStream stream(text.data());
    rapidjson::BaseReaderHandler<> handler;
    rapidjson::Reader reader;
    if (reader.Parse<kParseFlags>(stream, handler).IsError()) state.SkipWithError("It is no JSON");
  }
  benchmarks::CountFile(state, file);
}

const bool isRegistered = benchmarks::RegisterFileStage("import_parse", Parse) != nullptr;

}  // namespace

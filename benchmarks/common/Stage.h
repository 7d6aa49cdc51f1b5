#pragma once

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <string>

namespace benchmarks {

/// How many clips a benchmark's timeline has.
inline constexpr std::size_t kSizes[] = {1'000, 10'000, 100'000, 1'000'000};

/// What somebody types who looks for one clip: found in a few rows of a million.
inline constexpr const char* kSevenLetters = "ake 123";

using StageFunction = void (*)(benchmark::State&);

/// Registers a benchmark at each of the sizes, as "name/size".
template <typename Measure>
bool RegisterStage(const std::string& name, Measure measure) {
  auto* const stage = benchmark::RegisterBenchmark(name.c_str(), measure);
  for (const std::size_t size : kSizes) stage->Arg(static_cast<std::int64_t>(size));
  stage->Unit(benchmark::kMillisecond);
  return true;
}

}  // namespace benchmarks

#pragma once

#include <benchmark/benchmark.h>

#include <cstddef>
#include <filesystem>
#include <string>

namespace benchmarks {

/// A generated timeline of that many clips in a file, written when it is first asked for and kept until
/// the program ends. Just written, it lies in the memory that the system keeps for files.
const std::filesystem::path& GetTimelineFile(std::size_t clips);

/// The whole file, read in the plainest way.
std::string ReadFile(const std::filesystem::path& file);

/// Registers what is measured on such timelines, at 1,000 to 100,000 clips, in the time of all threads.
benchmark::internal::Benchmark* RegisterFileStage(const char* name, void (*measure)(benchmark::State&));

/// Tells a benchmark how many clips, and how many bytes of a file, each of its runs has read.
void CountFile(benchmark::State& state, const std::filesystem::path& file);

}  // namespace benchmarks

#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace benchmarks {

/// A generated timeline of that many clips in a file, written when it is first asked for and kept until
/// the program ends. Just written, it lies in the memory that the system keeps for files.
const std::filesystem::path& GetTimelineFile(std::size_t clips);

/// The whole file, read in the plainest way.
std::string ReadFile(const std::filesystem::path& file);

}  // namespace benchmarks

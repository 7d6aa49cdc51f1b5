#pragma once

#include <cstdint>

/// Counts what operator new hands out in this program, in all its libraries and on all its threads.
/// Memory that C functions take for themselves is not seen.
namespace scaling {

struct Allocations {
  std::uint64_t count = 0;
  /// As asked for.
  std::uint64_t bytes = 0;
  /// The most that was in use at once, over what was at the start: small blocks as the C library rounds
  /// them, large ones as the host does. Those that the host keeps to use them again are not in use.
  std::uint64_t peakBytes = 0;
};

/// Watches from its construction on. One at a time.
class AllocationWatch {
 public:
  AllocationWatch() noexcept;
  Allocations Take() const noexcept;

 private:
  std::uint64_t firstCount;
  std::uint64_t firstBytes;
  std::int64_t firstLiveBytes;
};

}  // namespace scaling

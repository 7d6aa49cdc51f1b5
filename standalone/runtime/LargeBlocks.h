#pragma once

#include <array>
#include <cstddef>
#include <mutex>

#include "standalone/runtime/LargePages.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Blocks of many megabytes, on large pages: the lists of long tables, the nodes of long timelines.
///
/// Such lists come and go with each keystroke. For fresh memory the system takes longer than a list
/// takes to be filled, so what comes back is kept for the next one: never more than is in use, and
/// handed over to the system as memory that it may take away whenever it is short. [any-thread]
class STANDALONE_API LargeBlocks {
 public:
  /// The smallest block that is worth it; what is smaller comes from elsewhere.
  static constexpr std::size_t kSmallest = 2 * kLargePage;

  /// The ones of the process. Never destroyed: static objects give their lists back at exit.
  static LargeBlocks& Get() noexcept;

  LargeBlocks() = default;
  LargeBlocks(const LargeBlocks&) = delete;
  LargeBlocks& operator=(const LargeBlocks&) = delete;
  /// Gives back what is kept. All blocks have to be back.
  ~LargeBlocks();

  /// At least `bytes` bytes, kSmallest or more, at a multiple of kLargePage. What they hold is
  /// anything. Throws: std::bad_alloc.
  void* Take(std::size_t bytes);

  /// Takes a block back that was taken with the same `bytes`.
  void GiveBack(void* block, std::size_t bytes) noexcept;

  /// How many bytes are taken, and how many are kept for those who take the next ones.
  std::size_t CountTakenBytes() const noexcept;
  std::size_t CountKeptBytes() const noexcept;

 private:
  struct Block {
    void* memory = nullptr;
    std::size_t bytes = 0;
  };
  static constexpr std::size_t kMostKept = 64;

  /// A kept block of that size, the last that came back; null without one.
  void* TakeKept(std::size_t bytes) noexcept;
  void Keep(Block block) noexcept;
  /// Takes the block out of those kept.
  Block Remove(std::size_t at) noexcept;

  mutable std::mutex mutex;
  std::size_t taken = 0;
  std::size_t kept = 0;
  /// In the order in which they came back.
  std::array<Block, kMostKept> blocks;
  std::size_t count = 0;
};

}  // namespace standalone

#pragma once

#include <cstddef>

namespace standalone {

/// The memory behind `qelcore::memory`. Blocks up to kLargestRecycledBlock bytes are carved from slabs,
/// kept by size when they come back, and never returned to the system; each thread keeps a few of each
/// size to itself, so that rows built by one thread and dropped by another cost a lock only once for
/// many blocks. Larger blocks, and all blocks in builds that watch addresses or threads, come from the
/// ordinary allocator, which shows misuse of each block on its own; those of many megabytes are
/// LargeBlocks. [any-thread]
inline constexpr std::size_t kLargestRecycledBlock = 512;

/// A block of at least `bytes` bytes, aligned for any ordinary type. Throws: std::bad_alloc.
void* TakeBlock(std::size_t bytes);

/// Takes a block back that was taken with the same `bytes`.
void GiveBlockBack(void* block, std::size_t bytes) noexcept;

}  // namespace standalone

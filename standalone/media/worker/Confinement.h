#pragma once

namespace standalone {

/// What one file may cost at most: of memory 2 GB, beyond which allocations fail; no core file; and
/// where the machine itself runs out of memory, this process is the first to go. Under sanitizers,
/// whose own tables are larger than any limit, their runtimes count instead.
void ConfineProcess();

/// Ends this process when the host at the other end of standard input is gone, also in the middle of a
/// read that never ends. (The platform's signal at a parent's death comes with the end of the thread
/// that started this process, which may be long before the host's.)
void EndWithHost();

/// Whether earlier files have left so much behind that a later one could lack memory.
bool IsBloated();

}  // namespace standalone

#pragma once

#include <exception>
#include <utility>

#include "host/qelcore/Threads.h"

namespace standalone {

/// Lets go of something on the pool: destroying what a long timeline consists of takes longer than the
/// main thread has. Where nothing can be queued, it dies in the call. [any-thread]
template <typename Old>
void LetDieOnPool(Old old) {
  try {
    qelcore::threads::GetCPUBoundExecutor()->Submit([old = std::move(old)] {});
  } catch (const std::exception&) {
    // Not queued: it has died here, which is only slower.
  }
}

}  // namespace standalone

#pragma once

#include <exception>
#include <utility>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Hands a failure to the log of the runtime that exists; without one nothing happens. [any-thread]
STANDALONE_API void ReportFailure(const char* where, std::exception_ptr failure) noexcept;

/// Calls `function`; a failure that leaves it goes to the host's log as "<where>: <sentence>". True
/// when there was none. Every call from the host into a module that nobody waits for goes through
/// here. [any-thread]
template <typename Function>
bool CallGuarded(const char* where, Function&& function) noexcept {
  try {
    std::forward<Function>(function)();
    return true;
  } catch (...) {
    ReportFailure(where, std::current_exception());
    return false;
  }
}

}  // namespace standalone

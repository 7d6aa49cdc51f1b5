#include "host/qelcore/Threads.h"

#include <utility>

#include "standalone/runtime/Runtime.h"

namespace qelcore::threads {

using standalone::Runtime;

AsyncExecutor::AsyncExecutor() = default;
AsyncExecutor::~AsyncExecutor() = default;

std::shared_ptr<AsyncExecutor> GetCPUBoundExecutor() {
  return Runtime::Current().GetCPUExecutor();
}

void CallFromMainThread(std::function<void()> function, unsigned delayMilliseconds,
                        bool alsoInNestedLoops) {
  Runtime::Current().GetMainQueue().Post(
      std::move(function), std::chrono::milliseconds(delayMilliseconds), alsoInNestedLoops);
}

bool CurrentThreadIsMainThread() noexcept {
  return Runtime::Exists() && Runtime::Current().IsMainThread();
}

}  // namespace qelcore::threads

#include "standalone/probing/ParallelLoop.h"

#include <chrono>
#include <new>
#include <utility>

namespace standalone {

void ParallelLoop::Run(Setup setup, qelcore::threads::AsyncExecutor* executor, unsigned helpers) {
  const auto loop = std::make_shared<ParallelLoop>(std::move(setup));
  loop->CallHelpers(executor, helpers);
  loop->RunAsCaller();
  if (loop->failure) std::rethrow_exception(loop->failure);
}

void ParallelLoop::CallHelpers(qelcore::threads::AsyncExecutor* executor, unsigned helpers) {
  try {
    for (unsigned i = 0; i < helpers; ++i) {
      executor->Submit([loop = shared_from_this()] { loop->Help(); });
    }
  } catch (const std::bad_alloc&) {
    // Those that were called are at work already; the loop ends without the others.
  }
}

void ParallelLoop::Help() {
  {
    const std::scoped_lock lock(mutex);
    if (isClosed) return;
    ++helpersAtWork;
  }
  while (RunNext()) continue;
  const std::scoped_lock lock(mutex);
  --helpersAtWork;
  helperLeft.notify_all();
}

void ParallelLoop::RunAsCaller() {
  AskWhetherToGoOn();
  while (RunNext()) AskWhetherToGoOn();
  WaitForHelpers();
  AskWhetherToGoOn();
}

bool ParallelLoop::RunNext() {
  if (isEnded) return false;
  const std::size_t index = next++;
  if (index >= setup.count) return false;
  try {
    setup.body(index);
    ++done;
  } catch (...) {
    const std::scoped_lock lock(mutex);
    if (!failure) failure = std::current_exception();
    isEnded = true;
  }
  return true;
}

void ParallelLoop::AskWhetherToGoOn() {
  if (setup.goesOn && !setup.goesOn(done)) isEnded = true;
}

void ParallelLoop::WaitForHelpers() {
  // Often enough for a progress line.
  constexpr std::chrono::milliseconds kPause{50};
  std::unique_lock lock(mutex);
  isClosed = true;
  while (helpersAtWork > 0) {
    helperLeft.wait_for(lock, kPause);
    lock.unlock();
    AskWhetherToGoOn();
    lock.lock();
  }
}

}  // namespace standalone

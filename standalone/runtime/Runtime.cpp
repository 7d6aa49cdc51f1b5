#include "standalone/runtime/Runtime.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <utility>

#include "standalone/runtime/StationRegistry.h"
#include "standalone/runtime/ThreadPool.h"

namespace standalone {

namespace {

std::atomic<Runtime*> currentRuntime = nullptr;

// Each thread has its own, whose address tells it from the others: to ask for a thread's identifier
// would be a call.
thread_local constinit char threadMark = 0;

// The mark of the main thread of the runtime that exists; null: there is none. Apart from it, since
// operations that a table calls for each of a million rows look here.
std::atomic<const char*> checkedThread = nullptr;

// How long Drain sleeps at most before it looks at the pool again while a function is not due yet.
constexpr std::chrono::milliseconds kLongestSleep{20};

[[noreturn]] void StopProgram(const char* subject, const char* sentence) {
  std::fprintf(stderr, "%s %s\n", subject, sentence);
  std::abort();
}

}  // namespace

class Runtime::State {
 public:
  explicit State(Setup setup) : standIn(std::move(setup.cpuExecutor)) {
    if (standIn == nullptr) pool = std::make_shared<ThreadPool>(setup.poolThreads);
  }

  // In this order: whatever is destroyed later may still report and post.
  Log log;
  MainQueue mainQueue{log};
  StationRegistry stations;
  const std::shared_ptr<qelcore::threads::AsyncExecutor> standIn;
  std::shared_ptr<ThreadPool> pool;
  const std::thread::id mainThread = std::this_thread::get_id();
};

Runtime::Runtime() : Runtime(Setup()) {}

Runtime::Runtime(Setup setup) : state(std::make_unique<State>(std::move(setup))) {
  if (currentRuntime.exchange(this) != nullptr) StopProgram("Runtime", "exists already");
  checkedThread = &threadMark;
}

Runtime::~Runtime() {
  // What is dropped may submit and post once more, so the runtime stays in place until nothing is left.
  if (state->pool != nullptr) state->pool->Stop();
  state->mainQueue.DropAll();
  checkedThread = nullptr;
  currentRuntime.store(nullptr);
}

Runtime& Runtime::Current() {
  Runtime* const runtime = currentRuntime.load();
  if (runtime == nullptr) StopProgram("Runtime", "does not exist");
  return *runtime;
}

bool Runtime::Exists() noexcept {
  return currentRuntime.load() != nullptr;
}

Log& Runtime::GetLog() noexcept {
  return state->log;
}
MainQueue& Runtime::GetMainQueue() noexcept {
  return state->mainQueue;
}
StationRegistry& Runtime::GetStations() noexcept {
  return state->stations;
}

std::shared_ptr<qelcore::threads::AsyncExecutor> Runtime::GetCPUExecutor() const {
  if (state->standIn != nullptr) return state->standIn;
  return state->pool;
}

void Runtime::Drain() {
  AssertMainThread("Runtime::Drain");
  ThreadPool* const pool = state->pool.get();
  for (;;) {
    if (pool != nullptr) pool->Drain();
    state->mainQueue.RunUntilEmpty();
    // The pool first: once it is idle, only this thread can add to the queue.
    const bool poolIsIdle = pool == nullptr || pool->IsIdle();
    const bool queueIsEmpty = !state->mainQueue.HasRunnable();
    if (poolIsIdle && queueIsEmpty) return;
    if (poolIsIdle) state->mainQueue.WaitForWork(kLongestSleep);
  }
}

bool Runtime::IsMainThread() const noexcept {
  return std::this_thread::get_id() == state->mainThread;
}

void AssertMainThread(const char* operation) {
  const char* const expected = checkedThread.load();
  if (expected == nullptr || expected == &threadMark) return;
  StopProgram(operation, "was called off the main thread");
}

}  // namespace standalone

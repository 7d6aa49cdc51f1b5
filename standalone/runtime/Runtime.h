#pragma once

#include <memory>

#include "host/qelcore/Threads.h"
#include "standalone/runtime/Log.h"
#include "standalone/runtime/MainQueue.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

class ThreadPool;
class StationRegistry;

/// What the free functions of `qelcore` resolve to: log, main queue, pool, stations. One exists at a
/// time; the thread that builds it is the main thread. Built by the program or by a test.
class STANDALONE_API Runtime {
 public:
  struct Setup {
    /// Threads of the own pool; 0: Drain runs its tasks, on the main thread.
    unsigned poolThreads = 2;
    /// Stands in for the pool (a test that steps tasks by hand); null: the own pool.
    std::shared_ptr<qelcore::threads::AsyncExecutor> cpuExecutor = nullptr;
  };

  Runtime();
  explicit Runtime(Setup setup);
  /// Ends the pool's threads, then drops what still waits for the main thread.
  ~Runtime();
  Runtime(const Runtime&) = delete;
  Runtime& operator=(const Runtime&) = delete;

  /// The runtime that exists. Aborts with a sentence when there is none.
  static Runtime& Current();
  static bool Exists() noexcept;

  Log& GetLog() noexcept;
  MainQueue& GetMainQueue() noexcept;
  StationRegistry& GetStations() noexcept;
  std::shared_ptr<qelcore::threads::AsyncExecutor> GetCPUExecutor() const;

  /// Runs pool and main queue until both are empty. [main-thread], never within a task of the pool;
  /// with a stand-in executor only the main queue is run.
  void Drain();

  bool IsMainThread() const noexcept;

 private:
  class State;
  std::unique_ptr<State> state;
};

/// Stops the program with one sentence when called off the main thread: "<operation> was called off
/// the main thread". For every operation of `host/` that is tagged [main-thread]. Without a runtime
/// there is no main thread yet, and nothing is checked.
STANDALONE_API void AssertMainThread(const char* operation);

}  // namespace standalone

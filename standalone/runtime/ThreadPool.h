#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

#include "host/qelcore/Threads.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// The host's pool for work that needs the processor: a fixed number of threads, tasks in the order
/// submitted. The runtime owns it and stops it before letting it go.
class STANDALONE_API ThreadPool final : public qelcore::threads::AsyncExecutor {
 public:
  /// At least one thread is started.
  explicit ThreadPool(unsigned threadCount);
  /// Stop(), unless that was done. Never on a thread of the pool.
  ~ThreadPool() override;
  ThreadPool(const ThreadPool&) = delete;
  ThreadPool& operator=(const ThreadPool&) = delete;

  /// After Stop() the task is dropped, inside this call.
  void Submit(std::function<void()> task) override;

  /// Waits until no task waits, runs, or is being destroyed. Not on a thread of the pool.
  void Drain();
  /// True when Drain() would not wait.
  bool IsIdle() const;

  /// Drops the tasks that wait, lets those that run come to their end, and ends the threads.
  void Stop();

 private:
  void RunTasks();
  /// Waits for a task and counts it as running; false when the pool stops.
  bool AwaitTask(std::function<void()>& task);
  void CountAsDone();

  mutable std::mutex mutex;
  std::condition_variable taskWaits;
  std::condition_variable becameIdle;
  std::deque<std::function<void()>> tasks;
  unsigned runningTasks = 0;
  bool isStopping = false;
  std::vector<std::thread> threads;
};

}  // namespace standalone

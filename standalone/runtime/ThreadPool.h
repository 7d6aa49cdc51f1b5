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
  /// `threadCount` may be 0: then Drain() is the thread, for a program that waits for each task anyway
  /// and has no use for a second one.
  explicit ThreadPool(unsigned threadCount);
  /// Stop(), unless that was done. Never on a thread of the pool.
  ~ThreadPool() override;
  ThreadPool(const ThreadPool&) = delete;
  ThreadPool& operator=(const ThreadPool&) = delete;

  /// After Stop() the task is dropped, inside this call.
  void Submit(std::function<void()> task) override;

  /// Waits until no task waits, runs, or is being destroyed. Without threads it runs those that wait.
  /// Not on a thread of the pool, nor within a task.
  void Drain();
  /// True when Drain() would not wait.
  bool IsIdle() const;

  /// Drops the tasks that wait, lets those that run come to their end, and ends the threads.
  void Stop();

 private:
  void RunTasks();
  void RunWaitingTasks();
  /// Runs a task that counts as running.
  void Run(std::function<void()>& task);
  /// Waits for a task and counts it as running; false when the pool stops.
  bool AwaitTask(std::function<void()>& task);
  /// Counts the oldest task as running, if there is one.
  bool TakeTask(std::function<void()>& task);
  /// The same while the mutex is held.
  bool TakeOldest(std::function<void()>& task);
  void CountAsDone();

  /// False: Drain() runs the tasks.
  const bool hasThreads;
  mutable std::mutex mutex;
  std::condition_variable taskWaits;
  std::condition_variable becameIdle;
  std::deque<std::function<void()>> tasks;
  unsigned runningTasks = 0;
  bool isStopping = false;
  std::vector<std::thread> threads;
};

}  // namespace standalone

#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include "host/HostAPI.h"

namespace qelcore::threads {

/// Runs tasks later, mostly on other threads. A host without further ones runs them on the main thread,
/// between other things that it does there.
class HOST_API AsyncExecutor {
 public:
  virtual ~AsyncExecutor();
  /// Queues `task` and returns; the task never runs inside this call. It is destroyed on the thread
  /// that ran it, before the executor counts it as done. An exception that leaves a task is logged
  /// by the host and ends there. [any-thread]
  virtual void Submit(std::function<void()> task) = 0;

 protected:
  AsyncExecutor();
};

/// An executor that shares the threads of another one, with a limit of its own.
class HOST_API AsyncThreadedSubExecutor : public AsyncExecutor {
 public:
  ~AsyncThreadedSubExecutor() override;

 protected:
  AsyncThreadedSubExecutor();
};

/// The host's pool for work that needs the processor. [any-thread]
HOST_API std::shared_ptr<AsyncExecutor> GetCPUBoundExecutor();

/// An executor over `executor` that starts its tasks in the order submitted and runs at most
/// `concurrency` (at least 1) of them at once. Releasing it never waits: tasks already submitted
/// still run. Throws: std::bad_alloc. [any-thread]
HOST_API std::shared_ptr<AsyncThreadedSubExecutor> CreateQueueBasedSubExecutor(
    const std::shared_ptr<AsyncExecutor>& executor, int concurrency);

/// Queues `function` for the main thread and returns at once, on the main thread too; functions of
/// equal delay run in the order queued. It is destroyed on the main thread after it ran.
/// @param delayMilliseconds earliest start from now; 0 is as soon as the main thread is free.
/// @param alsoInNestedLoops whether it may run while a menu or a modal dialog is open.
/// [any-thread]
HOST_API void CallFromMainThread(std::function<void()> function, unsigned delayMilliseconds,
                                 bool alsoInNestedLoops);

/// True on the thread that drains the main queue. [any-thread]
HOST_API bool CurrentThreadIsMainThread() noexcept;

/// A mutex that its holder may take again; it is free when each Lock was undone by one Unlock.
class HOST_API RecursiveMutex {
 public:
  /// `name` (null: none) names the mutex in the host's log; not copied, must outlive the mutex.
  explicit RecursiveMutex(const char* name = nullptr);
  ~RecursiveMutex();
  RecursiveMutex(const RecursiveMutex&) = delete;
  RecursiveMutex& operator=(const RecursiveMutex&) = delete;

  /// Waits at most `limit` for the mutex. `name` (null: none) says who asks, for the failure's
  /// sentence. Throws: lock_timeout_exception on expiry; the mutex is then not held. [any-thread]
  void Lock(const char* name, std::chrono::milliseconds limit);

  /// Undoes one Lock of the calling thread. [any-thread]
  void Unlock() noexcept;

 private:
  class State;
  std::unique_ptr<State> state;
};

}  // namespace qelcore::threads

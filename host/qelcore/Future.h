#pragma once

#include <chrono>
#include <exception>
#include <functional>
#include <memory>

#include "host/HostAPI.h"
#include "host/qelcore/Threads.h"

/// Outcomes of work that runs elsewhere. The state is owned by the work: releasing a future neither
/// waits nor cancels. A failure stays in the state; when its last holder lets go and nobody has read
/// it, the host's log takes it.
namespace qelcore::async {

/// What a read of a cancelled future says: its work was dropped before it ran.
inline constexpr const char* kFutureIsCancelled = "Future Is Cancelled";
/// What a read of an unfinished or empty future says.
inline constexpr const char* kFutureNotReady = "Future: Not Ready";

/// The shared state behind futures and promises; made and destroyed by host code only.
class FutureState;

template <typename T>
class Future;
template <typename T>
class Promise;

/// The side that sets the outcome, once. Dropping an unset promise cancels its future.
template <>
class HOST_API Promise<void> {
 public:
  explicit Promise(std::shared_ptr<FutureState> state) noexcept;
  Promise(Promise&& other) noexcept;
  Promise& operator=(Promise&& other) noexcept;
  ~Promise();

  /// [any-thread]. A second outcome is ignored.
  void SetValue() noexcept;
  void SetException(std::exception_ptr failure) noexcept;

 private:
  std::shared_ptr<FutureState> state;
};

/// The side that reads the outcome. Copies share the state. [any-thread] for distinct objects.
template <>
class HOST_API Future<void> {
 public:
  /// What runs when a future is complete: given that future, and the promise of its own result. An
  /// exception that leaves it becomes the result's failure; an untouched promise counts as success.
  using Continuation = std::function<void(const Future<void>& completed, Promise<void>& result)>;

  /// An empty future: nothing was scheduled.
  Future() noexcept = default;
  explicit Future(std::shared_ptr<FutureState> state) noexcept;
  Future(const Future& other) noexcept;
  Future(Future&& other) noexcept;
  Future& operator=(const Future& other) noexcept;
  Future& operator=(Future&& other) noexcept;
  ~Future();

  bool IsEmpty() const noexcept { return state == nullptr; }
  bool IsReady() const noexcept;

  /// Returns when the work succeeded. Throws: its failure; future_exception with kFutureIsCancelled
  /// or kFutureNotReady.
  void Get() const;

  /// Queues `continuation` to the state's continuation executor once the future is complete (at once
  /// if it is already), also when it failed or was cancelled. Returns the continuation's result.
  Future<void> MakeContinuation(Continuation continuation) const;

 private:
  std::shared_ptr<FutureState> state;
};

/// Runs `function` on `executor` after `delay`; continuations of the future run on
/// `continuationExecutor`. The function never runs inside this call. [any-thread]
HOST_API Future<void> AsyncWithExecutorAndContinuationExecutorAndDelay(
    const std::shared_ptr<threads::AsyncExecutor>& executor, std::chrono::milliseconds delay,
    const std::shared_ptr<threads::AsyncExecutor>& continuationExecutor,
    std::function<void()> function);

/// The executor that the futures library uses when none is given. [any-thread]
HOST_API std::shared_ptr<threads::AsyncExecutor> GetDefaultExecutor();

}  // namespace qelcore::async

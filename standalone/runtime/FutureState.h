#pragma once

#include <exception>
#include <memory>
#include <mutex>
#include <vector>

#include "host/qelcore/Future.h"

namespace qelcore::async {

/// The outcome of a piece of work, with the continuations that wait for it. Shared by the work, its
/// futures and its promise; the outcome is set once and never changes. [any-thread]
class FutureState : public std::enable_shared_from_this<FutureState> {
 public:
  explicit FutureState(std::shared_ptr<threads::AsyncExecutor> continuationExecutor) noexcept;
  /// Reports a failure that nobody has read.
  ~FutureState();
  FutureState(const FutureState&) = delete;
  FutureState& operator=(const FutureState&) = delete;

  void Succeed() noexcept;
  void Fail(std::exception_ptr newFailure) noexcept;
  void Cancel() noexcept;

  bool IsReady() const noexcept;
  /// As Future::Get.
  void Read();

  Future<void> AddContinuation(Future<void>::Continuation function);

 private:
  enum class Outcome {
    kPending,
    kSuccess,
    kFailure,
    kCancelled,
  };

  struct Continuation;

  void Complete(Outcome newOutcome, std::exception_ptr newFailure) noexcept;
  void Queue(std::shared_ptr<Continuation> continuation) noexcept;

  const std::shared_ptr<threads::AsyncExecutor> continuationExecutor;
  mutable std::mutex mutex;
  Outcome outcome = Outcome::kPending;
  std::exception_ptr failure;
  bool wasRead = false;
  std::vector<std::shared_ptr<Continuation>> continuations;
};

}  // namespace qelcore::async

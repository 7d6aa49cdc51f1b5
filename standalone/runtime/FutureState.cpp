#include "standalone/runtime/FutureState.h"

#include <utility>

#include "host/qelcore/Exceptions.h"
#include "standalone/runtime/Guard.h"

namespace qelcore::async {

/// What runs once the state is complete; dropped without having run, it cancels its result. Members go
/// in reverse: the function before its result is known.
struct FutureState::Continuation {
  Promise<void> result;
  Future<void>::Continuation function;

  void Run(const std::shared_ptr<FutureState>& completed) noexcept {
    std::exception_ptr thrown;
    try {
      function(Future<void>(completed), result);
    } catch (...) {
      thrown = std::current_exception();
    }
    function = nullptr;
    thrown == nullptr ? result.SetValue() : result.SetException(std::move(thrown));
  }
};

FutureState::FutureState(std::shared_ptr<threads::AsyncExecutor> continuationExecutor) noexcept
    : continuationExecutor(std::move(continuationExecutor)) {}

FutureState::~FutureState() {
  if (failure != nullptr && !wasRead) standalone::ReportFailure("unread result", failure);
}

void FutureState::Succeed() noexcept {
  Complete(Outcome::kSuccess, nullptr);
}
void FutureState::Fail(std::exception_ptr newFailure) noexcept {
  Complete(Outcome::kFailure, std::move(newFailure));
}
void FutureState::Cancel() noexcept {
  Complete(Outcome::kCancelled, nullptr);
}

bool FutureState::IsReady() const noexcept {
  const std::scoped_lock lock(mutex);
  return outcome != Outcome::kPending;
}

void FutureState::Read() {
  std::exception_ptr read;
  {
    const std::scoped_lock lock(mutex);
    if (outcome == Outcome::kSuccess) return;
    if (outcome == Outcome::kPending) throw config::future_exception(kFutureNotReady);
    if (outcome == Outcome::kCancelled) throw config::future_exception(kFutureIsCancelled);
    wasRead = true;
    read = failure;
  }
  std::rethrow_exception(std::move(read));
}

Future<void> FutureState::AddContinuation(Future<void>::Continuation function) {
  auto result = std::make_shared<FutureState>(continuationExecutor);
  auto continuation =
      std::make_shared<Continuation>(Continuation{Promise<void>(result), std::move(function)});
  {
    const std::scoped_lock lock(mutex);
    if (outcome == Outcome::kPending) {
      continuations.push_back(std::move(continuation));
      return Future<void>(std::move(result));
    }
  }
  Queue(std::move(continuation));
  return Future<void>(std::move(result));
}

void FutureState::Complete(Outcome newOutcome, std::exception_ptr newFailure) noexcept {
  std::vector<std::shared_ptr<Continuation>> due;
  {
    const std::scoped_lock lock(mutex);
    if (outcome != Outcome::kPending) return;
    outcome = newOutcome;
    failure = std::move(newFailure);
    due.swap(continuations);
  }
  for (std::shared_ptr<Continuation>& continuation : due) Queue(std::move(continuation));
}

void FutureState::Queue(std::shared_ptr<Continuation> continuation) noexcept {
  standalone::CallGuarded("continuation", [&] {
    continuationExecutor->Submit([self = shared_from_this(), continuation = std::move(continuation)] {
      continuation->Run(self);
    });
  });
}

}  // namespace qelcore::async

#include "host/qelcore/Future.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "host/qelcore/Exceptions.h"
#include "standalone/runtime/FutureState.h"

namespace qelcore::async {

namespace {

using Milliseconds = std::chrono::milliseconds;

/// A function with the promise of its outcome; dropped without having run, it cancels its future. The
/// function always goes first: whoever sees the outcome may rely on that.
struct Work {
  Promise<void> promise;
  std::function<void()> function;

  void Run() noexcept {
    std::exception_ptr failure;
    try {
      function();
    } catch (...) {
      failure = std::current_exception();
    }
    function = nullptr;
    failure == nullptr ? promise.SetValue() : promise.SetException(std::move(failure));
  }
};

std::shared_ptr<threads::AsyncExecutor> OrDefault(
    const std::shared_ptr<threads::AsyncExecutor>& executor) {
  return executor != nullptr ? executor : GetDefaultExecutor();
}

/// The main thread is the timer: it only passes the task on when its time has come.
void SubmitLater(std::shared_ptr<threads::AsyncExecutor> executor, Milliseconds delay,
                 std::function<void()> task) {
  // A main-thread delay is an unsigned count of milliseconds, 49 days at most.
  const auto limited = std::min<Milliseconds::rep>(delay.count(), std::numeric_limits<unsigned>::max());
  threads::CallFromMainThread([executor = std::move(executor),
                               task = std::move(task)]() mutable { executor->Submit(std::move(task)); },
                              static_cast<unsigned>(limited), true);
}

}  // namespace

Promise<void>::Promise(std::shared_ptr<FutureState> state) noexcept : state(std::move(state)) {}
Promise<void>::Promise(Promise&& other) noexcept = default;
Promise<void>& Promise<void>::operator=(Promise&& other) noexcept {
  std::swap(state, other.state);
  return *this;
}
Promise<void>::~Promise() {
  if (state != nullptr) state->Cancel();
}

void Promise<void>::SetValue() noexcept {
  if (state != nullptr) state->Succeed();
}

void Promise<void>::SetException(std::exception_ptr failure) noexcept {
  if (state != nullptr) state->Fail(std::move(failure));
}

Future<void>::Future(std::shared_ptr<FutureState> state) noexcept : state(std::move(state)) {}
Future<void>::Future(const Future& other) noexcept = default;
Future<void>::Future(Future&& other) noexcept = default;
Future<void>& Future<void>::operator=(const Future& other) noexcept = default;
Future<void>& Future<void>::operator=(Future&& other) noexcept = default;
Future<void>::~Future() = default;

bool Future<void>::IsReady() const noexcept {
  return state != nullptr && state->IsReady();
}

void Future<void>::Get() const {
  if (state == nullptr) throw config::future_exception(kFutureNotReady);
  state->Read();
}

Future<void> Future<void>::MakeContinuation(Continuation continuation) const {
  return state == nullptr ? Future() : state->AddContinuation(std::move(continuation));
}

Future<void> AsyncWithExecutorAndContinuationExecutorAndDelay(
    const std::shared_ptr<threads::AsyncExecutor>& executor, std::chrono::milliseconds delay,
    const std::shared_ptr<threads::AsyncExecutor>& continuationExecutor,
    std::function<void()> function) {
  auto state = std::make_shared<FutureState>(OrDefault(continuationExecutor));
  auto work = std::make_shared<Work>(Work{Promise<void>(state), std::move(function)});
  std::function<void()> task = [work = std::move(work)] { work->Run(); };
  if (delay.count() > 0) {
    SubmitLater(OrDefault(executor), delay, std::move(task));
  } else {
    OrDefault(executor)->Submit(std::move(task));
  }
  return Future<void>(std::move(state));
}

std::shared_ptr<threads::AsyncExecutor> GetDefaultExecutor() {
  return threads::GetCPUBoundExecutor();
}

}  // namespace qelcore::async

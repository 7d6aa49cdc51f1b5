#include "standalone/runtime/MainQueue.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <map>
#include <mutex>
#include <optional>
#include <system_error>
#include <utility>

#include "standalone/runtime/Log.h"
#include "standalone/runtime/Runtime.h"

namespace standalone {

namespace {

using Clock = std::chrono::steady_clock;

/// When a function is due, then the order of posting.
using Turn = std::pair<Clock::time_point, std::uint64_t>;
using Functions = std::map<Turn, std::function<void()>>;

// Keeps sums of a time and a delay far from the clock's limits.
constexpr std::chrono::milliseconds kLongestWait = std::chrono::hours(24 * 365);

/// An eventfd that is written once, until it was read.
class WakeSignal {
 public:
  WakeSignal() : descriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    if (descriptor < 0) throw std::system_error(errno, std::generic_category(), "eventfd");
  }
  ~WakeSignal() { close(descriptor); }
  WakeSignal(const WakeSignal&) = delete;
  WakeSignal& operator=(const WakeSignal&) = delete;

  int GetDescriptor() const { return descriptor; }

  void Raise() {
    if (!std::exchange(isRaised, true)) eventfd_write(descriptor, 1);
  }
  void Clear() {
    eventfd_t value = 0;
    if (std::exchange(isRaised, false)) eventfd_read(descriptor, &value);
  }
  /// Waits without any lock held.
  void Await(std::chrono::milliseconds limit) const {
    pollfd waited{descriptor, POLLIN, 0};
    poll(&waited, 1, static_cast<int>(std::min(limit, kLongestPoll).count()));
  }

 private:
  static constexpr std::chrono::milliseconds kLongestPoll = std::chrono::hours(1);

  int descriptor;
  bool isRaised = false;
};

}  // namespace

class MainQueue::State {
 public:
  explicit State(Log& log) : log(log) {}

  void Post(std::function<void()> function, std::chrono::milliseconds delay, bool alsoInNestedLoops) {
    const auto limited = std::clamp(delay, std::chrono::milliseconds(0), kLongestWait);
    const std::scoped_lock lock(mutex);
    const Turn turn(Clock::now() + limited, nextNumber++);
    (alsoInNestedLoops ? always : outermost).emplace(turn, std::move(function));
    wake.Raise();
  }

  /// The oldest due function, or none; then the descriptor is no longer readable.
  std::function<void()> TakeDue() {
    const std::scoped_lock lock(mutex);
    Functions* const functions = FindFirst();
    if (functions == nullptr || functions->begin()->first.first > Clock::now()) {
      wake.Clear();
      return nullptr;
    }
    return std::move(functions->extract(functions->begin()).mapped());
  }

  /// How long until a function is due: 0 when one is, none when none waits.
  std::optional<std::chrono::milliseconds> TimeUntilDue() {
    const std::scoped_lock lock(mutex);
    const Functions* const functions = FindFirst();
    const Clock::time_point now = Clock::now();
    if (functions != nullptr && functions->begin()->first.first <= now) {
      return std::chrono::milliseconds(0);
    }
    wake.Clear();
    if (functions == nullptr) return std::nullopt;
    return std::chrono::ceil<std::chrono::milliseconds>(functions->begin()->first.first - now);
  }

  std::size_t CountWaiting() const {
    const std::scoped_lock lock(mutex);
    return always.size() + outermost.size();
  }

  bool HasRunnable() const {
    const std::scoped_lock lock(mutex);
    return !always.empty() || (nestedLoops == 0 && !outermost.empty());
  }

  /// Destroys the functions of this moment without the lock: they may post others while they go.
  void DropWaiting() {
    Functions dropped;
    Functions alsoDropped;
    const std::scoped_lock lock(mutex);
    dropped.swap(always);
    alsoDropped.swap(outermost);
  }

  void EnterNestedLoop() {
    const std::scoped_lock lock(mutex);
    ++nestedLoops;
  }

  void LeaveNestedLoop() {
    const std::scoped_lock lock(mutex);
    --nestedLoops;
    if (!outermost.empty()) wake.Raise();
  }

  Log& log;
  WakeSignal wake;

 private:
  /// The functions whose first one is the oldest that may run now, or null.
  Functions* FindFirst() {
    if (nestedLoops > 0 || outermost.empty()) return always.empty() ? nullptr : &always;
    if (always.empty()) return &outermost;
    return always.begin()->first < outermost.begin()->first ? &always : &outermost;
  }

  mutable std::mutex mutex;
  Functions always;     ///< May run in nested loops too.
  Functions outermost;  ///< Only in the outermost loop.
  std::uint64_t nextNumber = 0;
  int nestedLoops = 0;
};

MainQueue::MainQueue(Log& log) : state(std::make_unique<State>(log)) {}
MainQueue::~MainQueue() {
  DropAll();
}

void MainQueue::Post(std::function<void()> function, std::chrono::milliseconds delay,
                     bool alsoInNestedLoops) {
  if (function) state->Post(std::move(function), delay, alsoInNestedLoops);
}

bool MainQueue::RunOne() {
  AssertMainThread("MainQueue::RunOne");
  const std::function<void()> function = state->TakeDue();
  if (!function) return false;
  try {
    function();
  } catch (...) {
    state->log.ReportFailure("main-thread function", std::current_exception());
  }
  return true;
}

void MainQueue::RunUntilEmpty() {
  while (RunOne()) continue;
}

bool MainQueue::WaitForWork(std::chrono::milliseconds limit) {
  AssertMainThread("MainQueue::WaitForWork");
  const auto limited = std::clamp(limit, std::chrono::milliseconds(0), kLongestWait);
  const Clock::time_point end = Clock::now() + limited;
  for (;;) {
    const std::optional<std::chrono::milliseconds> untilDue = state->TimeUntilDue();
    if (untilDue && untilDue->count() == 0) return true;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now());
    if (left.count() <= 0) return false;
    state->wake.Await(untilDue ? std::min(*untilDue, left) : left);
  }
}

std::optional<std::chrono::milliseconds> MainQueue::GetTimeUntilDue() {
  AssertMainThread("MainQueue::GetTimeUntilDue");
  return state->TimeUntilDue();
}

std::size_t MainQueue::CountWaiting() const {
  return state->CountWaiting();
}
bool MainQueue::HasRunnable() const {
  return state->HasRunnable();
}

void MainQueue::DropAll() {
  while (state->CountWaiting() > 0) state->DropWaiting();
}

int MainQueue::GetWakeDescriptor() const {
  return state->wake.GetDescriptor();
}

MainQueue::NestedLoop::NestedLoop(MainQueue& queue) : queue(queue) {
  queue.state->EnterNestedLoop();
}
MainQueue::NestedLoop::~NestedLoop() {
  queue.state->LeaveNestedLoop();
}

}  // namespace standalone

#include <algorithm>
#include <deque>
#include <memory>
#include <mutex>
#include <utility>

#include "host/qelcore/Threads.h"
#include "standalone/runtime/Guard.h"

namespace qelcore::threads {

namespace {

/// A queue of tasks that takes turns on another executor; a turn runs one task. Its turns keep it
/// alive, so the last of them may let it go.
///
/// Invariant: a task waits only while a turn is on its way.
class TaskQueue : public std::enable_shared_from_this<TaskQueue> {
 public:
  TaskQueue(std::shared_ptr<AsyncExecutor> executor, int concurrency)
      : executor(std::move(executor)), maximumTurns(std::max(concurrency, 1)) {}

  void Submit(std::function<void()> task) {
    {
      const std::scoped_lock lock(mutex);
      tasks.push_back(std::move(task));
      if (turns == maximumTurns) return;
      ++turns;
    }
    QueueTurn();
  }

 private:
  /// One turn; dropped by the executor without having run, it tells the queue.
  class Turn {
   public:
    explicit Turn(std::shared_ptr<TaskQueue> queue) noexcept : queue(std::move(queue)) {}
    ~Turn() {
      if (queue != nullptr) queue->DropTurn();
    }
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;

    void Run() { std::exchange(queue, nullptr)->RunTurn(); }

   private:
    std::shared_ptr<TaskQueue> queue;
  };

  void QueueTurn() {
    std::shared_ptr<Turn> turn;
    try {
      turn = std::make_shared<Turn>(shared_from_this());
    } catch (...) {
      DropTurn();
      throw;
    }
    executor->Submit([turn = std::move(turn)] { turn->Run(); });
  }

  void RunTurn() {
    RunOldest();
    // A turn of its own for each task: other users of the executor get theirs in between.
    if (NeedsAnotherTurn()) standalone::CallGuarded("task", [this] { QueueTurn(); });
  }

  /// The task is destroyed before the turn counts as over.
  void RunOldest() {
    const std::function<void()> task = TakeOldest();
    if (task) standalone::CallGuarded("task", task);
  }

  std::function<void()> TakeOldest() {
    const std::scoped_lock lock(mutex);
    if (tasks.empty()) return nullptr;  // Another turn was quicker.
    std::function<void()> task = std::move(tasks.front());
    tasks.pop_front();
    return task;
  }

  bool NeedsAnotherTurn() {
    const std::scoped_lock lock(mutex);
    if (!tasks.empty()) return true;
    --turns;
    return false;
  }

  /// The executor takes no turns any more; with the last one the tasks go, without the lock.
  void DropTurn() noexcept {
    std::deque<std::function<void()>> dropped;
    const std::scoped_lock lock(mutex);
    if (--turns == 0) dropped.swap(tasks);
  }

  const std::shared_ptr<AsyncExecutor> executor;
  const int maximumTurns;
  std::mutex mutex;
  std::deque<std::function<void()>> tasks;
  int turns = 0;  ///< Turns queued or running.
};

class QueueBasedSubExecutor final : public AsyncThreadedSubExecutor {
 public:
  explicit QueueBasedSubExecutor(std::shared_ptr<TaskQueue> queue) : queue(std::move(queue)) {}

  void Submit(std::function<void()> task) override { queue->Submit(std::move(task)); }

 private:
  std::shared_ptr<TaskQueue> queue;
};

}  // namespace

AsyncThreadedSubExecutor::AsyncThreadedSubExecutor() = default;
AsyncThreadedSubExecutor::~AsyncThreadedSubExecutor() = default;

std::shared_ptr<AsyncThreadedSubExecutor> CreateQueueBasedSubExecutor(
    const std::shared_ptr<AsyncExecutor>& executor, int concurrency) {
  return std::make_shared<QueueBasedSubExecutor>(std::make_shared<TaskQueue>(executor, concurrency));
}

}  // namespace qelcore::threads

#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>

#include "host/qelcore/Threads.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// An executor that runs tasks only when told, on the calling thread: the schedule of a test.
///
/// A task of a future holds the executor of its continuations. When that is the one it waits in, both
/// stay alive until the task runs or is dropped; so run or drop what waits at the end.
class STANDALONE_API SteppedExecutor final : public qelcore::threads::AsyncExecutor {
 public:
  SteppedExecutor();
  /// Drops the tasks that wait.
  ~SteppedExecutor() override;

  void Submit(std::function<void()> task) override;

  /// Runs the oldest task; false when there is none.
  bool RunOne();
  /// Runs tasks until none is left; returns how many ran.
  std::size_t RunUntilEmpty();
  /// Destroys the tasks that wait, those submitted meanwhile included.
  void DropAll();
  std::size_t CountWaiting() const;

 private:
  /// The oldest task, or an empty function.
  std::function<void()> TakeOldest();

  mutable std::mutex mutex;
  std::deque<std::function<void()>> tasks;
};

}  // namespace standalone

#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

class Log;

/// The functions that wait for the main thread. Posting is [any-thread]; running is [main-thread].
/// An eventfd wakes whoever waits: `poll` without a window, a socket notifier in one.
class STANDALONE_API MainQueue {
 public:
  explicit MainQueue(Log& log);
  /// Drops what waits, and what is posted while it is dropped.
  ~MainQueue();
  MainQueue(const MainQueue&) = delete;
  MainQueue& operator=(const MainQueue&) = delete;

  void Post(std::function<void()> function, std::chrono::milliseconds delay, bool alsoInNestedLoops);

  /// Runs the oldest function that is due; false when none was. A failure goes to the log.
  bool RunOne();
  /// Runs functions until none is due, those posted meanwhile included.
  void RunUntilEmpty();
  /// Waits until a function is due or `limit` has passed; true when one is due.
  bool WaitForWork(std::chrono::milliseconds limit);

  /// How long until a function is due that the current loop may run: 0 when one is, none when none
  /// waits. Tells what the descriptor does not: when a delayed function is due. [main-thread]
  std::optional<std::chrono::milliseconds> GetTimeUntilDue();

  /// Functions that wait, due or not.
  std::size_t CountWaiting() const;
  /// Whether a function waits, due or not, that the current loop may run.
  bool HasRunnable() const;
  /// Destroys all functions that wait without running them, those posted meanwhile included.
  void DropAll();

  /// The descriptor that becomes readable when a function is posted, and stays so until RunOne,
  /// RunUntilEmpty, WaitForWork or GetTimeUntilDue finds nothing due.
  int GetWakeDescriptor() const;

  /// Marks a nested event loop (menu, modal dialog) for its lifetime: only functions that allow it run.
  class STANDALONE_API NestedLoop {
   public:
    explicit NestedLoop(MainQueue& queue);
    ~NestedLoop();
    NestedLoop(const NestedLoop&) = delete;
    NestedLoop& operator=(const NestedLoop&) = delete;

   private:
    MainQueue& queue;
  };

 private:
  class State;
  std::unique_ptr<State> state;
};

}  // namespace standalone

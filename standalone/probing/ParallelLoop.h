#pragma once

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>

#include "host/qelcore/Threads.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Calls a function once for each number below a count, on the calling thread and on helpers at the
/// same time. The caller takes its share, so the loop comes to its end also when no helper ever runs (a
/// pool that is busy, or whose only thread is the caller's).
class STANDALONE_API ParallelLoop : public std::enable_shared_from_this<ParallelLoop> {
 public:
  struct Setup {
    std::size_t count = 0;
    std::function<void(std::size_t index)> body;
    /// Called on the calling thread between its calls of the body and while it waits for helpers;
    /// false ends the loop: no further call of the body begins.
    std::function<bool(std::size_t done)> goesOn;
  };

  /// Returns when all calls of the body have ended. The first failure of the body ends the loop and
  /// leaves from here. With too little memory for all helpers the loop makes do with fewer.
  /// `executor` may be null when there are no helpers.
  static void Run(Setup setup, qelcore::threads::AsyncExecutor* executor, unsigned helpers);

  explicit ParallelLoop(Setup setup) : setup(std::move(setup)) {}
  ParallelLoop(const ParallelLoop&) = delete;
  ParallelLoop& operator=(const ParallelLoop&) = delete;

 private:
  void CallHelpers(qelcore::threads::AsyncExecutor* executor, unsigned helpers);
  void Help();
  void RunAsCaller();
  /// False when nothing is left to do.
  bool RunNext();
  void AskWhetherToGoOn();
  void WaitForHelpers();

  Setup setup;
  std::atomic<std::size_t> next{0};
  std::atomic<std::size_t> done{0};
  std::atomic<bool> isEnded{false};

  std::mutex mutex;
  std::condition_variable helperLeft;
  unsigned helpersAtWork = 0;
  /// Helpers that come now are too late: what the body refers to may be gone.
  bool isClosed = false;
  std::exception_ptr failure;
};

}  // namespace standalone

#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include "host/BE/VisitSequence.h"
#include "host/qelcore/Threads.h"

/// The calls by which a table schedules its builds, with their arguments; install one for a test that
/// runs on one thread. What is empty leaves the host's behaviour as it is.
struct ScheduleWatch {
  using Executor = std::shared_ptr<qelcore::threads::AsyncExecutor>;
  using SubExecutor = std::shared_ptr<qelcore::threads::AsyncThreadedSubExecutor>;

  /// The executor under the sub-executor that was created last, its concurrency, and the result.
  Executor baseExecutor;
  int concurrency = 0;
  SubExecutor subExecutor;

  /// The arguments of the last scheduled function.
  Executor executor;
  Executor continuationExecutor;
  std::chrono::milliseconds delay{-1};
  /// Runs the function in the given executor's stead.
  Executor executorInstead;

  /// Gets the visitor of each pass before the host does.
  std::function<void(const BE::SequenceVisitor&)> visit;

  ScheduleWatch() { installed = this; }
  ~ScheduleWatch() { installed = nullptr; }
  ScheduleWatch(const ScheduleWatch&) = delete;
  ScheduleWatch& operator=(const ScheduleWatch&) = delete;

  inline static ScheduleWatch* installed = nullptr;
};

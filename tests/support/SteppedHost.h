#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"
#include "standalone/assembly/StandaloneHost.h"
#include "standalone/runtime/SteppedExecutor.h"
#include "support/Drafts.h"

/// The host with a schedule in the test's hands: pool tasks and main-thread functions run only when the
/// test says so, all on its own thread.
class SteppedHost {
 public:
  SteppedHost() = default;
  /// Runs what is left: a task that waits on a serial executor keeps the pool, which keeps the task.
  ~SteppedHost() { Settle(); }
  SteppedHost(const SteppedHost&) = delete;
  SteppedHost& operator=(const SteppedHost&) = delete;

  standalone::StandaloneHost* operator->() noexcept { return &host; }
  standalone::StandaloneHost& operator*() noexcept { return host; }
  standalone::SteppedExecutor& GetPool() noexcept { return *pool; }
  standalone::MainQueue& GetMainQueue() noexcept { return host.GetRuntime().GetMainQueue(); }

  /// Runs all pool tasks, then all main-thread functions, until there are none.
  void Settle() {
    do {
      pool->RunUntilEmpty();
      GetMainQueue().RunUntilEmpty();
    } while (pool->CountWaiting() > 0);
  }

  std::vector<std::string> TakeFailures() { return host.GetRuntime().GetLog().TakeFailures(); }

 private:
  static standalone::Runtime::Setup MakeSetup(
      const std::shared_ptr<qelcore::threads::AsyncExecutor>& executor) {
    standalone::Runtime::Setup setup;
    setup.poolThreads = 1;
    setup.cpuExecutor = executor;
    return setup;
  }

  std::shared_ptr<standalone::SteppedExecutor> pool = std::make_shared<standalone::SteppedExecutor>();
  standalone::StandaloneHost host{MakeSetup(pool)};
};

/// Adds a sequence to the host's project, closed.
inline qelcore::Ref<BE::ISequence> AddSequence(standalone::SequenceDraft draft) {
  return standalone::ProjectModel::Current()
      .AddDocument(drafts::MakeDocument(std::move(draft)))
      .front();
}

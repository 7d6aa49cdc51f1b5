#pragma once

#include <exception>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// The host's log: failures that nobody else has taken (of tasks, of futures that nobody read, of
/// listeners and callbacks), each as one sentence. [any-thread]
class STANDALONE_API Log {
 public:
  /// Records a failure: "<where>: <sentence>". Throws: nothing; without memory the failure is lost.
  void ReportFailure(std::string_view where, std::string_view sentence) noexcept;
  /// Records the failure of an exception, by its what().
  void ReportFailure(std::string_view where, std::exception_ptr failure) noexcept;

  /// The failures so far, oldest first; afterwards there are none.
  std::vector<std::string> TakeFailures();

  /// Called for each failure as it is recorded, on the thread that reports it; empty: nobody.
  void SetObserver(std::function<void(const std::string&)> newObserver);

 private:
  std::mutex mutex;
  std::vector<std::string> failures;
  std::function<void(const std::string&)> observer;
};

}  // namespace standalone

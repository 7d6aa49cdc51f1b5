#include "standalone/runtime/Log.h"

#include <utility>

namespace standalone {

namespace {

/// Calls `use` with the sentence of an exception, which lives only for that call.
template <typename Use>
void WithSentence(std::exception_ptr failure, const Use& use) {
  try {
    std::rethrow_exception(std::move(failure));
  } catch (const std::exception& exception) {
    use(std::string_view(exception.what()));
  } catch (...) {
    use(std::string_view("a failure of an unknown kind"));
  }
}

}  // namespace

void Log::ReportFailure(std::string_view where, std::string_view sentence) noexcept {
  try {
    const std::string entry = std::string(where).append(": ").append(sentence);
    std::function<void(const std::string&)> told;
    {
      const std::scoped_lock lock(mutex);
      failures.push_back(entry);
      told = observer;
    }
    if (told) told(entry);
  } catch (...) {
    // A log that fails has nobody left to tell.
  }
}

void Log::ReportFailure(std::string_view where, std::exception_ptr failure) noexcept {
  if (failure == nullptr) return;
  WithSentence(std::move(failure), [&](std::string_view sentence) { ReportFailure(where, sentence); });
}

std::vector<std::string> Log::TakeFailures() {
  const std::scoped_lock lock(mutex);
  return std::exchange(failures, {});
}

void Log::SetObserver(std::function<void(const std::string&)> newObserver) {
  // The old observer goes after the lock: it may hold the last reference to something.
  const std::scoped_lock lock(mutex);
  observer.swap(newObserver);
}

}  // namespace standalone

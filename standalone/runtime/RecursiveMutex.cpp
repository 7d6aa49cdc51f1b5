#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

#include "host/qelcore/Exceptions.h"
#include "host/qelcore/Threads.h"
#include "standalone/runtime/Guard.h"

namespace qelcore::threads {

namespace {

// A longer limit would leave the clock's range.
constexpr std::chrono::milliseconds kLongestLimit = std::chrono::hours(24 * 365);

}  // namespace

/// Built from a plain mutex and a condition variable, whose timed wait the thread sanitizer knows; it
/// does not know the library's timed mutexes.
class RecursiveMutex::State {
 public:
  explicit State(const char* name) : name(name) {}

  /// False when the limit has passed.
  bool LockWithin(std::chrono::milliseconds limit) {
    const std::thread::id self = std::this_thread::get_id();
    const auto limited = std::clamp(limit, std::chrono::milliseconds(0), kLongestLimit);
    std::unique_lock lock(mutex);
    if (depth > 0 && owner == self) {
      ++depth;
      return true;
    }
    if (!becameFree.wait_for(lock, limited, [this] { return depth == 0; })) return false;
    owner = self;
    depth = 1;
    return true;
  }

  /// False when the calling thread does not hold the mutex.
  bool Unlock() {
    const std::scoped_lock lock(mutex);
    if (depth == 0 || owner != std::this_thread::get_id()) return false;
    if (--depth == 0) becameFree.notify_one();
    return true;
  }

  const char* const name;

 private:
  std::mutex mutex;
  std::condition_variable becameFree;
  std::thread::id owner;
  unsigned depth = 0;
};

RecursiveMutex::RecursiveMutex(const char* name) : state(std::make_unique<State>(name)) {}
RecursiveMutex::~RecursiveMutex() = default;

void RecursiveMutex::Lock(const char* name, std::chrono::milliseconds limit) {
  if (!state->LockWithin(limit)) throw config::lock_timeout_exception(name == nullptr ? "" : name);
}

void RecursiveMutex::Unlock() noexcept {
  if (state->Unlock()) return;
  const char* const name = state->name == nullptr ? "mutex" : state->name;
  standalone::CallGuarded(name, [] {
    throw config::qel_exception(config::ExceptionKind::kGeneric,
                                "Unlocked by a thread that does not hold it", std::string());
  });
}

}  // namespace qelcore::threads

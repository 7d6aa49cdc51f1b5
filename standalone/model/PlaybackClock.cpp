#include "standalone/model/PlaybackClock.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "host/qelcore/Threads.h"
#include "standalone/runtime/Runtime.h"

namespace standalone {
namespace {

using qelmediatypes::TickTime;
using std::chrono::nanoseconds;

constexpr std::int64_t kTicksPerMicrosecond = TickTime::kTicksPerSecond / 1000000;
constexpr std::int64_t kNanosecondsPerMicrosecond = 1000;
// No timeline is longer; keeps the products below within 64 bits.
constexpr std::chrono::seconds kLongestElapsed = std::chrono::hours(100);

TickTime ToTicks(nanoseconds elapsed) {
  const nanoseconds limited = std::clamp<nanoseconds>(elapsed, nanoseconds(0), kLongestElapsed);
  const auto seconds = std::chrono::floor<std::chrono::seconds>(limited);
  const nanoseconds rest = limited - seconds;
  return TickTime(seconds.count() * TickTime::kTicksPerSecond +
                  rest.count() * kTicksPerMicrosecond / kNanosecondsPerMicrosecond);
}

}  // namespace

PlaybackClock::PlaybackClock(Now now, std::function<void(TickTime elapsed)> advance)
    : now(std::move(now)), advance(std::move(advance)) {}

void PlaybackClock::Start() {
  AssertMainThread("PlaybackClock::Start");
  if (!std::exchange(isRunning, true)) last = now();
  Schedule();
}

void PlaybackClock::Schedule() {
  // Playback goes on while a menu is open.
  constexpr bool kAlsoInNestedLoops = true;
  if (std::exchange(isScheduled, true)) return;
  qelcore::threads::CallFromMainThread(
      qelcore::utility::WeakBind(&PlaybackClock::Tick, qelcore::WeakRef<PlaybackClock>(this)),
      static_cast<unsigned>(kInterval.count()), kAlsoInNestedLoops);
}

void PlaybackClock::Tick() {
  isScheduled = false;
  if (!isRunning) return;
  const auto previous = std::exchange(last, now());
  advance(ToTicks(last - previous));
  // Only now, so that slow listeners leave the main thread some time for other work.
  if (isRunning) Schedule();
}

}  // namespace standalone

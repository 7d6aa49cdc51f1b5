#pragma once

#include <chrono>
#include <functional>

#include "host/qelcore/CountedObject.h"
#include "host/qelmediatypes/TickTime.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Says again and again how much time has passed, from functions that it queues for the main thread,
/// one at a time. These hold it weakly, so it stops with its last reference. All operations are
/// [main-thread], except counting.
class STANDALONE_API PlaybackClock final : public qelcore::CountedObject {
 public:
  using Now = std::function<std::chrono::steady_clock::time_point()>;

  /// From one function to the next: a frame at 25 pictures a second.
  static constexpr std::chrono::milliseconds kInterval{40};

  /// @param now tells the time.
  /// @param advance is told the time since it was told last, or since the start.
  PlaybackClock(Now now, std::function<void(qelmediatypes::TickTime elapsed)> advance);

  /// Starts the count; a running clock goes on.
  void Start();
  void Stop() noexcept { isRunning = false; }
  bool IsRunning() const noexcept { return isRunning; }

 private:
  ~PlaybackClock() override = default;
  void Schedule();
  void Tick();

  const Now now;
  const std::function<void(qelmediatypes::TickTime)> advance;
  std::chrono::steady_clock::time_point last;
  bool isRunning = false;
  /// Whether a function of this clock waits.
  bool isScheduled = false;
};

}  // namespace standalone

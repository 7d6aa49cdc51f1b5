#include "standalone/window/MainQueueNotifier.h"

#include <QElapsedTimer>
#include <QPointer>
#include <algorithm>
#include <chrono>

namespace standalone {

namespace {
/// Milliseconds; a quarter of a picture at 60 a second. One function is never broken off.
constexpr qint64 kSlice = 4;
/// Timers count milliseconds in an int.
constexpr std::chrono::milliseconds kLongestAlarm = std::chrono::hours(1);
}  // namespace

MainQueueNotifier::MainQueueNotifier(MainQueue& queue)
    : queue(queue), wake(queue.GetWakeDescriptor(), QSocketNotifier::Read) {
  alarm.setSingleShot(true);
  alarm.setTimerType(Qt::PreciseTimer);
  connect(&wake, &QSocketNotifier::activated, this, [this] { RunSlice(); });
  connect(&alarm, &QTimer::timeout, this, [this] { RunSlice(); });
  // What was posted before, delayed functions included.
  alarm.start(0);
}

MainQueueNotifier::~MainQueueNotifier() = default;

void MainQueueNotifier::RunSlice() {
  // A function may end the window, and the notifier with it.
  const QPointer<MainQueueNotifier> self(this);
  QElapsedTimer clock;
  clock.start();
  while (queue.RunOne()) {
    if (!self) return;
    if (clock.elapsed() >= kSlice) break;
  }
  const auto untilDue = queue.GetTimeUntilDue();
  // What is due already keeps the descriptor readable, which calls again.
  if (untilDue && untilDue->count() > 0) alarm.start(std::min(*untilDue, kLongestAlarm));
}

}  // namespace standalone

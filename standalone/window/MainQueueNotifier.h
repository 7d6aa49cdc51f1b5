#pragma once

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include "standalone/runtime/MainQueue.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Runs the functions that wait for the main thread while a window's event loop runs, nested loops
/// included: a few milliseconds of them at a time, so that the user's events have their turn between.
/// [main-thread]
class STANDALONE_API MainQueueNotifier final : public QObject {
 public:
  /// `queue` must outlive the notifier.
  explicit MainQueueNotifier(MainQueue& queue);
  ~MainQueueNotifier() override;

 private:
  void RunSlice();

  MainQueue& queue;
  QSocketNotifier wake;
  /// Rings when the next delayed function is due.
  QTimer alarm;
};

}  // namespace standalone

#pragma once

#include <condition_variable>
#include <mutex>

/// A gate between threads that is opened once.
class Gate {
 public:
  void Open() {
    const std::scoped_lock lock(mutex);
    isOpen = true;
    opened.notify_all();
  }
  void Await() {
    std::unique_lock lock(mutex);
    opened.wait(lock, [this] { return isOpen; });
  }

 private:
  std::mutex mutex;
  std::condition_variable opened;
  bool isOpen = false;
};

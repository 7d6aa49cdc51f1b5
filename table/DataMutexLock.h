#pragma once

#include <chrono>

#include "host/qelcore/Threads.h"

namespace Vantrel {

/// Holds a table's data mutex for its lifetime. Throws when the mutex was not to be had within a
/// minute: lock_timeout_exception, and nothing is held.
class DataMutexLock {
 public:
  static constexpr std::chrono::milliseconds kLimit{60000};

  explicit DataMutexLock(qelcore::threads::RecursiveMutex& mutex) : mutex(mutex) {
    mutex.Lock(nullptr, kLimit);
  }
  ~DataMutexLock() { mutex.Unlock(); }
  DataMutexLock(const DataMutexLock&) = delete;
  DataMutexLock& operator=(const DataMutexLock&) = delete;

 private:
  qelcore::threads::RecursiveMutex& mutex;
};

}  // namespace Vantrel

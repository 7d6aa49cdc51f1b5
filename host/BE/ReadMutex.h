#pragma once

#include "host/HostAPI.h"

namespace BE {

/// Shared access to the whole model: while it is held, nothing is published. A thread that holds it
/// may lock it again. Do not wait for the main thread while holding it. [any-thread]
class HOST_API ReadMutex {
 public:
  ReadMutex(const ReadMutex&) = delete;
  ReadMutex& operator=(const ReadMutex&) = delete;
  /// Waits as long as something is being published.
  void Lock();
  /// Undoes one Lock of the calling thread.
  void Unlock() noexcept;

 protected:
  ReadMutex();
  ~ReadMutex();
};

/// The host's read lock; lives as long as the host. [any-thread]
HOST_API ReadMutex& GetBackendReadLock();

}  // namespace BE

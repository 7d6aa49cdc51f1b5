#pragma once

namespace standalone {

/// Keeps every holder of the read lock out for its lifetime. Throws: qel_exception when the calling
/// thread holds the read lock itself, which could only wait for ever. [any-thread]
class ModelWriteLock {
 public:
  ModelWriteLock();
  ~ModelWriteLock();
  ModelWriteLock(const ModelWriteLock&) = delete;
  ModelWriteLock& operator=(const ModelWriteLock&) = delete;
};

}  // namespace standalone

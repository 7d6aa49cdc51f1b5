#include "host/BE/ReadMutex.h"

#include <cstddef>
#include <shared_mutex>

#include "host/qelcore/Exceptions.h"
#include "standalone/model/ModelWriteLock.h"

namespace {

std::shared_mutex& GetModelMutex() {
  static std::shared_mutex mutex;
  return mutex;
}

/// How often this thread holds the read lock: a shared mutex may not be taken again by its holder.
thread_local std::size_t readDepth = 0;

class BackendReadLock final : public BE::ReadMutex {};

}  // namespace

namespace BE {

ReadMutex::ReadMutex() = default;
ReadMutex::~ReadMutex() = default;

void ReadMutex::Lock() {
  if (readDepth == 0) GetModelMutex().lock_shared();
  ++readDepth;
}

void ReadMutex::Unlock() noexcept {
  --readDepth;
  if (readDepth == 0) GetModelMutex().unlock_shared();
}

ReadMutex& GetBackendReadLock() {
  static BackendReadLock lock;
  return lock;
}

}  // namespace BE

namespace standalone {

ModelWriteLock::ModelWriteLock() {
  if (readDepth != 0) {
    throw qelcore::config::qel_exception(
        qelcore::config::ExceptionKind::kGeneric,
        "A sequence can't be published by a thread that holds the read lock", "BE::ReadMutex");
  }
  GetModelMutex().lock();
}

ModelWriteLock::~ModelWriteLock() {
  GetModelMutex().unlock();
}

}  // namespace standalone

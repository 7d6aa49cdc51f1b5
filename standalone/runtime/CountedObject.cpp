#include "host/qelcore/CountedObject.h"

#include <atomic>
#include <cstdint>
#include <new>

#include "host/qelcore/Shareable.h"

namespace qelcore {

namespace {

// Put in place of the count when the last reference is gone: references that the object makes to itself
// while it goes then neither destroy it again nor revive it.
constexpr std::uint32_t kGoing = 1u << 30;

}  // namespace

class CountedObject::Counts {
 public:
  static Counts* Make() { return ::new (memory::RecyclingAllocate(sizeof(Counts))) Counts; }

  void AddStrong() noexcept { strong.fetch_add(1, std::memory_order_relaxed); }

  /// True when that was the last reference.
  bool ReleaseStrong() noexcept {
    if (strong.fetch_sub(1, std::memory_order_acq_rel) != 1) return false;
    strong.store(kGoing, std::memory_order_relaxed);
    return true;
  }

  bool TryAddStrong() noexcept {
    std::uint32_t seen = strong.load(std::memory_order_relaxed);
    while (seen != 0 && seen < kGoing) {
      if (strong.compare_exchange_weak(seen, seen + 1, std::memory_order_acq_rel)) return true;
    }
    return false;
  }

  void AddWeak() noexcept { weak.fetch_add(1, std::memory_order_relaxed); }

  void ReleaseWeak() noexcept {
    if (weak.fetch_sub(1, std::memory_order_acq_rel) != 1) return;
    this->~Counts();
    memory::RecyclingFree(this, sizeof(Counts));
  }

 private:
  Counts() = default;
  ~Counts() = default;

  std::atomic<std::uint32_t> strong = 0;
  std::atomic<std::uint32_t> weak = 1;  // The object itself counts as one.
};

CountedObject::CountedObject() : counts(Counts::Make()) {}
CountedObject::~CountedObject() {
  counts->ReleaseWeak();
}

void CountedObject::AddRef() const noexcept {
  counts->AddStrong();
}

void CountedObject::Release() const noexcept {
  if (counts->ReleaseStrong()) const_cast<CountedObject*>(this)->DeleteSelf();
}

void CountedObject::DeleteSelf() noexcept {
  delete this;
}

namespace detail {

void AddWeak(CountedObject::Counts* counts) noexcept {
  counts->AddWeak();
}
void ReleaseWeak(CountedObject::Counts* counts) noexcept {
  counts->ReleaseWeak();
}
bool TryAddStrong(CountedObject::Counts* counts) noexcept {
  return counts->TryAddStrong();
}

}  // namespace detail

}  // namespace qelcore

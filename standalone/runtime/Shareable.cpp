#include "host/qelcore/Shareable.h"

#include "standalone/runtime/RecyclingAllocator.h"

namespace qelcore::memory {

void* RecyclingAllocate(std::size_t bytes) {
  return standalone::TakeBlock(bytes);
}

void RecyclingFree(void* block, std::size_t bytes) noexcept {
  if (block != nullptr) standalone::GiveBlockBack(block, bytes);
}

Shareable::Shareable() = default;
Shareable::~Shareable() = default;

void* Shareable::operator new(std::size_t bytes) {
  return RecyclingAllocate(bytes);
}
void Shareable::operator delete(void* block, std::size_t bytes) noexcept {
  RecyclingFree(block, bytes);
}

std::shared_ptr<Shareable> AdoptShareable(Shareable* object) {
  return std::shared_ptr<Shareable>(object);
}

}  // namespace qelcore::memory

#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

namespace generator {

/// Choices that are the same in each run and on each machine: the library's distributions may differ
/// from one implementation to the next, its engines may not.
class Chance {
 public:
  /// Each of a timeline's streams has choices of its own, so that one can be repeated without another.
  Chance(std::uint64_t seed, std::uint64_t stream)
      : engine(seed * 0x9E3779B97F4A7C15U ^ (stream + 1) * 0xD1B54A32D192ED03U) {}

  std::size_t Below(std::size_t limit) { return engine() % limit; }
  bool OneIn(std::size_t number) { return Below(number) == 0; }
  bool Percent(unsigned percent) { return Below(100) < percent; }

  template <typename Element, std::size_t kCount>
  const Element& Pick(const Element (&elements)[kCount]) {
    return elements[Below(kCount)];
  }

 private:
  std::mt19937_64 engine;
};

}  // namespace generator

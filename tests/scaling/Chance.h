#pragma once

#include <cstddef>
#include <random>
#include <string>

namespace scaling {

/// Choices that are the same in each run and on each machine.
class Chance {
 public:
  std::size_t Below(std::size_t limit) { return engine() % limit; }
  bool OneIn(std::size_t number) { return Below(number) == 0; }
  std::string NumberBelow(std::size_t limit) { return std::to_string(Below(limit)); }

 private:
  std::mt19937_64 engine{1};
};

}  // namespace scaling

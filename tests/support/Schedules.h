#pragma once

#include <cstddef>
#include <utility>
#include <vector>

/// Every order in which a small number of steps can happen. A run asks at each fork which way to go,
/// and is repeated until each way was gone once:
///
///   Schedules schedules;
///   do {
///     ... while (something can happen) Do(schedules.Choose(whatCanHappen.size())) ...
///   } while (schedules.Next());
///
/// A run has to be the same each time but for its choices.
class Schedules {
 public:
  /// Which of `count` ways (at least 1) to go now.
  std::size_t Choose(std::size_t count) {
    if (position == forks.size()) forks.push_back({0, count});
    return forks[position++].chosen;
  }
  bool ChooseWhether() { return Choose(2) == 1; }

  /// Begins the next run; false when every way was gone.
  bool Next() {
    ++runs;
    position = 0;
    while (!forks.empty() && forks.back().chosen + 1 == forks.back().count) forks.pop_back();
    if (forks.empty()) return false;
    ++forks.back().chosen;
    return true;
  }

  /// The choices of this run so far, for the words of a failure.
  std::vector<std::size_t> GetChoices() const {
    std::vector<std::size_t> choices;
    for (std::size_t i = 0; i < position; ++i) choices.push_back(forks[i].chosen);
    return choices;
  }
  /// Runs that have ended.
  std::size_t CountRuns() const noexcept { return runs; }

 private:
  struct Fork {
    std::size_t chosen;
    std::size_t count;
  };
  std::vector<Fork> forks;
  std::size_t position = 0;
  std::size_t runs = 0;
};

#pragma once

#include <string>
#include <vector>

namespace benchmarks {

/// What a program took from its start to its end.
struct ProcessCost {
  /// Of all its threads and of the system on its behalf.
  double processorSeconds = 0;
  double clockSeconds = 0;
};

/// Runs a program with its standard output thrown away, and waits for its end. Throws:
/// std::runtime_error when it can't be started or does not end with 0.
ProcessCost RunProgram(const std::vector<std::string>& words);

/// The medians of several runs.
ProcessCost MeasureProgram(const std::vector<std::string>& words, int runs);

}  // namespace benchmarks

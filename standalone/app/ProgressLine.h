#pragma once

#include <chrono>
#include <string>
#include <string_view>

namespace standalone {

/// One line on standard error that shows how far a long step has come. It appears only on a terminal,
/// and only once the step has taken half a second.
class ProgressLine {
 public:
  /// `what` may hold names from files, of any content.
  explicit ProgressLine(std::string_view what);
  ~ProgressLine();
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;

  /// `fraction` is from 0 to 1.
  void Show(double fraction);
  /// Takes the line away.
  void Clear();

 private:
  std::string what;
  std::chrono::steady_clock::time_point start;
  bool isTerminal;
  int shownPercent = -1;
};

}  // namespace standalone

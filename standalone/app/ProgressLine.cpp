#include "standalone/app/ProgressLine.h"

#include <unistd.h>

#include <iostream>

#include "standalone/app/DisplayText.h"

namespace standalone {

namespace {
constexpr std::chrono::milliseconds kPatience{500};
constexpr const char* kEraseLine = "\r\033[K";
}  // namespace

ProgressLine::ProgressLine(std::string_view what)
    : what(BlankControls(what)),
      start(std::chrono::steady_clock::now()),
      isTerminal(isatty(STDERR_FILENO) == 1) {}

ProgressLine::~ProgressLine() {
  Clear();
}

void ProgressLine::Show(double fraction) {
  const int percent = static_cast<int>(fraction * 100);
  if (!isTerminal || percent == shownPercent) return;
  if (std::chrono::steady_clock::now() - start < kPatience) return;
  shownPercent = percent;
  std::cerr << kEraseLine << what << ": " << percent << " %" << std::flush;
}

void ProgressLine::Clear() {
  if (shownPercent < 0) return;
  std::cerr << kEraseLine << std::flush;
  shownPercent = -1;
}

}  // namespace standalone

#include <benchmark/benchmark.h>

#include <QApplication>
#include <cstdlib>

#include "window/ShownTable.h"

namespace {
constexpr int kKeepWhatIsSet = 0;
}

// Widgets without a display, unless somebody wants to see them.
int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", kKeepWhatIsSet);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return EXIT_FAILURE;
  const QApplication application(argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmarks::ShownTable::DropAll();
  benchmark::Shutdown();
}

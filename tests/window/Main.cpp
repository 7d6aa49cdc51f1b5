#include <gtest/gtest.h>

#include <QApplication>
#include <cstdlib>

constexpr int kKeepWhatIsSet = 0;

// Widgets without a display, unless somebody wants to see them.
int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", kKeepWhatIsSet);
  testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}

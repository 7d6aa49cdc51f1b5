#include "standalone/app/WindowCommand.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "support/Process.h"

namespace standalone {
namespace {

using testing::HasSubstr;

TEST(WindowCommand, WithoutADisplayItSaysWhatWorksWithout) {
  const auto outcome = process::Run({PROGRAM, "window", SOURCE_FOLDER "/samples/demo.otio"});
  EXPECT_EQ(outcome.code, 2);
  EXPECT_THAT(outcome.errors, HasSubstr("There is no display"));
  EXPECT_THAT(outcome.errors, HasSubstr("table"));
}

TEST(WindowCommand, AnyOfTheWindowSystemsIsADisplay) {
  EXPECT_FALSE(HasDisplay());
  for (const char* const variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
    setenv(variable, ":0", 1);
    EXPECT_TRUE(HasDisplay()) << variable;
    setenv(variable, "", 1);
    EXPECT_FALSE(HasDisplay()) << variable;
    unsetenv(variable);
  }
}

TEST(WindowCommand, AListOfEffectsThatIsNotThereIsRefusedBeforeAnyWindow) {
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  const auto outcome = process::Run({PROGRAM, "window", "--effects-list", "/nowhere/effects.txt"});
  unsetenv("QT_QPA_PLATFORM");
  EXPECT_EQ(outcome.code, 2);
  EXPECT_THAT(outcome.errors, HasSubstr("/nowhere/effects.txt"));
}

}  // namespace
}  // namespace standalone

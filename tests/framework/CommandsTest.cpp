#include "host/UIF/Commands.h"

#include <gtest/gtest.h>

#include "host/UIF/Application.h"
#include "standalone/framework/Framework.h"
#include "standalone/runtime/Runtime.h"

namespace {

class PlainCommander final : public UIF::Commander {
 public:
  PlainCommander() = default;
};

class Commanders : public testing::Test {
 protected:
  standalone::Runtime runtime;
  standalone::Framework framework;
  PlainCommander commander;
};

TEST_F(Commanders, APlainOneKnowsAndObeysNoCommand) {
  for (bool isEnabled : {true, false}) {
    const bool before = isEnabled;
    EXPECT_FALSE(commander.FindCommandStatus(36003, isEnabled));
    EXPECT_EQ(isEnabled, before);
  }
  EXPECT_FALSE(commander.ObeyCommand(UIF::Command(36003)));
}

TEST_F(Commanders, AreOnDutyBetweenTheTwoCalls) {
  EXPECT_FALSE(commander.IsOnDuty());
  commander.NowOnDuty();
  EXPECT_TRUE(commander.IsOnDuty());
  commander.NowOffDuty();
  EXPECT_FALSE(commander.IsOnDuty());
}

TEST_F(Commanders, APlainOneWorksInTheGlobalContextAndMayClose) {
  EXPECT_EQ(commander.GetCommandContextName(), "global");
  EXPECT_TRUE(commander.AllowClose());
}

TEST_F(Commanders, TheApplicationIsOneOfThem) {
  EXPECT_EQ(&UIF::Application::Instance(), &UIF::Application::Instance());
  EXPECT_FALSE(UIF::Application::Instance().ObeyCommand(UIF::Command(1)));
}

TEST_F(Commanders, TheWorkspaceTellsWhetherItIsBeingLoaded) {
  EXPECT_FALSE(UIF::Workspace::Instance().IsBeingLoaded());
  framework.SetWorkspaceIsBeingLoaded(true);
  EXPECT_TRUE(UIF::Workspace::Instance().IsBeingLoaded());
  framework.SetWorkspaceIsBeingLoaded(false);
  EXPECT_FALSE(UIF::Workspace::Instance().IsBeingLoaded());
}

}  // namespace

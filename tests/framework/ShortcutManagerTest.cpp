#include "host/UIF/ShortcutManager.h"

#include <gtest/gtest.h>

#include "standalone/framework/Framework.h"
#include "standalone/runtime/Runtime.h"

namespace {

using qelcore::UTF8String;
using UIF::ShortcutManager;

class CommandContexts : public testing::Test {
 protected:
  standalone::Runtime runtime;
  standalone::Framework framework;
  ShortcutManager& manager = ShortcutManager::Instance();
};

TEST_F(CommandContexts, TheGlobalOneAlwaysExists) {
  const auto global = manager.GetContext("global");
  ASSERT_NE(global, nullptr);
  EXPECT_EQ(global->GetID(), "global");
}

TEST_F(CommandContexts, AnUnknownOneIsNull) {
  EXPECT_EQ(manager.GetContext("Panel"), nullptr);
}

TEST_F(CommandContexts, AnAddedOneIsFound) {
  const auto added = manager.AddContext("Panel", UTF8String("The Panel"));
  EXPECT_EQ(manager.GetContext("Panel"), added);
  EXPECT_EQ(added->GetTitle(), "The Panel");
}

TEST_F(CommandContexts, AddingAKnownOneAnswersTheOneThatExists) {
  const auto first = manager.AddContext("Panel", UTF8String("The Panel"));
  EXPECT_EQ(manager.AddContext("Panel", UTF8String("Another")), first);
  EXPECT_EQ(first->GetTitle(), "The Panel");
}

TEST_F(CommandContexts, ARegisteringFunctionIsCalledAtOnceWithTheManager) {
  manager.RegisterCommandContext(
      [](ShortcutManager& given) { given.AddContext("Panel", UTF8String("The Panel")); });
  EXPECT_NE(manager.GetContext("Panel"), nullptr);
}

}  // namespace

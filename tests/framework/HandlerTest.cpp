#include "host/HSL/Handler.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "framework/TestHandler.h"
#include "standalone/framework/Framework.h"
#include "standalone/runtime/Runtime.h"

namespace {

using qelcore::UTF8String;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class Handlers : public testing::Test {
 protected:
  Handlers() {
    // Factories stay registered as long as the library that holds them.
    static const bool isRegistered = [] {
      HSL::Handler::RegisterFactory("First", &TestHandler::Make);
      HSL::Handler::RegisterFactory("Second", &TestHandler::Make);
      return true;
    }();
    EXPECT_TRUE(isRegistered);
    TestHandler::isAvailable = true;
    TestHandler::whenDestroyed = nullptr;
  }

  standalone::Runtime runtime;
  standalone::Framework framework;
};

TEST_F(Handlers, RegisteredFactoriesAreListed) {
  EXPECT_THAT(standalone::GetRegisteredHandlerFactories(), Contains("First"));
}

TEST_F(Handlers, NoneIsFoundBeforeOneIsProvided) {
  EXPECT_EQ(HSL::Handler::FindHandler("First"), nullptr);
}

TEST_F(Handlers, AProvidedHandlerIsHeldAndFound) {
  const HSL::Handler* const provided = framework.ProvideHandler("First").get();
  ASSERT_NE(provided, nullptr);
  EXPECT_EQ(HSL::Handler::FindHandler("First").get(), provided);
  EXPECT_EQ(provided->GetHandlerID(), "First");
}

TEST_F(Handlers, ProvidingAgainAnswersTheLiveOne) {
  const auto handler = framework.ProvideHandler("First");
  EXPECT_EQ(framework.ProvideHandler("First"), handler);
  EXPECT_EQ(TestHandler::count, 1);
}

TEST_F(Handlers, AnUnknownIdentifierHasNoHandler) {
  EXPECT_EQ(framework.ProvideHandler("Nobody"), nullptr);
}

TEST_F(Handlers, AFactoryMayAnswerNoneNowAndOneLater) {
  TestHandler::isAvailable = false;
  EXPECT_EQ(framework.ProvideHandler("First"), nullptr);
  EXPECT_EQ(HSL::Handler::FindHandler("First"), nullptr);
  TestHandler::isAvailable = true;
  EXPECT_NE(framework.ProvideHandler("First"), nullptr);
}

TEST_F(Handlers, AHandlerThatSomebodyElseHoldsIsFoundOnlyWhileItLives) {
  auto handler = TestHandler::Make(UTF8String("Own"));
  EXPECT_EQ(HSL::Handler::FindHandler("Own"), handler);
  handler.reset();
  EXPECT_EQ(HSL::Handler::FindHandler("Own"), nullptr);
}

TEST_F(Handlers, AHandlerIsFoundOnlyAfterItsSecondPhaseOfConstruction) {
  const auto handler = qelcore::memory::MakeShareable<TestHandler>(UTF8String("Own"));
  EXPECT_EQ(HSL::Handler::FindHandler("Own"), nullptr);
  handler->PostSharedPtrInit();
  EXPECT_EQ(HSL::Handler::FindHandler("Own"), handler);
}

TEST_F(Handlers, AreDroppedNewestFirst) {
  std::vector<std::string> destroyed;
  TestHandler::whenDestroyed = [&](const std::string& id) { destroyed.push_back(id); };
  framework.ProvideHandler("Second");
  framework.ProvideHandler("First");
  framework.DropHandlers();
  EXPECT_THAT(destroyed, ElementsAre("First", "Second"));
  EXPECT_EQ(HSL::Handler::FindHandler("First"), nullptr);
}

TEST_F(Handlers, AllOfThemAreProvidedAtOnce) {
  framework.ProvideHandlers();
  EXPECT_EQ(TestHandler::count, 2);
}

TEST_F(Handlers, ADroppedHandlerThatSomebodyElseHoldsKeepsItsWindowClass) {
  auto handler = framework.ProvideHandler("First");
  framework.DropHandlers();
  EXPECT_EQ(HSL::Handler::FindHandler("First"), handler);
  EXPECT_THAT(framework.GetWindowClasses(), SizeIs(1));
  handler.reset();
  EXPECT_THAT(framework.GetWindowClasses(), IsEmpty());
}

TEST_F(Handlers, ObeyNoCommandByThemselves) {
  const auto handler = framework.ProvideHandler("First");
  EXPECT_FALSE(handler->ObeyCommand(UIF::Command(36003)));
}

TEST(HandlerLife, AHandlerMayOutliveTheFramework) {
  const standalone::Runtime runtime;
  auto framework = std::make_unique<standalone::Framework>();
  auto handler = TestHandler::Make(UTF8String("Own"));
  framework.reset();
  EXPECT_NO_THROW(handler.reset());
}

}  // namespace

#include "module/ModuleEntry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include "module/FeatureFlag.h"
#include "module/LoadCalls.h"
#include "module/ModuleFixture.h"
#include "module/SequenceIndexModule.h"
#include "support/LocalizedKeys.h"

namespace {
bool isOutOfMemory = false;
}  // namespace

void* operator new(std::size_t bytes, const std::nothrow_t&) noexcept {
  if (isOutOfMemory) return nullptr;
  try {
    return ::operator new(bytes);
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

namespace Vantrel {
namespace {

using Entry = ModuleFixture;

TEST(Load, RegistersTheFeatureWithItsTextsAndPolicies) {
  const auto features = standalone::GetRegisteredFeatures();
  ASSERT_EQ(features.size(), 1U);
  const standalone::FeatureEntry& feature = features.front();
  EXPECT_EQ(feature.name, "SequenceIndex");
  EXPECT_EQ(feature.stage, 2U);
  EXPECT_EQ(feature.titleKey, "$$$/Tessalo/Handlers/SequenceIndex/EnableSequenceIndex=Sequence Index");
  EXPECT_EQ(feature.descriptionKey,
            "$$$/Tessalo/Handlers/SequenceIndex/EnableSequenceIndexBetaFeatureDescription=View your "
            "timeline contents in a table view, filter by various criteria, and search for specific "
            "items.");
  EXPECT_EQ(feature.trackingKey, "QELMX-4248997");
  EXPECT_EQ(feature.visibility, 0U);
  EXPECT_EQ(feature.changes, 1U);
  EXPECT_EQ(feature.defaultEnablement, 0U);
}

TEST(Load, TheFeaturesTextsCarryNoRemark) {
  const auto features = standalone::GetRegisteredFeatures();
  ASSERT_FALSE(features.empty());
  EXPECT_EQ(features.front().titleKey.find("#{comment}"), std::string::npos);
  EXPECT_EQ(features.front().descriptionKey.find("#{comment}"), std::string::npos);
}

TEST(Load, RegistersTheFeatureThenTheHandlersFactoryThenTheModules) {
  EXPECT_EQ(hostcalls::GetLoadCalls(),
            (Calls{"handler SequenceIndexHandler, features 1, module factories 0",
                   "module SequenceIndexModule, features 1, handler factories 1"}));
}

TEST_F(Entry, CreatesTheModuleOfTheGivenID) {
  const std::unique_ptr<HSL::Module> module(CreateModule(qelcore::UTF8String("some id")));
  ASSERT_NE(dynamic_cast<SequenceIndexModule*>(module.get()), nullptr);
  EXPECT_EQ(module->GetModuleID(), "some id");
}

TEST_F(Entry, RegistersTheCommandContextAfterLookingUpTheGlobalOne) {
  const hostcalls::Recording recording;
  const std::unique_ptr<HSL::Module> module(CreateModule(qelcore::UTF8String("id")));
  EXPECT_EQ(recording.GetCalls(),
            (Calls{"GetContext(global)", "AddContext(SequenceIndex, Sequence Index Panel)"}));
  const auto context = UIF::ShortcutManager::Instance().GetContext("SequenceIndex");
  ASSERT_NE(context, nullptr);
  EXPECT_EQ(context->GetTitle(), "Sequence Index Panel");
}

TEST_F(Entry, RegistersTheCommandContextWithTheFeatureOffAndInEveryCall) {
  standalone::SwitchFeature("SequenceIndex", false);
  const std::unique_ptr<HSL::Module> first(CreateModule(qelcore::UTF8String("id")));
  const auto context = UIF::ShortcutManager::Instance().GetContext("SequenceIndex");
  EXPECT_NE(context, nullptr);
  const hostcalls::Recording recording;
  const std::unique_ptr<HSL::Module> second(CreateModule(qelcore::UTF8String("id")));
  EXPECT_EQ(recording.Count("AddContext"), 1U);
  EXPECT_EQ(UIF::ShortcutManager::Instance().GetContext("SequenceIndex"), context);
}

TEST_F(Entry, TheCommandContextsTitleIsLocalisedOnce) {
  for (int i = 0; i < 2; ++i) {
    const std::unique_ptr<HSL::Module> module(CreateModule(qelcore::UTF8String("id")));
  }
  EXPECT_EQ(hostcalls::LocalizedKeys::Get().Count(
                "$$$/Corvel/Handlers/SequenceIndex/SequenceIndexContext=Sequence Index Panel#{comment}"
                "QELMX-4248997"),
            1U);
}

TEST_F(Entry, YieldsNoModuleWhenThereIsNoMemoryForIt) {
  isOutOfMemory = true;
  HSL::Module* const module = CreateModule(qelcore::UTF8String("id"));
  isOutOfMemory = false;
  EXPECT_EQ(module, nullptr);
  EXPECT_EQ(UIF::ShortcutManager::Instance().GetContext("SequenceIndex"), nullptr);
}

}  // namespace
}  // namespace Vantrel

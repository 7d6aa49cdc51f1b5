#include "host/qelappsupport/Features.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <optional>
#include <thread>

#include "standalone/runtime/FeatureRegistry.h"
#include "standalone/runtime/Runtime.h"

namespace {

using namespace qelappsupport::feature;
using standalone::FeatureEntry;
using standalone::GetRegisteredFeatures;
using standalone::SwitchFeature;

BetaFeature MakeFeature(std::string_view name, std::uint32_t enablement) {
  return BetaFeature(name, FeatureStage{2}, "$$$/Title=T", "$$$/Description=D", "QELMX-1",
                     VisibilityInAllClientApps{0}, EnablementChanges{1}, DefaultEnablement{enablement});
}

const FeatureEntry* Find(const std::vector<FeatureEntry>& entries, std::string_view name) {
  for (const FeatureEntry& entry : entries) {
    if (entry.name == name) return &entry;
  }
  return nullptr;
}

// Registered before main, as a library's static objects are.
const BetaFeature kEarlyFeature = MakeFeature("early", 0);

TEST(BetaFeatures, RegisterBeforeAnyRuntimeExists) {
  const std::vector<FeatureEntry> entries = GetRegisteredFeatures();
  const FeatureEntry* const early = Find(entries, "early");
  ASSERT_NE(early, nullptr);
  EXPECT_EQ(early->stage, 2U);
  EXPECT_EQ(early->titleKey, "$$$/Title=T");
  EXPECT_EQ(early->descriptionKey, "$$$/Description=D");
  EXPECT_EQ(early->trackingKey, "QELMX-1");
  EXPECT_EQ(early->visibility, 0U);
  EXPECT_EQ(early->changes, 1U);
  EXPECT_EQ(early->defaultEnablement, 0U);
}

TEST(BetaFeatures, StartInTheirDefaultPosition) {
  const BetaFeature off = MakeFeature("starts off", 0);
  const BetaFeature on = MakeFeature("starts on", 1);
  EXPECT_FALSE(IsFeatureEnabled("starts off"));
  EXPECT_TRUE(IsFeatureEnabled("starts on"));
}

TEST(BetaFeatures, AreSwitchedAtOnce) {
  const BetaFeature feature = MakeFeature("switched", 0);
  SwitchFeature("switched", true);
  EXPECT_TRUE(IsFeatureEnabled("switched"));
  SwitchFeature("switched", false);
  EXPECT_FALSE(IsFeatureEnabled("switched"));
}

TEST(BetaFeatures, ASwitchIsRememberedForAFeatureThatComesLaterOrAgain) {
  SwitchFeature("comes later", true);
  EXPECT_FALSE(IsFeatureEnabled("comes later")) << "not registered";
  {
    const BetaFeature feature = MakeFeature("comes later", 0);
    EXPECT_TRUE(IsFeatureEnabled("comes later"));
  }
  EXPECT_FALSE(IsFeatureEnabled("comes later")) << "gone";
  const BetaFeature again = MakeFeature("comes later", 0);
  EXPECT_TRUE(IsFeatureEnabled("comes later"));
}

TEST(BetaFeatures, ASwitchBeatsTheDefaultPosition) {
  const BetaFeature feature = MakeFeature("on by default", 1);
  SwitchFeature("on by default", false);
  EXPECT_FALSE(IsFeatureEnabled("on by default"));
}

TEST(BetaFeatures, ExistAsLongAsTheirObject) {
  std::optional<BetaFeature> feature;
  feature.emplace("brief", FeatureStage{2}, "", "", "", VisibilityInAllClientApps{0},
                  EnablementChanges{1}, DefaultEnablement{1});
  EXPECT_NE(Find(GetRegisteredFeatures(), "brief"), nullptr);
  feature.reset();
  EXPECT_EQ(Find(GetRegisteredFeatures(), "brief"), nullptr);
}

TEST(BetaFeatures, AreAskedFromAnyThread) {
  const BetaFeature feature = MakeFeature("asked", 0);
  std::atomic<bool> stop = false;
  std::thread asker([&stop] {
    while (!stop) IsFeatureEnabled("asked");
  });
  for (int i = 0; i < 500; ++i) {
    const BetaFeature other = MakeFeature("other", 1);
    SwitchFeature("asked", i % 2 == 0);
  }
  stop = true;
  asker.join();
}

}  // namespace

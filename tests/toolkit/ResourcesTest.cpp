#include "host/qelui/Resources.h"

#include <gtest/gtest.h>

#include "host/qelcore/Exceptions.h"
#include "standalone/runtime/Runtime.h"
#include "toolkit/OffMainThread.h"

namespace {

using qelcore::config::qel_exception;
using qelui::utility::GetResourceManager;
using qelui::utility::StyleResource;

class Resources : public testing::Test {
 private:
  standalone::Runtime runtime;
};

TEST_F(Resources, TheOutlinedHeaderRowIsLowerThanThePlainOne) {
  EXPECT_EQ(GetResourceManager().GetResource(10, 0), (StyleResource{.height = 24, .textInset = 6}));
  EXPECT_EQ(GetResourceManager().GetResource(10, 3), (StyleResource{.height = 20, .textInset = 6}));
}

TEST_F(Resources, AStyleOrVariantThatThereIsNoneOfIsAnError) {
  EXPECT_THROW(GetResourceManager().GetResource(10, 1), qel_exception);
  EXPECT_THROW(GetResourceManager().GetResource(10, 2), qel_exception);
  EXPECT_THROW(GetResourceManager().GetResource(9, 0), qel_exception);
  EXPECT_THROW(GetResourceManager().GetResource(3, 10), qel_exception);
}

TEST_F(Resources, AreTheSameForEveryCaller) {
  EXPECT_EQ(&GetResourceManager(), &GetResourceManager());
  EXPECT_EQ(&GetResourceManager().GetResource(10, 3), &GetResourceManager().GetResource(10, 3));
}

TEST_F(Resources, AreAskedForOnTheMainThread) {
  EXPECT_STOPS_OFF_MAIN_THREAD(GetResourceManager(), "GetResourceManager");
  const auto& manager = GetResourceManager();
  EXPECT_STOPS_OFF_MAIN_THREAD(manager.GetResource(10, 0), "ResourceManager::GetResource");
}

}  // namespace

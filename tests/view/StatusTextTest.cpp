#include "view/StatusText.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "standalone/runtime/Runtime.h"
#include "view/ViewFixture.h"

namespace Vantrel {
namespace {

TEST(StatusText, WithNothingSelectedCountsTheRows) {
  const standalone::Runtime runtime;
  EXPECT_EQ(MakeStatusText(0, 12), "12 Items");
  EXPECT_EQ(MakeStatusText(0, 0), "0 Items");
  EXPECT_EQ(MakeStatusText(0, 1), "1 Items");
}

TEST(StatusText, WithRowsSelectedCountsThemAmongAllRows) {
  const standalone::Runtime runtime;
  EXPECT_EQ(MakeStatusText(3, 12), "3 of 12 Item(s) Selected");
  EXPECT_EQ(MakeStatusText(12, 12), "12 of 12 Item(s) Selected");
}

TEST(StatusText, CountsBeyondThirtyTwoBits) {
  const standalone::Runtime runtime;
  const std::size_t most = std::numeric_limits<std::size_t>::max();
  const std::string digits = std::to_string(most);
  EXPECT_EQ(MakeStatusText(most, most), digits + " of " + digits + " Item(s) Selected");
}

using StatusLine = ViewFixture;

TEST_F(StatusLine, IsEmptyUntilTheTableHasRows) {
  CreateContents();
  EXPECT_EQ(GetStatus(), "");
  host.Settle();
  EXPECT_EQ(GetStatus(), "0 Items");
}

TEST_F(StatusLine, FollowsTheCountsThatTheTableAnnounces) {
  CreateContents();
  const auto& station = view->GetTree()->GetStationID();
  qelcore::messaging::BroadcastMessageOnMainThread(station,
                                                   TreeViewItemsSelectionChangedMessage(3, 12));
  EXPECT_EQ(GetStatus(), "3 of 12 Item(s) Selected");
  qelcore::messaging::BroadcastMessageOnMainThread(station,
                                                   TreeViewItemsSelectionChangedMessage(0, 12));
  EXPECT_EQ(GetStatus(), "12 Items");
}

}  // namespace
}  // namespace Vantrel

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "host/qelui/Node.h"
#include "standalone/runtime/Runtime.h"
#include "standalone/toolkit/RecordingDrawbot.h"
#include "toolkit/OffMainThread.h"

namespace {

using qelcore::Ref;
using qelcore::UTF8String;

class View final : public qelui::ui::UI_SubView {};

class NodeWatcher : public testing::Test {
 protected:
  /// How often the watcher is called while `operation` runs.
  template <typename Operation>
  int Count(Operation&& operation) {
    const int before = count;
    operation();
    return count - before;
  }

  standalone::Runtime runtime;
  Ref<View> view{new View};
  int count = 0;
};

TEST_F(NodeWatcher, HearsOfEachInvalidation) {
  view->UI_SetWatcher([this] { ++count; });
  view->UI_Invalidate();
  view->UI_Invalidate();
  EXPECT_EQ(count, 2);
}

TEST_F(NodeWatcher, NeedNotBeThere) {
  view->UI_Invalidate();
  view->UI_SetWatcher([this] { ++count; });
  view->UI_SetWatcher({});
  view->UI_Invalidate();
  EXPECT_EQ(count, 0);
}

TEST_F(NodeWatcher, ReplacesTheOneBefore) {
  std::string heard;
  view->UI_SetWatcher([&] { heard += "first"; });
  view->UI_SetWatcher([&] { heard += "second"; });
  view->UI_Invalidate();
  EXPECT_EQ(heard, "second");
}

TEST_F(NodeWatcher, MayReplaceItselfWhileItIsCalled) {
  std::string heard;
  auto kept = std::make_shared<std::string>("first");
  const std::weak_ptr<std::string> watched = kept;
  view->UI_SetWatcher([&, kept = std::move(kept)] {
    view->UI_SetWatcher([&] { heard += "second"; });
    heard += *kept;
  });
  view->UI_Invalidate();
  EXPECT_TRUE(watched.expired());
  view->UI_Invalidate();
  EXPECT_EQ(heard, "firstsecond");
}

TEST_F(NodeWatcher, MayLetGoOfTheControl) {
  view->UI_SetWatcher([this] { view.Reset(); });
  view->UI_Invalidate();
  EXPECT_FALSE(view);
}

TEST_F(NodeWatcher, GoesWithTheControl) {
  auto kept = std::make_shared<int>(0);
  const std::weak_ptr<int> watched = kept;
  view->UI_SetWatcher([kept = std::move(kept)] {});
  view.Reset();
  EXPECT_TRUE(watched.expired());
}

TEST_F(NodeWatcher, HearsOnlyOfRealChangesOfState) {
  view->UI_SetWatcher([this] { ++count; });
  EXPECT_EQ(Count([&] { view->UI_SetEnabled(true); }), 0);
  EXPECT_EQ(Count([&] { view->UI_SetEnabled(false); }), 1);
  EXPECT_EQ(Count([&] { view->UI_SetBounds({1, 2, 3, 4}); }), 1);
  EXPECT_EQ(Count([&] { view->UI_SetBounds({1, 2, 3, 4}); }), 0);
  EXPECT_EQ(Count([&] { view->UI_SetToolTip(UTF8String("tip"), 100); }), 1);
  EXPECT_EQ(Count([&] { view->UI_SetToolTip(UTF8String("tip"), 100); }), 0);
  EXPECT_EQ(Count([&] { view->UI_SetToolTip(UTF8String("tip"), 200); }), 1);
}

TEST_F(NodeWatcher, FindsTheNewStateInPlace) {
  bool wasEnabled = true;
  view->UI_SetWatcher([&] { wasEnabled = view->UI_IsEnabled(); });
  view->UI_SetEnabled(false);
  EXPECT_FALSE(wasEnabled);
}

TEST_F(NodeWatcher, StopsOffTheMainThread) {
  EXPECT_STOPS_OFF_MAIN_THREAD(view->UI_Invalidate(), "UI_Node::UI_Invalidate");
  EXPECT_STOPS_OFF_MAIN_THREAD(view->UI_SetWatcher({}), "UI_Node::UI_SetWatcher");
}

TEST_F(NodeWatcher, APlainViewDrawsNothing) {
  standalone::RecordingDrawbot drawbot;
  view->UI_SetBounds({0, 0, 100, 100});
  view->UI_Draw(drawbot);
  EXPECT_TRUE(drawbot.GetFills().empty());
  EXPECT_TRUE(drawbot.GetStrokes().empty());
  EXPECT_TRUE(drawbot.GetTextLines().empty());
  EXPECT_STOPS_OFF_MAIN_THREAD(view->UI_Draw(drawbot), "UI_SubView::UI_Draw");
}

}  // namespace

#include "host/UIF/TabView.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "host/qelui/Controls.h"
#include "standalone/runtime/Runtime.h"
#include "standalone/toolkit/RecordingDrawbot.h"
#include "toolkit/OffMainThread.h"

namespace {

using qelcore::UTF8String;
using qelcore::memory::MakeShareable;
using qelui::Rect;
using testing::ElementsAre;

constexpr bool kIsActivated = true;

/// Notes what it finds when its contents are asked for.
class ProbeView final : public UIF::TabView {
 public:
  ProbeView() : UIF::TabView(UIF::Application::Instance()) {}

  bool isFailing = false;
  int contentsCreated = 0;
  std::string nameThen;
  Rect boundsThen;
  std::vector<Rect> layouts;

 protected:
  void LayoutSelf(const Rect& room) override {
    EXPECT_EQ(room, GetBounds());
    layouts.push_back(room);
  }
  void CreateContentsSelf() override {
    ++contentsCreated;
    nameThen = GetName().View();
    boundsThen = GetBounds();
    if (isFailing) throw std::runtime_error("no contents");
  }
};

class PlainView final : public UIF::TabView {
 public:
  PlainView() : UIF::TabView(UIF::Application::Instance()) {}
};

class TabView : public testing::Test {
 protected:
  void Create(const Rect& room) {
    const auto frame = std::make_shared<UIF::WorkspaceFrame>(room);
    view->Create("Handler", UTF8String("Title"), frame, kIsActivated);
  }

  standalone::Runtime runtime;
  std::shared_ptr<ProbeView> view = MakeShareable<ProbeView>();
};

TEST_F(TabView, CreatedItHasRoomAndTitleBeforeItsContents) {
  Create({5, 6, 700, 300});
  EXPECT_EQ(view->contentsCreated, 1);
  EXPECT_EQ(view->nameThen, "Title");
  EXPECT_EQ(view->boundsThen, (Rect{5, 6, 700, 300}));
}

TEST_F(TabView, AFrameOfNegativeSizeGivesNoRoom) {
  Create({5, 6, -700, -300});
  EXPECT_EQ(view->GetBounds(), (Rect{5, 6, 0, 0}));
}

TEST_F(TabView, AFailureOfItsContentsLeavesCreate) {
  view->isFailing = true;
  EXPECT_THROW(Create({}), std::runtime_error);
  EXPECT_EQ(view->GetName(), "Title");
}

TEST_F(TabView, AnotherRoomIsTakenAndLaidOut) {
  Create({5, 6, 700, 300});
  EXPECT_TRUE(view->layouts.empty()) << "its contents are placed when they are created";
  view->Resize({7, 8, 900, 400});
  view->Resize({7, 8, -1, 20});
  EXPECT_THAT(view->layouts, ElementsAre(Rect{7, 8, 900, 400}, Rect{7, 8, 0, 20}));
}

TEST_F(TabView, OneThatOverridesNothingHasNoLayoutNoBackgroundAndNoWingMenu) {
  const auto plain = MakeShareable<PlainView>();
  plain->Resize({0, 0, 10, 10});
  standalone::RecordingDrawbot drawbot;
  plain->DrawBackground(drawbot);
  EXPECT_TRUE(drawbot.GetFills().empty());
  EXPECT_TRUE(plain->GetWingMenuID().empty());
}

TEST_F(TabView, TakesANewName) {
  view->SetName(UTF8String("Sequence Index: Reel 1"));
  EXPECT_EQ(view->GetName(), "Sequence Index: Reel 1");
}

TEST_F(TabView, KeepsItsControlsInOrderUntilItGoes) {
  const qelcore::Ref first(new qelui::controls::UI_PictureButton());
  qelcore::Ref second(new qelui::controls::UI_PictureButton());
  const qelcore::WeakRef weak(second.Get());
  view->AddChildView(first);
  view->AddChildView(second);
  EXPECT_EQ(view->GetChildViews()[0].Get(), first.Get());
  EXPECT_EQ(view->GetChildViews()[1].Get(), second.Get());
  second.Reset();
  EXPECT_TRUE(weak.Lock());
  view.reset();
  EXPECT_FALSE(weak.Lock());
}

TEST_F(TabView, OperationsStopOffTheMainThread) {
  EXPECT_STOPS_OFF_MAIN_THREAD(Create({}), "TabView::Create");
  EXPECT_STOPS_OFF_MAIN_THREAD(view->Resize({}), "TabView::Resize");
  EXPECT_STOPS_OFF_MAIN_THREAD(view->SetName({}), "TabView::SetName");
  EXPECT_STOPS_OFF_MAIN_THREAD(view->AddChildView({}), "TabView::AddChildView");
}

class ProbeCreator final : public UIF::TabViewCreator {
 public:
  std::shared_ptr<UIF::TabView> CreateTabView(
      const std::shared_ptr<UIF::WorkspaceFrame>& newFrame) override {
    frame = newFrame;
    return MakeShareable<ProbeView>();
  }
  std::shared_ptr<UIF::WorkspaceFrame> frame;
};

TEST(TabViewCreator, CreatesItsTabViewWhenTheWorkspaceAsks) {
  standalone::Runtime runtime;
  ProbeCreator creator;
  const auto frame = std::make_shared<UIF::WorkspaceFrame>(Rect{});
  EXPECT_NE(creator.CreateTabViewSelf(frame), nullptr);
  EXPECT_EQ(creator.frame, frame);
}

TEST(TabViewCreator, ByDefaultAClosedTabGoesAndItsStateIsStored) {
  const ProbeCreator creator;
  EXPECT_FALSE(creator.ShouldHideWhenClosed());
  EXPECT_FALSE(creator.ShouldRestoreWithWorkspace());
  EXPECT_TRUE(creator.ShouldSaveStateWhenDestroyed());
}

}  // namespace

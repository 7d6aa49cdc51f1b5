#include "host/qelui/Menu.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "host/qelcore/Threads.h"
#include "host/qelui/Controls.h"
#include "standalone/runtime/Runtime.h"
#include "support/Answers.h"
#include "toolkit/OffMainThread.h"

namespace {

using qelcore::UTF8String;
using qelui::ui::kMenuDismissed;
using qelui::ui::UI_DoContextMenu;
using standalone::MenuItem;
using testing::ElementsAre;

constexpr std::uint32_t kCut = 7;
constexpr std::uint32_t kCopy = 8;
constexpr std::uint32_t kUnknown = 9;

class ContextMenu : public testing::Test {
 protected:
  ContextMenu() {
    menu->AppendItem(UTF8String("Cut"), kCut);
    menu->AppendSeparator();
    menu->AppendItem(UTF8String("Copy"), kCopy);
  }
  std::uint32_t Show() { return UI_DoContextMenu(menu, *node, {3, 4}); }

  standalone::Runtime runtime;
  qelcore::Ref<qelui::ui::UI_Node> node{new qelui::controls::UI_PictureButton()};
  std::shared_ptr<qelui::ui::IOSMenu> menu = qelui::utility::CreateOSMenu();
};

TEST_F(ContextMenu, ShowsItsItemsInOrderAtTheGivenPlace) {
  Answers answers;
  menu->SetItemChecked(kCopy, true);
  Show();
  std::vector<std::string> shown;
  for (const MenuItem& item : answers.menuItems) {
    const std::string mark = item.isChecked ? "+" : "";
    shown.push_back(mark + std::string(item.text.View()) + ":" + std::to_string(item.commandID));
  }
  EXPECT_THAT(shown, ElementsAre("Cut:7", ":0", "+Copy:8"));
  EXPECT_EQ(answers.menuPosition, (qelui::Point{3, 4}));
}

TEST_F(ContextMenu, AnswersTheChosenCommand) {
  Answers answers;
  answers.menuAnswer = [] { return kCopy; };
  EXPECT_EQ(Show(), kCopy);
}

TEST_F(ContextMenu, ChoosingAnItemLeavesItsCheckMarkAlone) {
  Answers answers;
  answers.menuAnswer = [] { return kCut; };
  menu->SetItemChecked(kCut, true);
  Show();
  EXPECT_TRUE(menu->IsItemChecked(kCut));
  menu->SetItemChecked(kCut, false);
  Show();
  EXPECT_FALSE(menu->IsItemChecked(kCut));
}

TEST_F(ContextMenu, AnAnswerThatIsNotInTheMenuDismissesIt) {
  Answers answers;
  answers.menuAnswer = [] { return kUnknown; };
  EXPECT_EQ(Show(), kMenuDismissed);
}

TEST_F(ContextMenu, WithNobodyToAnswerItIsDismissed) {
  EXPECT_EQ(Show(), kMenuDismissed);
}

TEST_F(ContextMenu, AnUnknownItemIsNeverChecked) {
  menu->SetItemChecked(kUnknown, true);
  EXPECT_FALSE(menu->IsItemChecked(kUnknown));
}

TEST_F(ContextMenu, OnlyQueuedFunctionsThatAllowItRunWhileItIsOpen) {
  Answers answers;
  std::vector<std::string> ran;
  qelcore::threads::CallFromMainThread([&] { ran.push_back("outermost only"); }, 0, false);
  qelcore::threads::CallFromMainThread([&] { ran.push_back("nested too"); }, 0, true);
  answers.menuAnswer = [&] {
    runtime.GetMainQueue().RunUntilEmpty();
    EXPECT_THAT(ran, ElementsAre("nested too"));
    return kMenuDismissed;
  };
  Show();
  runtime.GetMainQueue().RunUntilEmpty();
  EXPECT_THAT(ran, ElementsAre("nested too", "outermost only"));
}

TEST_F(ContextMenu, AFailureWhileItIsOpenReachesTheCallerAndEndsTheNestedLoop) {
  Answers answers;
  answers.menuAnswer = []() -> std::uint32_t { throw std::runtime_error("no screen"); };
  EXPECT_THROW(Show(), std::runtime_error);
  bool hasRun = false;
  qelcore::threads::CallFromMainThread([&] { hasRun = true; }, 0, false);
  runtime.GetMainQueue().RunUntilEmpty();
  EXPECT_TRUE(hasRun);
}

TEST_F(ContextMenu, OperationsStopOffTheMainThread) {
  EXPECT_STOPS_OFF_MAIN_THREAD(Show(), "UI_DoContextMenu");
  EXPECT_STOPS_OFF_MAIN_THREAD(menu->AppendItem({}, kUnknown), "IOSMenu::AppendItem");
  EXPECT_STOPS_OFF_MAIN_THREAD(qelui::utility::CreateOSMenu(), "CreateOSMenu");
}

}  // namespace

#include "standalone/window/MainQueueNotifier.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QEventLoop>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <chrono>
#include <memory>
#include <stdexcept>
#include <thread>

#include "host/qelui/Menu.h"
#include "standalone/window/PopupMenu.h"
#include "support/Answers.h"
#include "support/SteppedHost.h"
#include "window/WindowFixture.h"

namespace standalone {
namespace {

using std::chrono::milliseconds;
constexpr milliseconds kNow{0};
constexpr bool kAlsoInNestedLoops = true;

class Notifier : public WindowFixture {
 protected:
  void Post(std::function<void()> function, milliseconds delay = kNow,
            bool alsoInNestedLoops = kAlsoInNestedLoops) {
    host.GetMainQueue().Post(std::move(function), delay, alsoInNestedLoops);
  }
  static bool WaitFor(const bool& flag) {
    return QTest::qWaitFor([&] { return flag; });
  }

  std::unique_ptr<MainQueueNotifier> notifier =
      std::make_unique<MainQueueNotifier>(host.GetMainQueue());
};

TEST_F(Notifier, APostedFunctionRunsInTheEventLoop) {
  bool hasRun = false;
  Post([&] { hasRun = true; });
  EXPECT_FALSE(hasRun);
  EXPECT_TRUE(WaitFor(hasRun));
}

TEST_F(Notifier, AFunctionPostedByAnotherThreadRunsOnTheMainThread) {
  bool hasRun = false;
  std::thread::id runner;
  std::thread([&] {
    Post([&] {
      runner = std::this_thread::get_id();
      hasRun = true;
    });
  }).join();
  EXPECT_TRUE(WaitFor(hasRun));
  EXPECT_EQ(runner, std::this_thread::get_id());
}

TEST_F(Notifier, WhatWasPostedBeforeItRunsToo) {
  notifier.reset();
  bool hasRun = false;
  bool hasDelayedRun = false;
  Post([&] { hasRun = true; });
  Post([&] { hasDelayedRun = true; }, milliseconds(5));
  host.GetMainQueue().RunOne();
  notifier = std::make_unique<MainQueueNotifier>(host.GetMainQueue());
  EXPECT_TRUE(WaitFor(hasDelayedRun));
  EXPECT_TRUE(hasRun);
}

TEST_F(Notifier, ADelayedFunctionRunsWhenItIsDue) {
  bool hasRun = false;
  const auto start = std::chrono::steady_clock::now();
  Post([&] { hasRun = true; }, milliseconds(20));
  EXPECT_TRUE(WaitFor(hasRun));
  EXPECT_GE(std::chrono::steady_clock::now() - start, milliseconds(20));
}

TEST_F(Notifier, AnEarlierDelayOvertakesALaterOne) {
  bool hasRun = false;
  bool hasLateRun = false;
  Post([&] { hasLateRun = true; }, std::chrono::hours(24 * 300));
  Post([&] { hasRun = true; }, milliseconds(1));
  EXPECT_TRUE(WaitFor(hasRun));
  EXPECT_FALSE(hasLateRun);
  host.GetMainQueue().DropAll();
}

TEST_F(Notifier, InputStaysAliveWhileFunctionsPostOthers) {
  bool isOver = false;
  std::function<void()> again = [&] {
    if (!isOver) Post(again);
  };
  Post(again);
  // A chain without end; the timer stands for the user's input.
  QTimer::singleShot(0, qApp, [&] { isOver = true; });
  EXPECT_TRUE(WaitFor(isOver));
  Settle();
}

TEST_F(Notifier, FunctionsRunWhileAMenuIsOpen) {
  Answers answers;
  const auto tree = MakeTree(1);
  const auto widget = Show(tree);
  bool hasRun = false;
  bool hasOutermostRun = false;
  answers.menuAnswer = [&] {
    Post([&] { hasOutermostRun = true; }, kNow, !kAlsoInNestedLoops);
    Post(
        [&] {
          hasRun = true;
          QApplication::activePopupWidget()->close();
        },
        milliseconds(1));
    return ChooseFromMenu({{qelcore::UTF8String("Item"), 1, false}}, *tree, {});
  };
  const auto menu = qelui::utility::CreateOSMenu();
  menu->AppendItem(qelcore::UTF8String("Item"), 1);
  qelui::ui::UI_DoContextMenu(menu, *tree, {});
  EXPECT_TRUE(hasRun);
  EXPECT_FALSE(hasOutermostRun);
  EXPECT_TRUE(WaitFor(hasOutermostRun));
}

TEST_F(Notifier, AFunctionMayEndTheNotifier) {
  bool hasRun = false;
  Post([&] {
    notifier.reset();
    hasRun = true;
  });
  EXPECT_TRUE(WaitFor(hasRun));
}

TEST_F(Notifier, AFailureIsLoggedAndTheNextFunctionRuns) {
  bool hasRun = false;
  Post([] { throw std::runtime_error("no window"); });
  Post([&] { hasRun = true; });
  EXPECT_TRUE(WaitFor(hasRun));
  EXPECT_EQ(host.TakeFailures().size(), 1U);
}

}  // namespace
}  // namespace standalone

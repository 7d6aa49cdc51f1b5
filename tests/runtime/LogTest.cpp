#include "standalone/runtime/Log.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <thread>
#include <vector>

#include "standalone/runtime/Guard.h"
#include "standalone/runtime/Runtime.h"

namespace {

using standalone::Log;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(Log, HandsFailuresOutOnce) {
  Log log;
  log.ReportFailure("task", "first");
  log.ReportFailure("task", std::make_exception_ptr(std::runtime_error("second")));
  log.ReportFailure("task", std::make_exception_ptr(3));
  log.ReportFailure("task", std::exception_ptr());
  EXPECT_THAT(log.TakeFailures(),
              ElementsAre("task: first", "task: second", "task: a failure of an unknown kind"));
  EXPECT_THAT(log.TakeFailures(), IsEmpty());
}

TEST(Log, TellsItsObserver) {
  Log log;
  std::vector<std::string> seen;
  log.SetObserver([&](const std::string& failure) {
    seen.push_back(failure);
    if (seen.size() == 1) log.ReportFailure("observer", "asked again");
  });
  log.ReportFailure("task", "failed");
  EXPECT_THAT(seen, ElementsAre("task: failed", "observer: asked again"));
  log.SetObserver(nullptr);
  log.ReportFailure("task", "unseen");
  EXPECT_EQ(seen.size(), 2U);
}

TEST(Log, SurvivesAnObserverThatFails) {
  Log log;
  log.SetObserver([](const std::string&) { throw std::runtime_error("no"); });
  log.ReportFailure("task", "failed");
  EXPECT_THAT(log.TakeFailures(), ElementsAre("task: failed"));
}

TEST(Log, LetsGoOfAnExceptionAtOnce) {
  Log log;
  const auto token = std::make_shared<int>(1);
  struct Failure : std::runtime_error {
    explicit Failure(std::shared_ptr<int> held) : runtime_error("held"), held(std::move(held)) {}
    std::shared_ptr<int> held;
  };
  log.ReportFailure("task", std::make_exception_ptr(Failure(token)));
  EXPECT_EQ(token.use_count(), 1);
}

TEST(Log, TakesFailuresFromManyThreads) {
  Log log;
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([&log] {
      for (int turn = 0; turn < 250; ++turn) log.ReportFailure("task", "failed");
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(log.TakeFailures().size(), 1000U);
}

TEST(Guard, SendsAFailureToTheRuntimesLog) {
  standalone::Runtime runtime;
  EXPECT_TRUE(standalone::CallGuarded("callback", [] {}));
  EXPECT_FALSE(standalone::CallGuarded("callback", [] { throw std::runtime_error("bad row"); }));
  EXPECT_THAT(runtime.GetLog().TakeFailures(), ElementsAre("callback: bad row"));
}

TEST(Guard, WorksWithoutARuntime) {
  EXPECT_FALSE(standalone::CallGuarded("callback", [] { throw std::runtime_error("bad row"); }));
}

}  // namespace

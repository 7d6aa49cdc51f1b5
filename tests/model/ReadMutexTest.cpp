#include "host/BE/ReadMutex.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "host/qelcore/Exceptions.h"
#include "model/ModelFixture.h"

namespace {

class BackendReadLock : public ModelTest {
 protected:
  void SetUp() override { sequence = model.Add(drafts::MakeSequence("Old")); }
  qelcore::Ref<BE::ISequence> sequence;
};

TEST_F(BackendReadLock, AThreadMayTakeItAgain) {
  BE::ReadMutex& lock = BE::GetBackendReadLock();
  lock.Lock();
  lock.Lock();
  lock.Unlock();
  EXPECT_THROW(model.project.ReplaceSequence(sequence, drafts::MakeSequence("New")),
               qelcore::config::qel_exception);
  lock.Unlock();
  model.project.ReplaceSequence(sequence, drafts::MakeSequence("New"));
  EXPECT_EQ(sequence->GetName(), "New");
}

TEST_F(BackendReadLock, NothingIsPublishedWhileAnotherThreadHoldsIt) {
  std::atomic<bool> isHeld{false};
  std::atomic<bool> isPublishing{false};
  std::string seenAtFirst;
  std::string seenAtLast;
  std::thread reader([&] {
    BE::GetBackendReadLock().Lock();
    isHeld = true;
    seenAtFirst = sequence->GetName().View();
    while (!isPublishing) std::this_thread::yield();
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    seenAtLast = sequence->GetName().View();
    BE::GetBackendReadLock().Unlock();
  });
  while (!isHeld) std::this_thread::yield();
  isPublishing = true;
  model.project.ReplaceSequence(sequence, drafts::MakeSequence("New"));
  reader.join();
  EXPECT_EQ(seenAtFirst, "Old");
  EXPECT_EQ(seenAtLast, "Old");
  EXPECT_EQ(sequence->GetName(), "New");
}

TEST_F(BackendReadLock, ManyThreadsHoldItAtOnce) {
  BE::GetBackendReadLock().Lock();
  std::thread other([] {
    BE::GetBackendReadLock().Lock();
    BE::GetBackendReadLock().Unlock();
  });
  other.join();
  BE::GetBackendReadLock().Unlock();
}

}  // namespace

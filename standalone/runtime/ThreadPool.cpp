#include "standalone/runtime/ThreadPool.h"

#include <utility>

#include "standalone/runtime/Guard.h"

namespace standalone {

ThreadPool::ThreadPool(unsigned threadCount) : hasThreads(threadCount > 0) {
  threads.reserve(threadCount);
  try {
    for (unsigned i = 0; i < threadCount; ++i) threads.emplace_back([this] { RunTasks(); });
  } catch (...) {
    Stop();
    throw;
  }
}

ThreadPool::~ThreadPool() {
  Stop();
}

void ThreadPool::Submit(std::function<void()> task) {
  {
    const std::scoped_lock lock(mutex);
    if (isStopping) return;  // The argument is destroyed by the caller, without the lock.
    tasks.push_back(std::move(task));
  }
  taskWaits.notify_one();
}

void ThreadPool::Drain() {
  if (!hasThreads) {
    RunWaitingTasks();
    return;
  }
  std::unique_lock lock(mutex);
  becameIdle.wait(lock, [this] { return tasks.empty() && runningTasks == 0; });
}

bool ThreadPool::IsIdle() const {
  const std::scoped_lock lock(mutex);
  return tasks.empty() && runningTasks == 0;
}

void ThreadPool::Stop() {
  {
    std::deque<std::function<void()>> dropped;
    const std::scoped_lock lock(mutex);
    isStopping = true;
    dropped.swap(tasks);
  }
  taskWaits.notify_all();
  for (std::thread& thread : threads) thread.join();
  threads.clear();
}

void ThreadPool::RunTasks() {
  for (std::function<void()> task; AwaitTask(task);) Run(task);
}

void ThreadPool::RunWaitingTasks() {
  for (std::function<void()> task; TakeTask(task);) Run(task);
}

void ThreadPool::Run(std::function<void()>& task) {
  CallGuarded("task", task);
  // Before the pool counts the task as done: what it holds may live in a library that is released as
  // soon as the pool is idle.
  task = nullptr;
  CountAsDone();
}

bool ThreadPool::AwaitTask(std::function<void()>& task) {
  std::unique_lock lock(mutex);
  taskWaits.wait(lock, [this] { return isStopping || !tasks.empty(); });
  return TakeOldest(task);
}

bool ThreadPool::TakeTask(std::function<void()>& task) {
  const std::scoped_lock lock(mutex);
  return TakeOldest(task);
}

bool ThreadPool::TakeOldest(std::function<void()>& task) {
  if (tasks.empty()) return false;
  task = std::move(tasks.front());
  tasks.pop_front();
  ++runningTasks;
  return true;
}

void ThreadPool::CountAsDone() {
  const std::scoped_lock lock(mutex);
  --runningTasks;
  if (runningTasks == 0 && tasks.empty()) becameIdle.notify_all();
}

}  // namespace standalone

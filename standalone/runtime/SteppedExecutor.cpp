#include "standalone/runtime/SteppedExecutor.h"

#include <utility>

#include "standalone/runtime/Guard.h"

namespace standalone {

SteppedExecutor::SteppedExecutor() = default;
SteppedExecutor::~SteppedExecutor() {
  DropAll();
}

void SteppedExecutor::Submit(std::function<void()> task) {
  const std::scoped_lock lock(mutex);
  tasks.push_back(std::move(task));
}

bool SteppedExecutor::RunOne() {
  const std::function<void()> task = TakeOldest();
  if (!task) return false;
  CallGuarded("task", task);
  return true;
}

std::size_t SteppedExecutor::RunUntilEmpty() {
  std::size_t count = 0;
  while (RunOne()) ++count;
  return count;
}

void SteppedExecutor::DropAll() {
  // One by one: a task that goes may submit another.
  while (TakeOldest()) continue;
}

std::size_t SteppedExecutor::CountWaiting() const {
  const std::scoped_lock lock(mutex);
  return tasks.size();
}

std::function<void()> SteppedExecutor::TakeOldest() {
  const std::scoped_lock lock(mutex);
  if (tasks.empty()) return nullptr;
  std::function<void()> task = std::move(tasks.front());
  tasks.pop_front();
  return task;
}

}  // namespace standalone

#pragma once

#include <valgrind/callgrind.h>

namespace budgets {

/// Counts instructions as long as it lives, in a run under callgrind that does not count from its
/// start.
class InstructionCount {
 public:
  InstructionCount() { CALLGRIND_START_INSTRUMENTATION; }
  ~InstructionCount() { CALLGRIND_STOP_INSTRUMENTATION; }
  InstructionCount(const InstructionCount&) = delete;
  InstructionCount& operator=(const InstructionCount&) = delete;
};

}  // namespace budgets

#pragma once

#include "host/BE/VisitSequence.h"
#include "host/qelcore/Reference.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// What BE::VisitSequence asks of a sequence: to show what lies below it.
class STANDALONE_API VisitableSequence {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("standalone::VisitableSequence");

  /// Visits the track groups, the tracks and the items as they were when the call began. An exception
  /// of the visitor leaves this call. [any-thread]
  virtual void VisitChildren(const BE::SequenceVisitor& visitor) const = 0;

 protected:
  ~VisitableSequence() = default;
};

}  // namespace standalone

#include "host/BE/VisitSequence.h"

#include "standalone/model/VisitableSequence.h"

namespace BE {

void VisitSequence(const qelcore::Ref<ISequence>& sequence, const SequenceVisitor& visitor) {
  ISequence& root = qelcore::Required(sequence);
  if (visitor(root) != VisitorStatus::kContinue) return;
  if (const auto* const below = qelcore::FindInterface<standalone::VisitableSequence>(&root)) {
    below->VisitChildren(visitor);
  }
}

}  // namespace BE

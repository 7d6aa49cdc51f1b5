#pragma once

#include "host/BE/Model.h"
#include "host/MZ/Sequences.h"
#include "host/qelcore/Reference.h"

namespace Vantrel {

/// The project that a sequence belongs to, shown or not, or empty. [any-thread]
inline qelcore::Ref<BE::IProject> FindParentProject(const qelcore::Ref<BE::ISequence>& sequence) {
  constexpr bool kSearchParents = true;
  return MZ::SequenceUtils::GetSequenceParentProject(sequence, kSearchParents);
}

}  // namespace Vantrel

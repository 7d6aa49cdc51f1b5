#pragma once

#include <cstdint>
#include <functional>

#include "host/BE/Model.h"
#include "host/HostAPI.h"
#include "host/qelcore/Reference.h"

namespace BE {

/// A visitor's answer.
enum class VisitorStatus : std::uint32_t {
  kContinue = 1,      ///< Go on into this node's children.
  kDoNotDescend = 2,  ///< Leave this node's children out.
};

/// Sees one node: the sequence, a track group, a track, or a track item; ask for its interfaces. The
/// node is borrowed for the call.
using SequenceVisitor = std::function<VisitorStatus(qelcore::IUnknown& node)>;

/// Visits the sequence, then its track groups, each with its tracks from the lowest, each with its
/// items in time order (gaps, clips, transitions, the open filler). An exception of the visitor leaves
/// this call. [any-thread] under read lock. Throws: null_pointer_exception for an empty sequence.
HOST_API void VisitSequence(const qelcore::Ref<ISequence>& sequence, const SequenceVisitor& visitor);

}  // namespace BE

#pragma once

#include "data/FilterGroups.h"
#include "host/qelcore/UTF8String.h"

namespace Vantrel {

/// Whether one of a row's texts contains `loweredText`, which the predicate keeps. Letters "A" to "Z"
/// match in either case, all other bytes exactly. Searched are, in this order: clip name, comment,
/// description, codec, source clip name, proxy path, missing effects, fonts used and missing,
/// transitions, effects, video info, and the frame or sample rate. [any-thread]
/// The predicate raises the host's null-pointer error for a row without track item, and for a clip item
/// without clip; without master clip there is no comment and no description.
FilterPredicate MakeSearchPredicate(const qelcore::UTF8String& loweredText);

}  // namespace Vantrel

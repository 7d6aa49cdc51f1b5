#pragma once

#include "data/ListText.h"
#include "data/TextShare.h"
#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"

namespace Vantrel {

/// The names of the transitions at the start ("[IN]: Cross Dissolve") and at the end ("[OUT]: ") of a
/// clip. A missing transition stands in the first list only, under the same prefix. [any-thread]
void ScanTransitions(const qelcore::Ref<BE::ITrackItem>& trackItem, TextShare& texts,
                     ListTexts& transitions);

}  // namespace Vantrel

#pragma once

#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"
#include "host/qelcore/UTF8String.h"

namespace Vantrel {

/// The name of the camera that a multi-camera clip shows; empty for other clips. [any-thread]
/// Throws: null_pointer_exception for an empty item.
qelcore::UTF8String MulticamCameraText(const qelcore::Ref<BE::ITrackItem>& trackItem);

}  // namespace Vantrel

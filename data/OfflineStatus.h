#pragma once

#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"
#include "host/qelcore/UTF8String.h"

namespace Vantrel {

/// What keeps a clip's media from playing: why it is offline, or else "Pending Connection", "Media
/// Growing" or "Pending Relink", the first that holds. Empty when nothing does, or without media.
/// [any-thread]
qelcore::UTF8String OfflineStatusText(qelcore::Borrowed<BE::IMedia> media);

}  // namespace Vantrel

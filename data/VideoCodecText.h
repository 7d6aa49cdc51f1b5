#pragma once

#include "host/BE/MediaTypes.h"
#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"
#include "host/qelcore/UTF8String.h"

namespace Vantrel {

/// The codec of picture media that is read and online: its name, or the stream's four-character code
/// where there is none. Empty for sound, for media that is made, offline or without picture.
/// [any-thread]
qelcore::UTF8String VideoCodecText(const BE::MediaType& mediaType, qelcore::Borrowed<BE::IMedia> media);

}  // namespace Vantrel

#pragma once

#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"
#include "host/qelcore/UTF8String.h"

/// Name and path of a media's file; empty for media without a file, or without media. [any-thread]
namespace Vantrel {

qelcore::UTF8String FileNameText(qelcore::Borrowed<BE::IMedia> media);
qelcore::UTF8String FilePathText(qelcore::Borrowed<BE::IMedia> media);

}  // namespace Vantrel

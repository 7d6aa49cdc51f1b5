#pragma once

#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"
#include "host/qelcore/UTF8String.h"

/// What people have noted on a project item; empty without one. [any-thread]
namespace Vantrel {

/// The project item that a track item's master clip belongs to. Empty without master clip or project
/// item.
qelcore::Borrowed<BE::IProjectItem> FindProjectItem(const qelcore::Ref<BE::ITrackItem>& trackItem);

qelcore::UTF8String CommentText(qelcore::Borrowed<BE::IProjectItem> item);
qelcore::UTF8String DescriptionText(qelcore::Borrowed<BE::IProjectItem> item);
qelcore::UTF8String TapeNameText(qelcore::Borrowed<BE::IProjectItem> item);

}  // namespace Vantrel

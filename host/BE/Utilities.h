#pragma once

#include "host/BE/Model.h"
#include "host/HostAPI.h"
#include "host/MZ/TrackItemSelection.h"
#include "host/qelcore/Borrowed.h"
#include "host/qelcore/Reference.h"
#include "host/qelmediatypes/TickTime.h"

/// Questions about the model. [any-thread]; an empty argument gives an empty or neutral answer.
namespace BE {

namespace TrackItemUtils {
/// The clip of a clip item, and what that clip plays a stretch of; or empty.
HOST_API qelcore::Borrowed<IClip> GetClip(const qelcore::Ref<ITrackItem>& trackItem);
HOST_API qelcore::Borrowed<IChildClip> GetChildClip(const qelcore::Ref<ITrackItem>& trackItem);
/// The master clip of a clip item, or empty.
HOST_API qelcore::Borrowed<IMasterClip> GetMasterClip(const qelcore::Ref<ITrackItem>& trackItem);
/// The transition at the start, or at the end, of a clip item, or empty.
HOST_API qelcore::Borrowed<ITransition> GetHeadTransition(const qelcore::Ref<ITrackItem>& trackItem);
HOST_API qelcore::Borrowed<ITransition> GetTailTransition(const qelcore::Ref<ITrackItem>& trackItem);
}  // namespace TrackItemUtils

namespace MasterClipUtils {
/// The media that stands in for the master clip's, or empty.
HOST_API qelcore::Borrowed<IMedia> GetProxyMedia(qelcore::Borrowed<IMasterClip> masterClip);
/// True when the master clip is one still picture.
HOST_API bool IsStill(qelcore::Borrowed<IMasterClip> masterClip);
/// The project item that the master clip belongs to, or empty.
HOST_API qelcore::Borrowed<IProjectItem> GetProjectItem(qelcore::Borrowed<IMasterClip> masterClip);
}  // namespace MasterClipUtils

namespace MediaUtils {
/// True for media that is made, not read: titles, colour mattes, nested sequences.
HOST_API bool IsSynthetic(qelcore::Borrowed<IMedia> media);
}  // namespace MediaUtils

namespace SequenceUtils {
/// The time that the sequence's first frame carries; 0 without a sequence. May be negative.
HOST_API qelmediatypes::TickTime GetZeroPoint(const qelcore::Ref<ISequence>& sequence);
}  // namespace SequenceUtils

namespace TrackItemSelectionFactory {
/// A selection of one track item, which it borrows: valid as long as the item. [any-thread] Throws:
/// null_pointer_exception for an empty item.
HOST_API MZ::TrackItemSelection CreateSelection(const qelcore::Ref<ITrackItem>& trackItem);
}  // namespace TrackItemSelectionFactory

/// The project that holds the clip's proxy, or empty.
HOST_API qelcore::Ref<IProject> GetContainingProxyProject(qelcore::Borrowed<IClip> clip);

}  // namespace BE

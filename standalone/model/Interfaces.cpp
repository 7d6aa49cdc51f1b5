#include "host/BE/Model.h"
#include "host/ML/Player.h"

// The destructors are defined here so that each interface has one home for its type information.
namespace BE {

INotification::~INotification() = default;
ISequenceContent::~ISequenceContent() = default;
ISequenceTrackGroups::~ISequenceTrackGroups() = default;
IProject::~IProject() = default;
ISequence::~ISequence() = default;
ITrackGroup::~ITrackGroup() = default;
ITrack::~ITrack() = default;
ITrackItem::~ITrackItem() = default;
IVideoSource::~IVideoSource() = default;
IOfflineReason::~IOfflineReason() = default;
IMedia::~IMedia() = default;
IClip::~IClip() = default;
IComponentParam::~IComponentParam() = default;
IComponent::~IComponent() = default;
IComponentOwner::~IComponentOwner() = default;
ITransition::~ITransition() = default;
IMasterClip::~IMasterClip() = default;
IChildClip::~IChildClip() = default;
IProjectItem::~IProjectItem() = default;

}  // namespace BE

namespace ML {

IPlayer::~IPlayer() = default;

}  // namespace ML

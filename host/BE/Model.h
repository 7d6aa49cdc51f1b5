#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "host/BE/MediaTypes.h"
#include "host/HostAPI.h"
#include "host/MF/BinaryData.h"
#include "host/qelcore/Borrowed.h"
#include "host/qelcore/Files.h"
#include "host/qelcore/Messaging.h"
#include "host/qelcore/Reference.h"
#include "host/qelcore/UTF8String.h"
#include "host/qelmediatypes/TickTime.h"

/// The project and sequence model.
///
/// The model is published, not edited in place: what a track item reaches (its track, clip, media,
/// components) never changes once published, an edit puts new objects in place of the old ones, and
/// the old ones live as long as somebody holds them. So every operation of these interfaces is
/// [any-thread], without a lock, and stays defined for items that have left their sequence. The
/// sequence itself keeps its identity; each of its answers is taken from what is published at that
/// moment. Only a pass that must see one state from beginning to end takes the read lock.
///
/// References may be empty only where it says "or empty". Operations throw nothing unless they say so.
namespace BE {

/// Where a project or a sequence announces its changes.
class HOST_API INotification : public qelcore::IUnknown {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("BE::INotification");
  virtual qelcore::messaging::StationID GetStationID() const = 0;

 protected:
  ~INotification() override;
};

/// Where a sequence announces that its tracks' content changed.
class HOST_API ISequenceContent : public qelcore::IUnknown {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("BE::ISequenceContent");
  virtual qelcore::messaging::StationID GetStationID() const = 0;

 protected:
  ~ISequenceContent() override;
};

/// Where a sequence announces that tracks were added, removed or moved.
class HOST_API ISequenceTrackGroups : public qelcore::IUnknown {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("BE::ISequenceTrackGroups");
  virtual qelcore::messaging::StationID GetStationID() const = 0;

 protected:
  ~ISequenceTrackGroups() override;
};

/// A project: sequences and the clips they use. Also answers INotification.
class HOST_API IProject : public qelcore::IUnknown {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("BE::IProject");

 protected:
  ~IProject() override;
};

/// A timeline. Also answers ISequenceContent and ISequenceTrackGroups.
class HOST_API ISequence : public qelcore::IUnknown {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("BE::ISequence");
  virtual qelcore::UTF8String GetName() const = 0;
  /// The duration of one picture frame, and of one audio sample; positive.
  virtual qelmediatypes::TickTime GetVideoFrameDuration() const = 0;
  virtual qelmediatypes::TickTime GetAudioFrameDuration() const = 0;

 protected:
  ~ISequence() override;
};

/// The tracks of one media type.
class HOST_API ITrackGroup : public qelcore::IUnknown {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("BE::ITrackGroup");
  virtual MediaType GetIdentifier() const = 0;

 protected:
  ~ITrackGroup() override;
};

/// One track.
class HOST_API ITrack : public qelcore::IUnknown {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("BE::ITrack");
  /// True when the track is switched off, or its sound is.
  virtual bool IsDisabledOrMuted() const = 0;

 protected:
  ~ITrack() override;
};

class IClip;

/// The types of track items, as numbers.
inline constexpr std::uint32_t kTrackItemType_Empty = 0;       ///< A gap.
inline constexpr std::uint32_t kTrackItemType_Clip = 1;        ///< A clip.
inline constexpr std::uint32_t kTrackItemType_Transition = 2;  ///< A transition.

/// Something on a track, from a start to an end.
class HOST_API ITrackItem : public qelcore::IUnknown {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("BE::ITrackItem");
  /// One of kTrackItemType_….
  virtual std::uint32_t GetType() const = 0;
  virtual MediaType GetMediaType() const = 0;
  /// The number of the item's track within its group, from 0.
  virtual std::uint64_t GetTrackIndex() const = 0;
  /// In sequence time; the end is exclusive.
  virtual qelmediatypes::TickTime GetStart() const = 0;
  virtual qelmediatypes::TickTime GetEnd() const = 0;
  /// The clip of a clip item, or empty.
  virtual qelcore::Borrowed<IClip> GetClip() const = 0;
  /// The item's track; answers ITrack.
  virtual qelcore::Borrowed<qelcore::IUnknown> GetTrack() const = 0;

 protected:
  ~ITrackItem() override;
};

/// Where the picture of a media comes from.
class HOST_API IVideoSource : public qelcore::IUnknown {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("BE::IVideoSource");
  /// The codec's name for people; empty when not known.
  virtual qelcore::UTF8String GetCodecName() const = 0;
  /// The stream's four-character code, first character in the highest byte; 0 when not known.
  virtual std::uint32_t GetFourCC() const = 0;

 protected:
  ~IVideoSource() override;
};

/// Why a media is offline; MZ::Utilities::GetOfflineReasonDescription gives the words.
class HOST_API IOfflineReason : public qelcore::IUnknown {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("BE::IOfflineReason");
  virtual qelcore::UTF8String GetDescription() const = 0;

 protected:
  ~IOfflineReason() override;
};

/// A piece of media: a file, an image sequence, or something generated.
class HOST_API IMedia : public qelcore::IUnknown {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("BE::IMedia");
  /// The address as the project names it; empty for media without a file.
  virtual qelcore::UTF8String GetAddress() const = 0;
  virtual bool IsOffline() const = 0;
  /// The reason of an offline media, or empty.
  virtual qelcore::Borrowed<IOfflineReason> GetOfflineReason() const = 0;
  /// The media's storage is not connected yet.
  virtual bool IsPendingConnection() const = 0;
  /// The media's file is still being recorded.
  virtual bool IsGrowing() const = 0;
  /// The media's file was found elsewhere and is being connected.
  virtual bool IsPendingRelink() const = 0;
  /// The picture's source, or empty for media without picture.
  virtual qelcore::Borrowed<IVideoSource> GetVideoSource() const = 0;

 protected:
  ~IMedia() override;
};

/// What a clip item plays. Also answers IComponentOwner.
class HOST_API IClip : public qelcore::IUnknown {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("BE::IClip");
  virtual qelcore::UTF8String GetName() const = 0;
  /// True when the clip is switched off.
  virtual bool IsDisabled() const = 0;
  /// True when the clip shows one of several cameras.
  virtual bool IsMulticam() const = 0;
  /// The duration of one frame or sample of what the clip plays; kUnknownFrameDuration if not known.
  virtual qelmediatypes::TickTime GetFrameDuration() const = 0;
  virtual qelcore::Borrowed<IMedia> GetMedia() const = 0;

 protected:
  ~IClip() override;
};

/// A parameter of a component.
class HOST_API IComponentParam : public qelcore::IUnknown {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("BE::IComponentParam");
  /// The value at the first keyframe, or the constant value.
  virtual MF::BinaryData GetKeyframeValue() const = 0;

 protected:
  ~IComponentParam() override;
};

/// An effect or a built-in setting of a clip.
class HOST_API IComponent : public qelcore::IUnknown {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("BE::IComponent");
  /// The name for people, in UTF-16.
  virtual std::u16string GetDisplayName() const = 0;
  /// The name that tells kinds of components apart.
  virtual qelcore::UTF8String GetMatchName() const = 0;
  /// True for what every clip has (motion, opacity, volume), false for an effect somebody added.
  virtual bool IsIntrinsic() const = 0;
  /// True when this machine lacks the effect.
  virtual bool IsMissing() const = 0;
  /// The parameter at an index, or empty.
  virtual qelcore::Borrowed<IComponentParam> GetParam(std::uint32_t index) const = 0;

 protected:
  ~IComponent() override;
};

/// The components of a clip, in order.
class HOST_API IComponentOwner : public qelcore::IUnknown {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("BE::IComponentOwner");
  virtual std::size_t GetComponentCount() const = 0;
  /// `index` is below the count.
  virtual qelcore::Borrowed<IComponent> GetComponent(std::size_t index) const = 0;

 protected:
  ~IComponentOwner() override;
};

/// A transition at one end of a clip.
class HOST_API ITransition : public qelcore::IUnknown {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("BE::ITransition");
  /// The name for people, in UTF-16.
  virtual std::u16string GetDisplayName() const = 0;
  /// True when this machine lacks the transition.
  virtual bool IsMissing() const = 0;

 protected:
  ~ITransition() override;
};

/// The clip in the project that clips on timelines are made from.
class HOST_API IMasterClip : public qelcore::IUnknown {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("BE::IMasterClip");
  virtual qelcore::UTF8String GetName() const = 0;
  /// The media, or empty.
  virtual qelcore::Borrowed<IMedia> GetMedia() const = 0;

 protected:
  ~IMasterClip() override;
};

/// The stretch of a master clip that a clip plays, and how it plays it.
class HOST_API IChildClip : public qelcore::IUnknown {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("BE::IChildClip");
  /// True when it plays faster, slower, backward, or stands still.
  virtual bool IsSpeedChanged() const = 0;
  /// True when what it plays is a sequence.
  virtual bool IsSequence() const = 0;
  /// The master clip, or empty.
  virtual qelcore::Borrowed<IMasterClip> GetMasterClip() const = 0;

 protected:
  ~IChildClip() override;
};

/// An entry of the project: a master clip with what people have noted on it.
class HOST_API IProjectItem : public qelcore::IUnknown {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("BE::IProjectItem");
  /// A column property by its name ("Column.PropertyText.Comment"); empty when it has no such one.
  virtual qelcore::UTF8String GetColumnProperty(std::string_view propertyName) const = 0;
  virtual qelcore::UTF8String GetDescription() const = 0;
  virtual qelcore::UTF8String GetTapeName() const = 0;

 protected:
  ~IProjectItem() override;
};

}  // namespace BE

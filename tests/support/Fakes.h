#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"

/// Model objects with faults. Each stands before a real one and forwards to it, interfaces included,
/// but for what a test has set; without a real one it answers neutrally. Make them with `new` and hold
/// them by `Ref`.
namespace fakes {

template <typename Interface>
class Counted : public Interface {
 public:
  void AddRef() const noexcept override { count.fetch_add(1, std::memory_order_relaxed); }
  void Release() const noexcept override {
    if (count.fetch_sub(1, std::memory_order_acq_rel) == 1) delete this;
  }

 protected:
  ~Counted() override = default;

 private:
  mutable std::atomic<std::uint32_t> count = 0;
};

class Track final : public Counted<BE::ITrack> {
 public:
  explicit Track(bool isDisabledOrMuted) : isDisabledOrMuted(isDisabledOrMuted) {}
  void* QueryInterface(qelcore::InterfaceID id) noexcept override {
    return id == BE::ITrack::kInterfaceID ? static_cast<BE::ITrack*>(this) : nullptr;
  }
  bool IsDisabledOrMuted() const override { return isDisabledOrMuted; }

 private:
  const bool isDisabledOrMuted;
};

/// Something that answers no interface at all.
class Nothing final : public Counted<qelcore::IUnknown> {
 public:
  void* QueryInterface(qelcore::InterfaceID) noexcept override { return nullptr; }
};

/// A sequence that only knows how long its frames last; it has no project.
class Sequence final : public Counted<BE::ISequence> {
 public:
  explicit Sequence(qelmediatypes::TickTime videoFrameDuration)
      : videoFrameDuration(videoFrameDuration) {}
  void* QueryInterface(qelcore::InterfaceID id) noexcept override {
    return id == BE::ISequence::kInterfaceID ? static_cast<BE::ISequence*>(this) : nullptr;
  }
  qelcore::UTF8String GetName() const override { return {}; }
  /// Unlike any picture's, so that taking one for the other shows.
  static constexpr qelmediatypes::TickTime kAudioFrameDuration{7};
  qelmediatypes::TickTime GetVideoFrameDuration() const override { return videoFrameDuration; }
  qelmediatypes::TickTime GetAudioFrameDuration() const override { return kAudioFrameDuration; }

 private:
  const qelmediatypes::TickTime videoFrameDuration;
};

/// A component under another match name, or without its parameter.
class Component final : public Counted<BE::IComponent> {
 public:
  explicit Component(qelcore::Ref<BE::IComponent> real) : real(std::move(real)) {}

  std::optional<qelcore::UTF8String> matchName;
  bool hasParam = true;

  void* QueryInterface(qelcore::InterfaceID id) noexcept override {
    return id == BE::IComponent::kInterfaceID ? static_cast<BE::IComponent*>(this)
                                              : real->QueryInterface(id);
  }
  std::u16string GetDisplayName() const override { return real->GetDisplayName(); }
  qelcore::UTF8String GetMatchName() const override {
    return matchName ? *matchName : real->GetMatchName();
  }
  bool IsIntrinsic() const override { return real->IsIntrinsic(); }
  bool IsMissing() const override { return real->IsMissing(); }
  qelcore::Borrowed<BE::IComponentParam> GetParam(std::uint32_t index) const override {
    return hasParam ? real->GetParam(index) : qelcore::Borrowed<BE::IComponentParam>();
  }

 private:
  const qelcore::Ref<BE::IComponent> real;
};

/// A clip that can lack its media, its components, its child clip or its master clip, or hold others.
class Clip final : public Counted<BE::IClip>, public BE::IChildClip, public BE::IComponentOwner {
 public:
  explicit Clip(qelcore::Ref<BE::IClip> real) : real(std::move(real)) {}

  bool hasMedia = true;
  bool hasComponents = true;
  bool hasChildClip = true;
  /// False: the project knows no such clip.
  bool hasMasterClip = true;
  /// In place of the real clip's components; may hold empty references.
  std::optional<std::vector<qelcore::Ref<BE::IComponent>>> components;
  std::optional<qelcore::UTF8String> name;
  std::optional<qelmediatypes::TickTime> frameDuration;

  void AddRef() const noexcept override { Counted::AddRef(); }
  void Release() const noexcept override { Counted::Release(); }
  void* QueryInterface(qelcore::InterfaceID id) noexcept override {
    if (id == BE::IClip::kInterfaceID) return static_cast<BE::IClip*>(this);
    if (id == BE::IComponentOwner::kInterfaceID) {
      return hasComponents ? static_cast<BE::IComponentOwner*>(this) : nullptr;
    }
    if (id == BE::IChildClip::kInterfaceID) {
      return hasChildClip ? static_cast<BE::IChildClip*>(this) : nullptr;
    }
    return hasMasterClip ? real->QueryInterface(id) : nullptr;
  }
  qelcore::UTF8String GetName() const override { return name ? *name : real->GetName(); }
  bool IsDisabled() const override { return real->IsDisabled(); }
  bool IsMulticam() const override { return real->IsMulticam(); }
  bool IsSpeedChanged() const override { return RealChildClip().IsSpeedChanged(); }
  bool IsSequence() const override { return RealChildClip().IsSequence(); }
  qelcore::Borrowed<BE::IMasterClip> GetMasterClip() const override {
    return hasMasterClip ? RealChildClip().GetMasterClip() : qelcore::Borrowed<BE::IMasterClip>();
  }
  qelmediatypes::TickTime GetFrameDuration() const override {
    return frameDuration ? *frameDuration : real->GetFrameDuration();
  }
  qelcore::Borrowed<BE::IMedia> GetMedia() const override {
    return hasMedia ? real->GetMedia() : qelcore::Borrowed<BE::IMedia>();
  }
  std::size_t GetComponentCount() const override {
    return components ? components->size() : RealComponents().GetComponentCount();
  }
  qelcore::Borrowed<BE::IComponent> GetComponent(std::size_t index) const override {
    if (components) return components->at(index);
    return RealComponents().GetComponent(index);
  }

 private:
  BE::IComponentOwner& RealComponents() const {
    return *qelcore::FindInterface<BE::IComponentOwner>(real.Get());
  }
  BE::IChildClip& RealChildClip() const { return *qelcore::FindInterface<BE::IChildClip>(real.Get()); }
  const qelcore::Ref<BE::IClip> real;
};

class TrackItem final : public Counted<BE::ITrackItem> {
 public:
  TrackItem() = default;
  explicit TrackItem(qelcore::Ref<BE::ITrackItem> real) : real(std::move(real)) {}

  std::optional<std::uint32_t> type;
  std::optional<BE::MediaType> mediaType;
  std::optional<std::uint64_t> trackIndex;
  std::optional<qelmediatypes::TickTime> start;
  std::optional<qelmediatypes::TickTime> end;
  /// Set to an empty reference for an item that lacks it.
  std::optional<qelcore::Ref<BE::IClip>> clip;
  std::optional<qelcore::Ref<qelcore::IUnknown>> track;

  void* QueryInterface(qelcore::InterfaceID id) noexcept override {
    if (id == BE::ITrackItem::kInterfaceID) return static_cast<BE::ITrackItem*>(this);
    return real ? real->QueryInterface(id) : nullptr;
  }
  std::uint32_t GetType() const override {
    return type ? *type : real ? real->GetType() : BE::kTrackItemType_Empty;
  }
  BE::MediaType GetMediaType() const override {
    return mediaType ? *mediaType : real ? real->GetMediaType() : BE::MediaType();
  }
  std::uint64_t GetTrackIndex() const override {
    return trackIndex ? *trackIndex : real ? real->GetTrackIndex() : 0;
  }
  qelmediatypes::TickTime GetStart() const override {
    return start ? *start : real ? real->GetStart() : qelmediatypes::TickTime();
  }
  qelmediatypes::TickTime GetEnd() const override {
    return end ? *end : real ? real->GetEnd() : qelmediatypes::TickTime();
  }
  qelcore::Borrowed<BE::IClip> GetClip() const override {
    if (clip) return *clip;
    return real ? real->GetClip() : qelcore::Borrowed<BE::IClip>();
  }
  qelcore::Borrowed<qelcore::IUnknown> GetTrack() const override {
    if (track) return *track;
    return real ? real->GetTrack() : qelcore::Borrowed<qelcore::IUnknown>();
  }

 private:
  const qelcore::Ref<BE::ITrackItem> real;
};

}  // namespace fakes

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "host/BE/Model.h"
#include "host/qelmediatypes/TickTime.h"
#include "standalone/model/ClipNode.h"
#include "standalone/model/ContentNode.h"

namespace standalone {

class TrackNode final : public ContentNode<BE::ITrack> {
 public:
  struct Values {
    /// As the file names it; empty: it does not.
    qelcore::UTF8String name;
    bool isDisabledOrMuted = false;
    bool isLocked = false;
  };

  TrackNode(const SequenceContent& content, BE::MediaType mediaType, std::uint64_t index,
            Values values);

  void* QueryInterface(qelcore::InterfaceID id) noexcept override;
  bool IsDisabledOrMuted() const override { return values.isDisabledOrMuted; }
  const Values& GetValues() const noexcept { return values; }

  const BE::MediaType& GetMediaType() const noexcept { return mediaType; }
  std::uint64_t GetIndex() const noexcept { return index; }

  /// Where the track's items lie among those of the content, in time order. Set once, while the content
  /// is built.
  std::size_t firstItem = 0;
  std::size_t itemCount = 0;

 private:
  BE::MediaType mediaType;
  std::uint64_t index;
  Values values;
};

class TrackGroupNode final : public ContentNode<BE::ITrackGroup> {
 public:
  TrackGroupNode(const SequenceContent& content, BE::MediaType identifier);

  void* QueryInterface(qelcore::InterfaceID id) noexcept override;
  BE::MediaType GetIdentifier() const override { return identifier; }

  /// From the lowest. Filled while the content is built.
  std::vector<TrackNode*> tracks;

 private:
  BE::MediaType identifier;
};

/// There is one for every clip, gap and transition, so it is kept small: what its track knows is asked
/// of the track, the content too.
class TrackItemNode final : public BE::ITrackItem {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("standalone::TrackItemNode");

  /// `type` is one of BE::kTrackItemType_…; `clip` is null unless it is a clip's.
  TrackItemNode(TrackNode& track, std::uint32_t type, qelmediatypes::TickTime start,
                qelmediatypes::TickTime end, ClipNode* clip) noexcept;
  ~TrackItemNode() override = default;
  TrackItemNode(const TrackItemNode&) = delete;
  TrackItemNode& operator=(const TrackItemNode&) = delete;

  void AddRef() const noexcept override { track->AddRef(); }
  void Release() const noexcept override { track->Release(); }
  void* QueryInterface(qelcore::InterfaceID id) noexcept override;
  std::uint32_t GetType() const override { return type; }
  BE::MediaType GetMediaType() const override { return track->GetMediaType(); }
  std::uint64_t GetTrackIndex() const override { return track->GetIndex(); }
  qelmediatypes::TickTime GetStart() const override { return start; }
  qelmediatypes::TickTime GetEnd() const override { return end; }
  qelcore::Borrowed<BE::IClip> GetClip() const override;
  qelcore::Borrowed<qelcore::IUnknown> GetTrack() const override;

  /// Null unless it is a clip's item.
  ClipNode* GetClipNode() const noexcept { return clip; }

 private:
  TrackNode* track;
  ClipNode* clip;
  qelmediatypes::TickTime start;
  qelmediatypes::TickTime end;
  std::uint32_t type;
};

}  // namespace standalone

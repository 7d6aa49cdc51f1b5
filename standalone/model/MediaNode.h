#pragma once

#include <cstdint>

#include "host/BE/Model.h"
#include "host/qelcore/UTF8String.h"
#include "standalone/model/ContentNode.h"

namespace standalone {

class VideoSourceNode final : public ContentNode<BE::IVideoSource> {
 public:
  VideoSourceNode(const SequenceContent& content, qelcore::UTF8String codec, std::uint32_t fourCC);

  void* QueryInterface(qelcore::InterfaceID id) noexcept override;
  qelcore::UTF8String GetCodecName() const override { return codec; }
  std::uint32_t GetFourCC() const override { return fourCC; }

 private:
  std::uint32_t fourCC;
  qelcore::UTF8String codec;
};

class OfflineReasonNode final : public ContentNode<BE::IOfflineReason> {
 public:
  OfflineReasonNode(const SequenceContent& content, qelcore::UTF8String description);

  void* QueryInterface(qelcore::InterfaceID id) noexcept override;
  /// Empty when nothing more is known than that the media is offline.
  qelcore::UTF8String GetDescription() const override { return description; }

 private:
  qelcore::UTF8String description;
};

struct MediaFlags {
  bool isSynthetic = false;
  bool isOffline = false;
  bool isPendingConnection = false;
  bool isGrowing = false;
  bool isPendingRelink = false;
  friend bool operator==(const MediaFlags&, const MediaFlags&) = default;
};

class MediaNode final : public ContentNode<BE::IMedia> {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("standalone::MediaNode");

  /// `source` and `reason` are nodes of the same content, or null.
  MediaNode(const SequenceContent& content, qelcore::UTF8String address, MediaFlags flags,
            VideoSourceNode* source, OfflineReasonNode* reason);

  void* QueryInterface(qelcore::InterfaceID id) noexcept override;
  qelcore::UTF8String GetAddress() const override { return address; }
  bool IsOffline() const override { return flags.isOffline; }
  qelcore::Borrowed<BE::IOfflineReason> GetOfflineReason() const override;
  bool IsPendingConnection() const override { return flags.isPendingConnection; }
  bool IsGrowing() const override { return flags.isGrowing; }
  bool IsPendingRelink() const override { return flags.isPendingRelink; }
  qelcore::Borrowed<BE::IVideoSource> GetVideoSource() const override;

  bool IsSynthetic() const noexcept { return flags.isSynthetic; }
  /// The content that it belongs to.
  using ContentNode::GetContent;

  /// How many clip items of the content play media of the address; null without an address. Set once,
  /// while the content is built.
  const std::uint64_t* usageCount = nullptr;

 private:
  MediaFlags flags;
  qelcore::UTF8String address;
  VideoSourceNode* source;
  OfflineReasonNode* reason;
};

}  // namespace standalone

#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_map>

#include "host/BE/VisitSequence.h"
#include "host/qelcore/Reference.h"
#include "host/qelcore/UTF8String.h"
#include "host/qelmediatypes/TickTime.h"
#include "standalone/model/ClipNode.h"
#include "standalone/model/ComponentNode.h"
#include "standalone/model/MasterClipNode.h"
#include "standalone/model/MediaNode.h"
#include "standalone/model/NodeStore.h"
#include "standalone/model/ProjectNode.h"
#include "standalone/model/SequenceDraft.h"
#include "standalone/model/TextPool.h"
#include "standalone/model/TimeFormat.h"
#include "standalone/model/TrackNodes.h"
#include "standalone/model/TransitionNode.h"

namespace standalone {

/// One published state of a sequence, whole: its facts, and every node below the sequence. All nodes
/// share this object's count, so whoever holds one of them can read all of them. Built by one thread,
/// never changed afterwards, read by and destroyed on any thread.
class SequenceContent {
 public:
  explicit SequenceContent(qelcore::Ref<ProjectNode> project);
  SequenceContent(const SequenceContent&) = delete;
  SequenceContent& operator=(const SequenceContent&) = delete;

  void AddRef() const noexcept { count.fetch_add(1, std::memory_order_relaxed); }
  void Release() const noexcept {
    if (count.fetch_sub(1, std::memory_order_acq_rel) == 1) delete this;
  }

  /// Visits the track groups and what stands in them.
  void VisitGroups(const BE::SequenceVisitor& visitor) const;

  const qelcore::Ref<ProjectNode> project;
  qelcore::UTF8String name;
  qelmediatypes::TickTime zeroPoint;
  qelmediatypes::TickTime videoFrameDuration;
  qelmediatypes::TickTime audioFrameDuration;
  bool isDropFrame = false;
  TimeFormat timeFormat = TimeFormat::kTimecode;
  /// Where the last clip ends; 0 without clips.
  qelmediatypes::TickTime clipsEnd;

  mutable TrackGroupNode videoGroup;
  mutable TrackGroupNode audioGroup;
  NodeStore<TrackNode> tracks;
  NodeStore<TrackItemNode> items;
  NodeStore<ClipNode> clips;
  NodeStore<MediaNode> media;
  NodeStore<VideoSourceNode> videoSources;
  NodeStore<OfflineReasonNode> offlineReasons;
  NodeStore<MasterClipNode> masterClips;
  NodeStore<ComponentNode> components;
  NodeStore<ComponentParamNode> componentParams;
  NodeStore<TransitionNode> transitions;
  NodeStore<MulticamCameras> multicamCameras;

  /// How many clip items play media of an address; the keys are texts of the media above.
  std::unordered_map<std::string_view, std::uint64_t> usageCounts;

 private:
  ~SequenceContent() = default;
  void VisitTrack(TrackNode& track, const BE::SequenceVisitor& visitor) const;

  mutable std::atomic<std::size_t> count{0};
};

/// Builds the content that a draft describes. Holes between items become gaps, each track is closed
/// with the open filler to 100 hours, and unknown rates become 24 pictures and 48000 samples a second.
/// [any-thread], one at a time for one pool.
qelcore::Ref<SequenceContent> BuildContent(const SequenceDraft& draft,
                                           const qelcore::Ref<ProjectNode>& project, TextPool& texts);

}  // namespace standalone

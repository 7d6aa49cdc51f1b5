#pragma once

#include <atomic>
#include <cstddef>
#include <mutex>

#include "host/BE/Model.h"
#include "host/qelcore/Messaging.h"
#include "host/qelcore/Reference.h"
#include "standalone/model/PlayerNode.h"
#include "standalone/model/ProjectNode.h"
#include "standalone/model/PublishedTimes.h"
#include "standalone/model/SequenceContent.h"
#include "standalone/model/VisitableSequence.h"

namespace standalone {

/// A sequence: the one node that keeps its identity while what it shows is replaced. Opens its two
/// stations when it is made and closes them when the last reference is gone.
class SequenceNode final : public BE::ISequence, public VisitableSequence {
 public:
  static constexpr auto kInterfaceID = qelcore::MakeInterfaceID("standalone::SequenceNode");

  explicit SequenceNode(qelcore::Ref<SequenceContent> content);
  SequenceNode(const SequenceNode&) = delete;
  SequenceNode& operator=(const SequenceNode&) = delete;

  void AddRef() const noexcept override;
  void Release() const noexcept override;
  void* QueryInterface(qelcore::InterfaceID id) noexcept override;
  qelcore::UTF8String GetName() const override;
  qelmediatypes::TickTime GetVideoFrameDuration() const override;
  qelmediatypes::TickTime GetAudioFrameDuration() const override;
  void VisitChildren(const BE::SequenceVisitor& visitor) const override;

  /// What is published at this moment. [any-thread]
  qelcore::Ref<SequenceContent> GetContent() const;

  /// Whether this is what is published, without the lock. [any-thread]
  bool Publishes(const SequenceContent& other) const noexcept { return published == &other; }

  const PublishedTimes& GetTimes() const noexcept { return times; }

  /// Publishes `next`; waits until nobody holds the read lock. Returns what was published before.
  /// Throws: qel_exception when the calling thread holds the read lock. [any-thread]
  qelcore::Ref<SequenceContent> Publish(qelcore::Ref<SequenceContent> next);

  /// Opens the sequence's player, which is made when that happens first. [main-thread]
  void OpenPlayer();
  /// The player, or empty when the sequence was never opened. [main-thread]
  const qelcore::Ref<PlayerNode>& GetPlayer() const noexcept { return player; }

  const qelcore::messaging::StationID& GetContentStation() const noexcept {
    return contentStation.station;
  }
  const qelcore::messaging::StationID& GetTrackGroupStation() const noexcept {
    return trackGroupStation.station;
  }

 private:
  /// A station as one of the sequence's interfaces: counted with the sequence, answers what it answers.
  template <typename Interface>
  class StationFace final : public Interface {
   public:
    explicit StationFace(SequenceNode& owner);
    ~StationFace() override;
    void AddRef() const noexcept override { owner.AddRef(); }
    void Release() const noexcept override { owner.Release(); }
    void* QueryInterface(qelcore::InterfaceID id) noexcept override { return owner.QueryInterface(id); }
    qelcore::messaging::StationID GetStationID() const override { return station; }

    const qelcore::messaging::StationID station;

   private:
    SequenceNode& owner;
  };

  ~SequenceNode() override = default;

  mutable std::atomic<std::size_t> count{0};
  StationFace<BE::ISequenceContent> contentStation;
  StationFace<BE::ISequenceTrackGroups> trackGroupStation;
  /// Guards the pointer, not what it leads to.
  mutable std::mutex contentMutex;
  qelcore::Ref<SequenceContent> content;
  /// The same, to compare with, and what is told of it without the lock.
  std::atomic<const SequenceContent*> published;
  PublishedTimes times;
  qelcore::Ref<PlayerNode> player;
};

/// The sequence as a node, or null for one that this host did not make.
const SequenceNode* FindSequenceNode(const qelcore::Ref<BE::ISequence>& sequence) noexcept;

/// The content of a sequence that this host made, or empty.
qelcore::Ref<SequenceContent> FindContent(const qelcore::Ref<BE::ISequence>& sequence);

}  // namespace standalone

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "standalone/model/FlatTable.h"
#include "standalone/model/NodeStore.h"
#include "standalone/model/SequenceContent.h"
#include "standalone/model/SequenceDraft.h"
#include "standalone/model/TextPool.h"

namespace standalone {

/// Makes the nodes of clips. Clips with the same media share its node, and clips with the same facts in
/// the project share the master clip. One thread at a time.
class ClipBuilder {
 public:
  ClipBuilder(SequenceContent& content, TextPool& texts);

  /// Transitions are given as nodes, because two clips may share the one between them.
  ClipNode& Build(const ClipDraft& draft, bool hasPicture, TransitionNode* head, TransitionNode* tail);

 private:
  /// What tells two media, or two master clips, apart; texts by their place in the pool.
  template <std::size_t kSize>
  using Key = std::array<std::uint64_t, kSize>;
  template <std::size_t kSize>
  static std::uint64_t HashKey(const Key<kSize>& key) noexcept;

  struct MediaTexts {
    qelcore::UTF8String address;
    qelcore::UTF8String offlineReason;
    qelcore::UTF8String codec;
  };
  struct SharedMedia {
    Key<4> key;
    MediaNode* node;
    /// How many clips play the address; null: there is none.
    std::uint64_t* usageCount;
  };
  struct SharedMasterClip {
    Key<9> key;
    MasterClipNode* node;
  };

  MediaTexts ShareTexts(const MediaDraft& draft);
  SharedMedia& ShareMedia(const MediaDraft& draft, const MediaTexts& mediaTexts, bool hasPicture);
  MediaNode& BuildMedia(const MediaDraft& draft, const MediaTexts& mediaTexts, bool hasPicture);
  MasterClipNode& ShareMasterClip(const ClipDraft& draft, const MediaTexts& mediaTexts,
                                  MediaNode& clipMedia);
  void BuildComponents(const ClipDraft& draft);
  ComponentParamNode* BuildDocument(const ComponentDraft& draft);
  const MulticamCameras* BuildCameras(const MulticamDraft& draft);

  SequenceContent& content;
  TextPool& texts;
  NodeStore<SharedMedia> media;
  FlatTable<SharedMedia*> mediaTable;
  NodeStore<SharedMasterClip> masterClips;
  FlatTable<SharedMasterClip*> masterClipTable;
  /// The clip built last.
  ClipNode* last = nullptr;
};

/// Makes the items of tracks.
class TrackBuilder {
 public:
  TrackBuilder(SequenceContent& content, TextPool& texts);

  /// Adds a track on top of its group.
  void Build(const TrackDraft& draft);

 private:
  void AddItem(const TrackItemDraft& item);
  void AddClip(const TrackItemDraft& item);
  void AddGap(qelmediatypes::TickTime start, qelmediatypes::TickTime end);
  void AddTransitionItem(qelmediatypes::TickTime cut);
  TransitionNode& BuildTransition(const TransitionDraft& draft);
  TransitionNode* ShareHead(const ClipDraft& draft, qelmediatypes::TickTime cut);

  SequenceContent& content;
  TextPool& texts;
  ClipBuilder clips;

  // The track being built.
  TrackNode* track = nullptr;
  /// Where the items so far end.
  qelmediatypes::TickTime position;
  /// The transition at the end of the item before, as it was drafted, if that item is a clip with one.
  const TransitionDraft* lastTailDraft = nullptr;
  TransitionNode* lastTail = nullptr;
  qelmediatypes::TickTime lastCut;
};

}  // namespace standalone

#include <utility>

#include "host/ML/TextFilter.h"
#include "standalone/model/ContentBuilder.h"
#include "standalone/model/TextDocumentFormat.h"

namespace standalone {
namespace {

MediaFlags FlagsOf(const MediaDraft& draft) {
  MediaFlags flags;
  flags.isSynthetic = draft.isSynthetic;
  flags.isOffline = draft.isOffline;
  flags.isPendingConnection = draft.isPendingConnection;
  flags.isGrowing = draft.isGrowing;
  flags.isPendingRelink = draft.isPendingRelink;
  return flags;
}

std::uint64_t PackFlags(const MediaDraft& draft) {
  std::uint64_t packed = 0;
  for (const bool flag : {draft.isSynthetic, draft.isOffline, draft.isPendingConnection,
                          draft.isGrowing, draft.isPendingRelink}) {
    packed = packed << 1U | (flag ? 1U : 0U);
  }
  return packed;
}

std::uint64_t KeyOf(const qelcore::UTF8String& text) {
  return reinterpret_cast<std::uintptr_t>(text.View().data());
}

/// The numbers of a media in one: its flags, whether it has a picture, its four-character code.
std::uint64_t PackNumbers(const MediaDraft& draft, bool hasPicture) {
  return (PackFlags(draft) << 1U | (hasPicture ? 1U : 0U)) << 32U | draft.fourCC;
}

/// What the media tells of its master clip.
std::uint64_t PackMasterClipFlags(const MediaDraft& draft) {
  return PackFlags(draft) << 1U | (draft.isStill ? 1U : 0U);
}

}  // namespace

ClipBuilder::ClipBuilder(SequenceContent& content, TextPool& texts) : content(content), texts(texts) {}

template <std::size_t kSize>
std::uint64_t ClipBuilder::HashKey(const Key<kSize>& key) noexcept {
  std::uint64_t hash = 14695981039346656037ULL;
  for (const std::uint64_t part : key) {
    hash = (hash ^ part) * 1099511628211ULL;
    hash ^= hash >> 32U;
  }
  return hash;
}

ClipNode& ClipBuilder::Build(const ClipDraft& draft, bool hasPicture, TransitionNode* head,
                             TransitionNode* tail) {
  const MediaTexts mediaTexts = ShareTexts(draft.media);
  const SharedMedia& clipMedia = ShareMedia(draft.media, mediaTexts, hasPicture);
  if (clipMedia.usageCount != nullptr) ++*clipMedia.usageCount;
  ClipNode::Values values;
  values.name = texts.Share(draft.name);
  values.videoInfo = texts.Share(draft.videoInfo);
  values.frameDuration = draft.frameDuration;
  values.media = clipMedia.node;
  values.masterClip = &ShareMasterClip(draft, mediaTexts, *clipMedia.node);
  values.headTransition = head;
  values.tailTransition = tail;
  values.cameras = BuildCameras(draft.multicam);
  values.firstComponent = content.components.Size();
  BuildComponents(draft);
  values.componentCount = content.components.Size() - values.firstComponent;
  values.labelColor = draft.labelColor;
  values.isGraphic = draft.isGraphic;
  values.isDisabled = draft.isDisabled;
  values.isSpeedChanged = draft.hasSpeedChange;
  values.isSequence = draft.nestedSequence.has_value();
  const MasterClipNode* const source = values.masterClip;
  ClipNode& clip = content.clips.Add(content, std::move(values));
  if (last != nullptr) last->SetNextSource(source);
  last = &clip;
  return clip;
}

ClipBuilder::MediaTexts ClipBuilder::ShareTexts(const MediaDraft& draft) {
  return {texts.Share(draft.address.Get()), texts.Share(draft.offlineReason), texts.Share(draft.codec)};
}

ClipBuilder::SharedMedia& ClipBuilder::ShareMedia(const MediaDraft& draft, const MediaTexts& mediaTexts,
                                                  bool hasPicture) {
  const Key<4> key{KeyOf(mediaTexts.address), KeyOf(mediaTexts.offlineReason), KeyOf(mediaTexts.codec),
                   PackNumbers(draft, hasPicture)};
  const std::uint64_t hash = HashKey(key);
  SharedMedia** const known =
      mediaTable.Find(hash, [&key](const SharedMedia* shared) { return shared->key == key; });
  if (known != nullptr) return **known;
  std::uint64_t* const usageCount =
      mediaTexts.address.Empty() ? nullptr : &content.usageCounts[mediaTexts.address.View()];
  SharedMedia& shared =
      media.Add(SharedMedia{key, &BuildMedia(draft, mediaTexts, hasPicture), usageCount});
  shared.node->usageCount = usageCount;
  mediaTable.Add(hash, &shared);
  return shared;
}

MediaNode& ClipBuilder::BuildMedia(const MediaDraft& draft, const MediaTexts& mediaTexts,
                                   bool hasPicture) {
  VideoSourceNode* source = nullptr;
  if (hasPicture || !draft.codec.empty() || draft.fourCC != 0) {
    source = &content.videoSources.Add(content, mediaTexts.codec, draft.fourCC);
  }
  OfflineReasonNode* reason = nullptr;
  if (draft.isOffline) reason = &content.offlineReasons.Add(content, mediaTexts.offlineReason);
  return content.media.Add(content, mediaTexts.address, FlagsOf(draft), source, reason);
}

MasterClipNode& ClipBuilder::ShareMasterClip(const ClipDraft& draft, const MediaTexts& mediaTexts,
                                             MediaNode& clipMedia) {
  const qelcore::UTF8String name = texts.Share(draft.sourceClipName);
  ProjectItemNode::Texts itemTexts{texts.Share(draft.comment), texts.Share(draft.description),
                                   texts.Share(draft.tapeName)};
  MediaTexts proxyTexts;
  Key<9> key{KeyOf(mediaTexts.address),       KeyOf(name),
             KeyOf(itemTexts.comment),        KeyOf(itemTexts.description),
             KeyOf(itemTexts.tapeName),       KeyOf(mediaTexts.offlineReason),
             PackMasterClipFlags(draft.media)};
  if (draft.proxy) {
    proxyTexts = ShareTexts(*draft.proxy);
    // A proxy is a fact even when nobody knows where it lies.
    constexpr std::uint64_t kHasProxy = std::uint64_t{1} << 63U;
    key[7] = KeyOf(proxyTexts.address);
    key[8] = PackFlags(*draft.proxy) | kHasProxy;
  }
  const std::uint64_t hash = HashKey(key);
  SharedMasterClip** const known =
      masterClipTable.Find(hash, [&key](const SharedMasterClip* shared) { return shared->key == key; });
  if (known != nullptr) return *(*known)->node;
  MasterClipNode::Source source;
  source.media = &clipMedia;
  if (draft.proxy) source.proxy = ShareMedia(*draft.proxy, proxyTexts, false).node;
  source.isStill = draft.media.isStill;
  MasterClipNode& node = content.masterClips.Add(content, name, source, std::move(itemTexts));
  masterClipTable.Add(hash, &masterClips.Add(SharedMasterClip{key, &node}));
  return node;
}

void ClipBuilder::BuildComponents(const ClipDraft& draft) {
  for (const ComponentDraft& component : draft.components) {
    content.components.Add(content, texts.Share(component.displayName),
                           texts.Share(component.matchName), component.isIntrinsic, component.isMissing,
                           BuildDocument(component));
  }
}

ComponentParamNode* ClipBuilder::BuildDocument(const ComponentDraft& draft) {
  if (draft.matchName != ML::kMatchnameText) return nullptr;
  return &content.componentParams.Add(content, EncodeTextDocument(draft.fonts));
}

const MulticamCameras* ClipBuilder::BuildCameras(const MulticamDraft& draft) {
  if (!draft.isMulticam) return nullptr;
  MulticamCameras& cameras = content.multicamCameras.Add();
  for (const std::string& name : draft.cameraNames) cameras.names.push_back(texts.Share(name));
  if (draft.selectedCamera < cameras.names.size()) cameras.selected = draft.selectedCamera;
  return &cameras;
}

}  // namespace standalone

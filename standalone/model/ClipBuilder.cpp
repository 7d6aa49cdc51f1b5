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
std::size_t ClipBuilder::KeyHash<kSize>::operator()(const Key<kSize>& key) const noexcept {
  std::uint64_t hash = 14695981039346656037ULL;
  for (const std::uint64_t part : key) {
    hash = (hash ^ part) * 1099511628211ULL;
    hash ^= hash >> 32U;
  }
  return static_cast<std::size_t>(hash);
}

std::uint64_t ClipBuilder::KeyOf(const std::string& text) {
  return reinterpret_cast<std::uintptr_t>(texts.Share(text).View().data());
}

ClipNode& ClipBuilder::Build(const ClipDraft& draft, bool hasPicture, TransitionNode* head,
                             TransitionNode* tail) {
  ClipNode::Values values;
  values.name = texts.Share(draft.name);
  values.videoInfo = texts.Share(draft.videoInfo);
  values.frameDuration = draft.frameDuration;
  values.media = &ShareMedia(draft.media, hasPicture);
  values.masterClip = &ShareMasterClip(draft, *values.media);
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
  if (!draft.media.address.empty()) ++content.usageCounts[texts.Share(draft.media.address).View()];
  return content.clips.Add(content, std::move(values));
}

MediaNode& ClipBuilder::ShareMedia(const MediaDraft& draft, bool hasPicture) {
  const Key<4> key{KeyOf(draft.address), KeyOf(draft.offlineReason), KeyOf(draft.codec),
                   PackNumbers(draft, hasPicture)};
  MediaNode*& node = media[key];
  if (node == nullptr) node = &BuildMedia(draft, hasPicture);
  return *node;
}

MediaNode& ClipBuilder::BuildMedia(const MediaDraft& draft, bool hasPicture) {
  VideoSourceNode* source = nullptr;
  if (hasPicture || !draft.codec.empty() || draft.fourCC != 0) {
    source = &content.videoSources.Add(content, texts.Share(draft.codec), draft.fourCC);
  }
  OfflineReasonNode* reason = nullptr;
  if (draft.isOffline) reason = &content.offlineReasons.Add(content, texts.Share(draft.offlineReason));
  return content.media.Add(content, texts.Share(draft.address), FlagsOf(draft), source, reason);
}

MasterClipNode& ClipBuilder::ShareMasterClip(const ClipDraft& draft, MediaNode& clipMedia) {
  Key<9> key{
      KeyOf(draft.media.address),      KeyOf(draft.sourceClipName), KeyOf(draft.comment),
      KeyOf(draft.description),        KeyOf(draft.tapeName),       KeyOf(draft.media.offlineReason),
      PackMasterClipFlags(draft.media)};
  if (draft.proxy) {
    // A proxy is a fact even when nobody knows where it lies.
    constexpr std::uint64_t kHasProxy = std::uint64_t{1} << 63U;
    key[7] = KeyOf(draft.proxy->address);
    key[8] = PackFlags(*draft.proxy) | kHasProxy;
  }
  MasterClipNode*& node = masterClips[key];
  if (node == nullptr) node = &BuildMasterClip(draft, clipMedia);
  return *node;
}

MasterClipNode& ClipBuilder::BuildMasterClip(const ClipDraft& draft, MediaNode& clipMedia) {
  MasterClipNode::Source source;
  source.media = &clipMedia;
  if (draft.proxy) source.proxy = &ShareMedia(*draft.proxy, false);
  source.isStill = draft.media.isStill;
  ProjectItemNode::Texts itemTexts{texts.Share(draft.comment), texts.Share(draft.description),
                                   texts.Share(draft.tapeName)};
  return content.masterClips.Add(content, texts.Share(draft.sourceClipName), source,
                                 std::move(itemTexts));
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

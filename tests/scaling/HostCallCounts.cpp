#include "scaling/HostCallCounts.h"

#include <array>
#include <atomic>
#include <cstddef>

#include "host/BE/ReadMutex.h"
#include "host/BE/Utilities.h"
#include "host/BE/VisitSequence.h"
#include "host/MZ/Clips.h"
#include "host/MZ/Sequences.h"
#include "host/ZSL/Timecode.h"
#include "host/qelui/MultiColumnTree.h"
#include "host/qelui/MultiColumnTreeHeaderRow.h"
#include "support/HostCalls.h"

namespace {

enum class Call : std::size_t {
  kReadLock,
  kVisitSequence,
  kGetMasterClip,
  kGetHeadTransition,
  kGetTailTransition,
  kGetProxyMedia,
  kGetProjectItem,
  kIsSynthetic,
  kGetZeroPoint,
  kGetClipName,
  kGetVideoInfo,
  kGetDisplayLabelColorForClip,
  kIsGraphicsTrackItem,
  kGetMasterClipUsageCount,
  kGetFrameAlignment,
  kGetVideoTimeDisplayFormat,
  kTimecodeText,
  kCreateAndAppendRow,
  kLayoutAfterAppendRow,
  kGetRowIndex,
  kGetColumnAt,
  kCount,
};

constexpr std::array<std::string_view, static_cast<std::size_t>(Call::kCount)> kNames = {
    "ReadLock",
    "VisitSequence",
    "GetMasterClip",
    "GetHeadTransition",
    "GetTailTransition",
    "GetProxyMedia",
    "GetProjectItem",
    "IsSynthetic",
    "GetZeroPoint",
    "GetClipName",
    "GetVideoInfo",
    "GetDisplayLabelColorForClip",
    "IsGraphicsTrackItem",
    "GetMasterClipUsageCount",
    "GetFrameAlignment",
    "GetVideoTimeDisplayFormat",
    "Timecode text",
    "CreateAndAppendRow",
    "LayoutAfterAppendRow",
    "GetRowIndex",
    "GetColumnAt",
};

std::array<std::atomic<std::uint64_t>, kNames.size()> counts;

void Count(Call call) {
  counts[static_cast<std::size_t>(call)].fetch_add(1, std::memory_order_relaxed);
}

using hostcalls::Real;
using qelcore::Borrowed;
using qelcore::Ref;

}  // namespace

namespace scaling {

HostCallCounts GetHostCallCounts() {
  HostCallCounts result;
  for (std::size_t i = 0; i < kNames.size(); ++i) result[kNames[i]] = counts[i];
  return result;
}

}  // namespace scaling

namespace BE {

void ReadMutex::Lock() {
  Count(Call::kReadLock);
  static const auto real = Real<void (*)(ReadMutex*)>("_ZN2BE9ReadMutex4LockEv");
  real(this);
}

void VisitSequence(const Ref<ISequence>& sequence, const SequenceVisitor& visitor) {
  Count(Call::kVisitSequence);
  using Function = void (*)(const Ref<ISequence>&, const SequenceVisitor&);
  static const auto real = Real<Function>(
      "_ZN2BE13VisitSequenceERKN7qelcore3RefINS_9ISequenceEEERKSt8functionIFNS_13VisitorStatusERNS0_"
      "8IUnknownEEE");
  real(sequence, visitor);
}

Borrowed<IMasterClip> TrackItemUtils::GetMasterClip(const Ref<ITrackItem>& trackItem) {
  Count(Call::kGetMasterClip);
  using Function = Borrowed<IMasterClip> (*)(const Ref<ITrackItem>&);
  static const auto real =
      Real<Function>("_ZN2BE14TrackItemUtils13GetMasterClipERKN7qelcore3RefINS_10ITrackItemEEE");
  return real(trackItem);
}

Borrowed<ITransition> TrackItemUtils::GetHeadTransition(const Ref<ITrackItem>& trackItem) {
  Count(Call::kGetHeadTransition);
  using Function = Borrowed<ITransition> (*)(const Ref<ITrackItem>&);
  static const auto real =
      Real<Function>("_ZN2BE14TrackItemUtils17GetHeadTransitionERKN7qelcore3RefINS_10ITrackItemEEE");
  return real(trackItem);
}

Borrowed<ITransition> TrackItemUtils::GetTailTransition(const Ref<ITrackItem>& trackItem) {
  Count(Call::kGetTailTransition);
  using Function = Borrowed<ITransition> (*)(const Ref<ITrackItem>&);
  static const auto real =
      Real<Function>("_ZN2BE14TrackItemUtils17GetTailTransitionERKN7qelcore3RefINS_10ITrackItemEEE");
  return real(trackItem);
}

Borrowed<IMedia> MasterClipUtils::GetProxyMedia(Borrowed<IMasterClip> masterClip) {
  Count(Call::kGetProxyMedia);
  using Function = Borrowed<IMedia> (*)(Borrowed<IMasterClip>);
  static const auto real =
      Real<Function>("_ZN2BE15MasterClipUtils13GetProxyMediaEN7qelcore8BorrowedINS_11IMasterClipEEE");
  return real(masterClip);
}

Borrowed<IProjectItem> MasterClipUtils::GetProjectItem(Borrowed<IMasterClip> masterClip) {
  Count(Call::kGetProjectItem);
  using Function = Borrowed<IProjectItem> (*)(Borrowed<IMasterClip>);
  static const auto real =
      Real<Function>("_ZN2BE15MasterClipUtils14GetProjectItemEN7qelcore8BorrowedINS_11IMasterClipEEE");
  return real(masterClip);
}

bool MediaUtils::IsSynthetic(Borrowed<IMedia> media) {
  Count(Call::kIsSynthetic);
  using Function = bool (*)(Borrowed<IMedia>);
  static const auto real =
      Real<Function>("_ZN2BE10MediaUtils11IsSyntheticEN7qelcore8BorrowedINS_6IMediaEEE");
  return real(media);
}

qelmediatypes::TickTime SequenceUtils::GetZeroPoint(const Ref<ISequence>& sequence) {
  Count(Call::kGetZeroPoint);
  using Function = qelmediatypes::TickTime (*)(const Ref<ISequence>&);
  static const auto real =
      Real<Function>("_ZN2BE13SequenceUtils12GetZeroPointERKN7qelcore3RefINS_9ISequenceEEE");
  return real(sequence);
}

}  // namespace BE

namespace MZ {

qelcore::UTF8String FindClip::GetClipName(const Ref<BE::ITrackItem>& trackItem) {
  Count(Call::kGetClipName);
  using Function = qelcore::UTF8String (*)(const Ref<BE::ITrackItem>&);
  static const auto real =
      Real<Function>("_ZN2MZ8FindClip11GetClipNameERKN7qelcore3RefIN2BE10ITrackItemEEE");
  return real(trackItem);
}

qelcore::UTF8String FindClip::GetVideoInfo(const Ref<BE::ITrackItem>& trackItem) {
  Count(Call::kGetVideoInfo);
  using Function = qelcore::UTF8String (*)(const Ref<BE::ITrackItem>&);
  static const auto real =
      Real<Function>("_ZN2MZ8FindClip12GetVideoInfoERKN7qelcore3RefIN2BE10ITrackItemEEE");
  return real(trackItem);
}

ZSL::Color ColorLabelUtils::GetDisplayLabelColorForClip(Borrowed<BE::IClip> clip,
                                                        const Ref<BE::IProject>& project) {
  Count(Call::kGetDisplayLabelColorForClip);
  using Function = ZSL::Color (*)(Borrowed<BE::IClip>, const Ref<BE::IProject>&);
  static const auto real = Real<Function>(
      "_ZN2MZ15ColorLabelUtils27GetDisplayLabelColorForClipEN7qelcore8BorrowedIN2BE5IClipEEERKNS1_"
      "3RefINS3_8IProjectEEE");
  return real(clip, project);
}

bool Graphics::IsGraphicsTrackItem(const Ref<BE::ITrackItem>& trackItem) {
  Count(Call::kIsGraphicsTrackItem);
  using Function = bool (*)(const Ref<BE::ITrackItem>&);
  static const auto real =
      Real<Function>("_ZN2MZ8Graphics19IsGraphicsTrackItemERKN7qelcore3RefIN2BE10ITrackItemEEE");
  return real(trackItem);
}

std::uint64_t Project::GetMasterClipUsageCount(const Ref<BE::IProject>& project,
                                               Borrowed<BE::IMasterClip> masterClip,
                                               const Ref<BE::ISequence>& sequence) {
  Count(Call::kGetMasterClipUsageCount);
  using Function =
      std::uint64_t (*)(const Ref<BE::IProject>&, Borrowed<BE::IMasterClip>, const Ref<BE::ISequence>&);
  static const auto real = Real<Function>(
      "_ZN2MZ7Project23GetMasterClipUsageCountERKN7qelcore3RefIN2BE8IProjectEEENS1_8BorrowedINS3_"
      "11IMasterClipEEERKNS2_INS3_9ISequenceEEE");
  return real(project, masterClip, sequence);
}

std::uint32_t SequenceActions::GetFrameAlignment(const Ref<BE::ISequence>& sequence) {
  Count(Call::kGetFrameAlignment);
  using Function = std::uint32_t (*)(const Ref<BE::ISequence>&);
  static const auto real =
      Real<Function>("_ZN2MZ15SequenceActions17GetFrameAlignmentERKN7qelcore3RefIN2BE9ISequenceEEE");
  return real(sequence);
}

qelmediatypes::TimeDisplay SequencePlayback::GetVideoTimeDisplayFormat(
    const Ref<BE::ISequence>& sequence, int isForDisplay) {
  Count(Call::kGetVideoTimeDisplayFormat);
  using Function = qelmediatypes::TimeDisplay (*)(const Ref<BE::ISequence>&, int);
  static const auto real = Real<Function>(
      "_ZN2MZ16SequencePlayback25GetVideoTimeDisplayFormatERKN7qelcore3RefIN2BE9ISequenceEEEi");
  return real(sequence, isForDisplay);
}

}  // namespace MZ

namespace ZSL {

qelcore::UTF8String Timecode::GetStringUTF8() const {
  Count(Call::kTimecodeText);
  using Function = qelcore::UTF8String (*)(const Timecode*);
  static const auto real = Real<Function>("_ZNK3ZSL8Timecode13GetStringUTF8Ev");
  return real(this);
}

}  // namespace ZSL

namespace qelui::controls {

UI_MultiColumnTree::Row* UI_MultiColumnTree::CreateAndAppendRow(Row* parent, bool isVisible,
                                                                bool isDeferringLayout) {
  Count(Call::kCreateAndAppendRow);
  using Function = Row* (*)(UI_MultiColumnTree*, Row*, bool, bool);
  static const auto real = Real<Function>(
      "_ZN5qelui8controls18UI_MultiColumnTree18CreateAndAppendRowEPNS0_21UI_MultiColumnTreeRowEbb");
  return real(this, parent, isVisible, isDeferringLayout);
}

void UI_MultiColumnTree::LayoutAfterAppendRow() {
  Count(Call::kLayoutAfterAppendRow);
  using Function = void (*)(UI_MultiColumnTree*);
  static const auto real =
      Real<Function>("_ZN5qelui8controls18UI_MultiColumnTree20LayoutAfterAppendRowEv");
  real(this);
}

std::size_t UI_MultiColumnTree::GetRowIndex(const Row* row) const {
  Count(Call::kGetRowIndex);
  using Function = std::size_t (*)(const UI_MultiColumnTree*, const Row*);
  static const auto real = Real<Function>(
      "_ZNK5qelui8controls18UI_MultiColumnTree11GetRowIndexEPKNS0_21UI_MultiColumnTreeRowE");
  return real(this, row);
}

std::uint32_t UI_MultiColumnTreeHeaderRow::GetColumnAt(std::size_t displayIndex) const {
  Count(Call::kGetColumnAt);
  using Function = std::uint32_t (*)(const UI_MultiColumnTreeHeaderRow*, std::size_t);
  static const auto real =
      Real<Function>("_ZNK5qelui8controls27UI_MultiColumnTreeHeaderRow11GetColumnAtEm");
  return real(this, displayIndex);
}

}  // namespace qelui::controls

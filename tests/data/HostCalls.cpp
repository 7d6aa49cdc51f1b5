#include "support/HostCalls.h"

#include "host/BE/ReadMutex.h"
#include "host/BE/VisitSequence.h"
#include "host/MZ/Clips.h"
#include "host/MZ/Sequences.h"

using hostcalls::Called;
using hostcalls::Real;
using qelcore::Ref;

namespace BE {

void ReadMutex::Lock() {
  Called("ReadLock");
  static const auto real = Real<void (*)(ReadMutex*)>("_ZN2BE9ReadMutex4LockEv");
  real(this);
}

void ReadMutex::Unlock() noexcept {
  Called("ReadUnlock");
  static const auto real = Real<void (*)(ReadMutex*)>("_ZN2BE9ReadMutex6UnlockEv");
  real(this);
}

void VisitSequence(const Ref<ISequence>& sequence, const SequenceVisitor& visitor) {
  Called("VisitSequence");
  using Function = void (*)(const Ref<ISequence>&, const SequenceVisitor&);
  static const auto real = Real<Function>(
      "_ZN2BE13VisitSequenceERKN7qelcore3RefINS_9ISequenceEEERKSt8functionIFNS_13VisitorStatusERNS0_"
      "8IUnknownEEE");
  real(sequence, visitor);
}

}  // namespace BE

namespace MZ {

qelcore::UTF8String FindClip::GetClipName(const Ref<BE::ITrackItem>& trackItem) {
  Called("GetClipName");
  using Function = qelcore::UTF8String (*)(const Ref<BE::ITrackItem>&);
  static const auto real =
      Real<Function>("_ZN2MZ8FindClip11GetClipNameERKN7qelcore3RefIN2BE10ITrackItemEEE");
  return real(trackItem);
}

Ref<BE::IProject> SequenceUtils::GetSequenceParentProject(const Ref<BE::ISequence>& sequence,
                                                          bool isSearchingParents) {
  Called("GetSequenceParentProject", isSearchingParents);
  using Function = Ref<BE::IProject> (*)(const Ref<BE::ISequence>&, bool);
  static const auto real = Real<Function>(
      "_ZN2MZ13SequenceUtils24GetSequenceParentProjectERKN7qelcore3RefIN2BE9ISequenceEEEb");
  return real(sequence, isSearchingParents);
}

qelmediatypes::TimeDisplay SequencePlayback::GetVideoTimeDisplayFormat(
    const Ref<BE::ISequence>& sequence, int isForDisplay) {
  Called("GetVideoTimeDisplayFormat", isForDisplay);
  using Function = qelmediatypes::TimeDisplay (*)(const Ref<BE::ISequence>&, int);
  static const auto real = Real<Function>(
      "_ZN2MZ16SequencePlayback25GetVideoTimeDisplayFormatERKN7qelcore3RefIN2BE9ISequenceEEEi");
  return real(sequence, isForDisplay);
}

qelcore::UTF8String SettingsDescriptions::CreateVideoFrameRateString(
    qelmediatypes::TickTime frameDuration, int style) {
  Called("CreateVideoFrameRateString", style);
  using Function = qelcore::UTF8String (*)(qelmediatypes::TickTime, int);
  static const auto real = Real<Function>(
      "_ZN2MZ20SettingsDescriptions26CreateVideoFrameRateStringEN13qelmediatypes8TickTimeEi");
  return real(frameDuration, style);
}

}  // namespace MZ

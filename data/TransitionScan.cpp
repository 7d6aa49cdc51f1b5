#include "data/TransitionScan.h"

#include "data/LocalizedText.h"
#include "host/BE/Utilities.h"
#include "host/qelcore/UTF8String.h"

namespace Vantrel {
namespace {

const qelcore::UTF8String& InPrefix() {
  static const auto text = Localize("$$$/Handler/SequenceIndex/InPrefix=[IN]: #{comment}QELMX-4248997");
  return text;
}

const qelcore::UTF8String& OutPrefix() {
  static const auto text =
      Localize("$$$/Handler/SequenceIndex/OutPrefix=[OUT]: #{comment}QELMX-4248997");
  return text;
}

void AppendTransition(const BE::ITransition& transition, const qelcore::UTF8String& prefix,
                      TextShare& texts, ListTexts& transitions) {
  AppendName(transition.IsMissing() ? transitions.missing : transitions.present, prefix.View(),
             texts.ToUTF8(transition.GetDisplayName()));
}

}  // namespace

void ScanTransitions(const qelcore::Ref<BE::ITrackItem>& trackItem, TextShare& texts,
                     ListTexts& transitions) {
  if (const auto head = BE::TrackItemUtils::GetHeadTransition(trackItem)) {
    AppendTransition(*head, InPrefix(), texts, transitions);
  }
  if (const auto tail = BE::TrackItemUtils::GetTailTransition(trackItem)) {
    AppendTransition(*tail, OutPrefix(), texts, transitions);
  }
}

}  // namespace Vantrel

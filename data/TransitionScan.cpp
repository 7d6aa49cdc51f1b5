#include "data/TransitionScan.h"

#include <string>

#include "data/LocalizedText.h"
#include "host/BE/Utilities.h"
#include "host/qelcore/Strings.h"
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

void AddTransition(NameLists& transitions, const BE::ITransition& transition,
                   const qelcore::UTF8String& prefix) {
  std::string name(prefix.View());
  name.append(qelcore::string::UTF16to8(transition.GetDisplayName()).View());
  NameList& names = transition.IsMissing() ? transitions.missing : transitions.present;
  names.emplace_back(name);
}

}  // namespace

NameLists ScanTransitions(const qelcore::Ref<BE::ITrackItem>& trackItem) {
  NameLists transitions;
  if (const auto head = BE::TrackItemUtils::GetHeadTransition(trackItem)) {
    AddTransition(transitions, *head, InPrefix());
  }
  if (const auto tail = BE::TrackItemUtils::GetTailTransition(trackItem)) {
    AddTransition(transitions, *tail, OutPrefix());
  }
  return transitions;
}

}  // namespace Vantrel

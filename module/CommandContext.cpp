#include "module/CommandContext.h"

#include "host/qelcore/Localizer.h"
#include "module/FeatureFlag.h"

namespace Vantrel {

void RegisterSequenceIndexCommandContext(UIF::ShortcutManager& manager) {
  manager.GetContext("global");
  manager.AddContext(kSequenceIndexFeatureName,
                     qelcore::config::Localizer::Get().Localize(
                         "$$$/Corvel/Handlers/SequenceIndex/SequenceIndexContext=Sequence Index Panel"
                         "#{comment}QELMX-4248997"));
}

}  // namespace Vantrel

#include "module/CommandContext.h"

#include "data/LocalizedText.h"
#include "module/FeatureFlag.h"

namespace Vantrel {

void RegisterSequenceIndexCommandContext(UIF::ShortcutManager& manager) {
  manager.GetContext("global");
  static const auto title = Localize(
      "$$$/Corvel/Handlers/SequenceIndex/SequenceIndexContext=Sequence Index Panel"
      "#{comment}QELMX-4248997");
  manager.AddContext(kSequenceIndexFeatureName, title);
}

}  // namespace Vantrel

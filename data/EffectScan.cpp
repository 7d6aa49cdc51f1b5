#include "data/EffectScan.h"

#include <cstddef>

#include "host/qelcore/Reference.h"

namespace Vantrel {

void ScanEffects(const BE::IComponentOwner& components, TextShare& texts, ListTexts& effects) {
  const std::size_t count = components.GetComponentCount();
  for (std::size_t i = 0; i < count; ++i) {
    const auto reference = components.GetComponent(i);
    const BE::IComponent& component = qelcore::Required(reference);
    if (component.IsIntrinsic()) continue;
    AppendName(component.IsMissing() ? effects.missing : effects.present,
               texts.ToUTF8(component.GetDisplayName()));
  }
}

}  // namespace Vantrel

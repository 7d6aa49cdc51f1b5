#include "data/EffectScan.h"

#include <cstddef>

#include "host/qelcore/Reference.h"
#include "host/qelcore/Strings.h"

namespace Vantrel {

NameLists ScanEffects(const BE::IComponentOwner& components) {
  NameLists effects;
  const std::size_t count = components.GetComponentCount();
  for (std::size_t i = 0; i < count; ++i) {
    const auto reference = components.GetComponent(i);
    const BE::IComponent& component = qelcore::Required(reference);
    if (component.IsIntrinsic()) continue;
    NameList& names = component.IsMissing() ? effects.missing : effects.present;
    names.push_back(qelcore::string::UTF16to8(component.GetDisplayName()));
  }
  return effects;
}

}  // namespace Vantrel

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// Switches a beta feature on or off, registered yet or not. [any-thread]
STANDALONE_API void SwitchFeature(std::string_view name, bool isOn);

/// A registered beta feature, for the menu that switches it.
struct FeatureEntry {
  std::string name;
  std::uint32_t stage = 0;
  std::string titleKey;
  std::string descriptionKey;
  std::string trackingKey;
  std::uint32_t visibility = 0;
  std::uint32_t changes = 0;
  std::uint32_t defaultEnablement = 0;
};

/// The features that exist now, in the order registered. [any-thread]
STANDALONE_API std::vector<FeatureEntry> GetRegisteredFeatures();

}  // namespace standalone

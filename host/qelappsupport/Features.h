#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "host/HostAPI.h"

namespace qelappsupport::feature {

/// How far a feature has come; the values are the host's. 2 is a beta that users may switch on.
enum class FeatureStage : std::uint32_t {};
/// Where the switch is shown; 0 is in this application only.
enum class VisibilityInAllClientApps : std::uint32_t {};
/// When a switch takes effect; 1 is at once, without a restart.
enum class EnablementChanges : std::uint32_t {};
/// The switch's first position; 0 is off.
enum class DefaultEnablement : std::uint32_t {};

/// A feature that users can switch on and off. It exists for the host as long as this object does.
class HOST_API BetaFeature {
 public:
  /// Registers the feature. Titles are localisation keys, resolved when they are shown.
  /// Texts are copied. [main-thread]; runs while the module's library is being loaded.
  BetaFeature(std::string_view name, FeatureStage stage, std::string_view titleKey,
              std::string_view descriptionKey, std::string_view trackingKey,
              VisibilityInAllClientApps visibility, EnablementChanges changes,
              DefaultEnablement enablement);
  BetaFeature(const BetaFeature&) = delete;
  BetaFeature& operator=(const BetaFeature&) = delete;
  /// Unregisters the feature; the user's switch for its name is remembered. Throws: nothing.
  ~BetaFeature();

 private:
  class State;
  std::unique_ptr<State> state;
};

/// True when a feature of that name is registered and switched on. [any-thread]
HOST_API bool IsFeatureEnabled(std::string_view name);

}  // namespace qelappsupport::feature

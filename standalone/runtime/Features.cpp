#include "host/qelappsupport/Features.h"

#include <algorithm>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <vector>

#include "standalone/runtime/FeatureRegistry.h"
#include "standalone/runtime/Runtime.h"

namespace qelappsupport::feature {

namespace {

using standalone::FeatureEntry;

/// The features of the process: static objects of libraries register before any runtime exists. Made
/// with the first feature, so it is destroyed after the last one.
class FeatureRegistry {
 public:
  static FeatureRegistry& Get() {
    static FeatureRegistry registry;
    return registry;
  }

  void Add(const FeatureEntry* feature) {
    const std::scoped_lock lock(mutex);
    features.push_back(feature);
  }

  void Remove(const FeatureEntry* feature) noexcept {
    const std::scoped_lock lock(mutex);
    std::erase(features, feature);
  }

  void Switch(std::string_view name, bool isOn) {
    const std::scoped_lock lock(mutex);
    switches.insert_or_assign(std::string(name), isOn);
  }

  bool IsEnabled(std::string_view name) const {
    const std::scoped_lock lock(mutex);
    const auto found = std::find_if(features.begin(), features.end(),
                                    [&](const FeatureEntry* feature) { return feature->name == name; });
    if (found == features.end()) return false;
    const auto chosen = switches.find(name);
    return chosen != switches.end() ? chosen->second : (*found)->defaultEnablement != 0;
  }

  std::vector<FeatureEntry> GetEntries() const {
    const std::scoped_lock lock(mutex);
    std::vector<FeatureEntry> entries;
    for (const FeatureEntry* feature : features) entries.push_back(*feature);
    return entries;
  }

 private:
  mutable std::mutex mutex;
  std::vector<const FeatureEntry*> features;
  std::map<std::string, bool, std::less<>> switches;  ///< What users chose, by name.
};

}  // namespace

/// A feature's entry, registered for its lifetime.
class BetaFeature::State {
 public:
  explicit State(FeatureEntry newEntry) : entry(std::move(newEntry)) {
    FeatureRegistry::Get().Add(&entry);
  }
  ~State() { FeatureRegistry::Get().Remove(&entry); }
  State(const State&) = delete;
  State& operator=(const State&) = delete;

 private:
  const FeatureEntry entry;
};

BetaFeature::BetaFeature(std::string_view name, FeatureStage stage, std::string_view titleKey,
                         std::string_view descriptionKey, std::string_view trackingKey,
                         VisibilityInAllClientApps visibility, EnablementChanges changes,
                         DefaultEnablement enablement) {
  standalone::AssertMainThread("BetaFeature");
  state = std::make_unique<State>(FeatureEntry{
      std::string(name), static_cast<std::uint32_t>(stage), std::string(titleKey),
      std::string(descriptionKey), std::string(trackingKey), static_cast<std::uint32_t>(visibility),
      static_cast<std::uint32_t>(changes), static_cast<std::uint32_t>(enablement)});
}

BetaFeature::~BetaFeature() = default;

bool IsFeatureEnabled(std::string_view name) {
  return FeatureRegistry::Get().IsEnabled(name);
}

}  // namespace qelappsupport::feature

namespace standalone {

using qelappsupport::feature::FeatureRegistry;

void SwitchFeature(std::string_view name, bool isOn) {
  FeatureRegistry::Get().Switch(name, isOn);
}

std::vector<FeatureEntry> GetRegisteredFeatures() {
  return FeatureRegistry::Get().GetEntries();
}

}  // namespace standalone

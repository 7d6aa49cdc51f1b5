#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/HSL/Handler.h"
#include "host/HSL/Module.h"
#include "standalone/framework/RegistrationScope.h"

namespace standalone {

/// Factories by the id of what they make. They arrive while libraries are being loaded, before any
/// runtime or framework exists. [main-thread]
template <typename Factory>
class FactoryRegistry {
 public:
  struct Entry {
    std::string id;
    Factory factory;
    LibraryID library;
  };

  void Register(std::string_view id, Factory factory) {
    entries.push_back({std::string(id), factory, RegistrationScope::Current()});
  }

  /// The entry registered last for an id, or null.
  const Entry* Find(std::string_view id) const {
    for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) {
      if (entry->id == id) return &*entry;
    }
    return nullptr;
  }

  std::vector<std::string> GetIDs() const {
    std::vector<std::string> ids;
    for (const Entry& entry : entries) ids.push_back(entry.id);
    return ids;
  }

  void Withdraw(LibraryID library) noexcept {
    std::erase_if(entries, [library](const Entry& entry) { return entry.library == library; });
  }

 private:
  std::vector<Entry> entries;
};

/// The factories of the process.
FactoryRegistry<HSL::Handler::Factory>& GetHandlerFactories();
FactoryRegistry<HSL::Module::Factory>& GetModuleFactories();

}  // namespace standalone

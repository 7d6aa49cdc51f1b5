#include "standalone/framework/FactoryRegistry.h"

#include "standalone/framework/Framework.h"

namespace standalone {

// Function-local, so that they are there for static registrations and outlive those who made them.

FactoryRegistry<HSL::Handler::Factory>& GetHandlerFactories() {
  static FactoryRegistry<HSL::Handler::Factory> factories;
  return factories;
}

FactoryRegistry<HSL::Module::Factory>& GetModuleFactories() {
  static FactoryRegistry<HSL::Module::Factory> factories;
  return factories;
}

std::vector<std::string> GetRegisteredHandlerFactories() {
  return GetHandlerFactories().GetIDs();
}
std::vector<std::string> GetRegisteredModuleFactories() {
  return GetModuleFactories().GetIDs();
}

}  // namespace standalone

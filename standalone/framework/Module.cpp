#include "host/HSL/Module.h"

#include "standalone/framework/FactoryRegistry.h"
#include "standalone/runtime/Runtime.h"

namespace HSL {

Module::Module(const qelcore::UTF8String& moduleID) : moduleID(moduleID) {}
Module::~Module() = default;

void Module::RegisterFactory(std::string_view moduleID, Factory factory) {
  standalone::AssertMainThread("Module::RegisterFactory");
  standalone::GetModuleFactories().Register(moduleID, factory);
}

}  // namespace HSL

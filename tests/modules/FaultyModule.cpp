// Modules that a host must cope with; the build makes one library for each fault.

#include <memory>
#include <new>

#include "host/HSL/Handler.h"
#include "host/HSL/Module.h"
#include "host/UIF/ShortcutManager.h"
#include "host/UIF/Windows.h"

namespace Vantrel {

namespace {

std::shared_ptr<HSL::Handler> MakeNoHandler(const qelcore::UTF8String&) {
  return nullptr;
}

struct Registration {
  Registration() { HSL::Handler::RegisterFactory("FaultyHandler", &MakeNoHandler); }
};
const Registration kRegistration;

#ifdef FAULT_FAILING
/// A failure whose code goes with the library.
class OwnFailure final : public std::exception {
 public:
  const char* what() const noexcept override { return "out of film"; }
};
#endif

class FaultyModule final : public HSL::Module {
 public:
  explicit FaultyModule(const qelcore::UTF8String& moduleID) : HSL::Module(moduleID) {}
};

}  // namespace

#ifndef FAULT_NO_ENTRY
HOST_API HSL::Module* CreateModule(const qelcore::UTF8String& moduleID) {
#ifdef FAULT_NO_MODULE
  return nullptr;
#endif
#ifdef FAULT_FAILING
  throw OwnFailure();
#endif
#ifdef FAULT_LITTERING
  // Registers, and never withdraws.
  UIF::ShortcutManager::Instance().AddContext("Litter", qelcore::UTF8String("Litter"));
  UIF::AddWindowClass("Litter", "FaultyHandler", UIF::WindowClassType{1});
  UIF::AddWindow("Litter", 0, qelcore::UTF8String("Litter"), 0);
  UIF::ShortcutManager::Instance().AddWindowMenuID("Litter", qelcore::UTF8String("Litter"), "Litter");
#endif
  return new (std::nothrow) FaultyModule(moduleID);
}
#endif

}  // namespace Vantrel

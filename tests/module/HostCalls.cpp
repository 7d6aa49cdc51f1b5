#include "host/HSL/Module.h"
#include "module/LoadCalls.h"
#include "standalone/framework/Framework.h"
#include "support/LocalizerHostCalls.h"
#include "support/PanelHostCalls.h"

namespace hostcalls {

// Function-local, since it is written to while the program is being loaded.
std::vector<std::string>& GetLoadCalls() {
  static std::vector<std::string> calls;
  return calls;
}

}  // namespace hostcalls

namespace HSL {

void Handler::RegisterFactory(std::string_view handlerID, Factory factory) {
  hostcalls::GetLoadCalls().push_back(
      "handler " + std::string(handlerID) + ", features " +
      std::to_string(standalone::GetRegisteredFeatures().size()) + ", module factories " +
      std::to_string(standalone::GetRegisteredModuleFactories().size()));
  using Function = void (*)(std::string_view, Factory);
  static const auto real = Real<Function>(
      "_ZN3HSL7Handler15RegisterFactoryESt17basic_string_viewIcSt11char_traitsIcEEPFSt10shared_ptrIS0_"
      "ERKN7qelcore10UTF8StringEE");
  real(handlerID, factory);
}

void Module::RegisterFactory(std::string_view moduleID, Factory factory) {
  hostcalls::GetLoadCalls().push_back(
      "module " + std::string(moduleID) + ", features " +
      std::to_string(standalone::GetRegisteredFeatures().size()) + ", handler factories " +
      std::to_string(standalone::GetRegisteredHandlerFactories().size()));
  using Function = void (*)(std::string_view, Factory);
  static const auto real = Real<Function>(
      "_ZN3HSL6Module15RegisterFactoryESt17basic_string_viewIcSt11char_traitsIcEEPFPS0_RKN7qelcore10"
      "UTF8StringEE");
  real(moduleID, factory);
}

}  // namespace HSL

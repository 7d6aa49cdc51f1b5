#include "module/ModuleEntry.h"

#include <memory>
#include <new>

#include "host/HSL/Handler.h"
#include "host/UIF/ShortcutManager.h"
#include "host/qelappsupport/Features.h"
#include "module/CommandContext.h"
#include "module/FeatureFlag.h"
#include "module/SequenceIndexHandler.h"
#include "module/SequenceIndexModule.h"

namespace Vantrel {

namespace {

namespace feature = qelappsupport::feature;

// What is registered while the library is being loaded. Objects of one file are constructed in their
// order here and destroyed in reverse: the feature is there before the factories and outlives them.

const feature::BetaFeature kSequenceIndexBetaFeature(
    kSequenceIndexFeatureName, feature::FeatureStage{2},
    "$$$/Tessalo/Handlers/SequenceIndex/EnableSequenceIndex=Sequence Index",
    "$$$/Tessalo/Handlers/SequenceIndex/EnableSequenceIndexBetaFeatureDescription="
    "View your timeline contents in a table view, filter by various criteria, and search for specific "
    "items.",
    "QELMX-4248997", feature::VisibilityInAllClientApps{0}, feature::EnablementChanges{1},
    feature::DefaultEnablement{0});

class HandlerFactoryRegistration {
 public:
  HandlerFactoryRegistration() {
    HSL::Handler::RegisterFactory(HSL::kSequenceIndexHandlerID, &CreateSequenceIndexHandler);
  }
};
const HandlerFactoryRegistration kHandlerFactoryRegistration;

class ModuleFactoryRegistration {
 public:
  ModuleFactoryRegistration() {
    HSL::Module::RegisterFactory(HSL::kSequenceIndexModuleID, &CreateModule);
  }
};
const ModuleFactoryRegistration kModuleFactoryRegistration;

}  // namespace

HSL::Module* CreateModule(const qelcore::UTF8String& moduleID) {
  std::unique_ptr<SequenceIndexModule> module(new (std::nothrow) SequenceIndexModule(moduleID));
  if (module == nullptr) return nullptr;
  UIF::ShortcutManager::Instance().RegisterCommandContext(&RegisterSequenceIndexCommandContext);
  return module.release();
}

}  // namespace Vantrel

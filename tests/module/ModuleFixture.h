#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "host/HSL/Handler.h"
#include "host/UIF/TabView.h"
#include "module/SequenceIndexHandler.h"
#include "standalone/framework/Framework.h"
#include "standalone/runtime/StationRegistry.h"
#include "support/Answers.h"
#include "support/Drafts.h"
#include "support/HostCalls.h"
#include "support/HostFaults.h"
#include "support/SteppedHost.h"
#include "view/SequenceIndexView.h"

namespace Vantrel {

using Calls = std::vector<std::string>;
using drafts::MakeOneClip;

/// The host with the panel's feature switched on; the handler comes with GetHandler.
class ModuleFixture : public testing::Test {
 protected:
  ModuleFixture() { standalone::SwitchFeature("SequenceIndex", true); }
  ~ModuleFixture() override { hostcalls::activeProjectInstead.reset(); }

  std::shared_ptr<SequenceIndexHandler> GetHandler() {
    return std::dynamic_pointer_cast<SequenceIndexHandler>(
        host->GetFramework().ProvideHandler(HSL::kSequenceIndexHandlerID));
  }
  std::shared_ptr<UIF::WorkspaceFrame> MakeFrame() {
    return std::make_shared<UIF::WorkspaceFrame>(qelui::Rect{0, 0, 800, 600});
  }
  std::size_t CountListeners(const qelcore::messaging::StationID& station) {
    return host->GetRuntime().GetStations().CountListeners(station);
  }
  qelcore::messaging::StationID GetProjectStation() {
    return qelcore::RequireInterface<BE::INotification>(host->GetProject().GetProject())
        ->GetStationID();
  }

  SteppedHost host;
};

}  // namespace Vantrel

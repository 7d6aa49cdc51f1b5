#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "host/BE/Messages.h"
#include "host/MZ/Messages.h"
#include "host/qelcore/Exceptions.h"
#include "standalone/runtime/StationRegistry.h"
#include "support/Answers.h"
#include "support/Drafts.h"
#include "support/Fakes.h"
#include "support/HostCalls.h"
#include "support/HostFaults.h"
#include "support/SteppedHost.h"
#include "view/SequenceIndexView.h"

namespace Vantrel {

using Calls = std::vector<std::string>;
using drafts::MakeOneClip;

/// A view without a handler, in a room of a test's choice.
class ViewFixture : public testing::Test {
 protected:
  static constexpr qelui::Rect kRoom{100, 50, 800, 600};

  ~ViewFixture() override { hostcalls::activeProjectInstead.reset(); }

  void CreateContents(const qelui::Rect& room = kRoom) {
    view->Create("handler", qelcore::UTF8String("title"), std::make_shared<UIF::WorkspaceFrame>(room),
                 true);
  }
  /// The stations of a sequence, content first.
  static std::vector<qelcore::messaging::StationID> GetStations(
      const qelcore::Ref<BE::ISequence>& sequence) {
    return {qelcore::RequireInterface<BE::ISequenceContent>(sequence)->GetStationID(),
            qelcore::RequireInterface<BE::ISequenceTrackGroups>(sequence)->GetStationID()};
  }
  static Calls MakeCalls(const char* name, const qelcore::Ref<BE::ISequence>& sequence) {
    Calls calls;
    for (const auto& station : GetStations(sequence)) {
      calls.push_back(std::string(name) + "(" + std::string(station.View()) + ")");
    }
    return calls;
  }
  bool IsSubscribedTo(const qelcore::Ref<BE::ISequence>& sequence) {
    std::size_t count = 0;
    for (const auto& station : GetStations(sequence)) {
      count += host->GetRuntime().GetStations().CountListeners(station);
    }
    return count == 2;
  }

  SteppedHost host;
  Answers answers;
  std::shared_ptr<SequenceIndexView> view =
      qelcore::memory::MakeShareable<SequenceIndexView>(std::shared_ptr<SequenceIndexHandler>());
};

}  // namespace Vantrel

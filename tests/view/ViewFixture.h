#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "host/BE/Messages.h"
#include "host/MZ/Messages.h"
#include "host/MZ/Sequences.h"
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
  /// The stations of a sequence: its content, its track groups, and its player if it was opened.
  static std::vector<qelcore::messaging::StationID> GetStations(
      const qelcore::Ref<BE::ISequence>& sequence) {
    std::vector<qelcore::messaging::StationID> stations{
        qelcore::RequireInterface<BE::ISequenceContent>(sequence)->GetStationID(),
        qelcore::RequireInterface<BE::ISequenceTrackGroups>(sequence)->GetStationID()};
    if (const auto player = MZ::GetSequencePlayer(sequence, 0)) {
      stations.push_back(player->GetStationID());
    }
    return stations;
  }
  static std::string MakeCall(const char* name, const qelcore::messaging::StationID& station) {
    return std::string(name) + "(" + std::string(station.View()) + ")";
  }
  static Calls MakeCalls(const char* name, const qelcore::Ref<BE::ISequence>& sequence) {
    Calls calls;
    for (const auto& station : GetStations(sequence)) calls.push_back(MakeCall(name, station));
    return calls;
  }
  static Calls Join(Calls calls, const Calls& more) {
    calls.insert(calls.end(), more.begin(), more.end());
    return calls;
  }
  std::size_t CountListeners(const qelcore::messaging::StationID& station) {
    return host->GetRuntime().GetStations().CountListeners(station);
  }
  bool IsSubscribedTo(const qelcore::Ref<BE::ISequence>& sequence) {
    const auto stations = GetStations(sequence);
    return std::ranges::all_of(stations,
                               [this](const auto& station) { return CountListeners(station) == 1; });
  }

  std::string GetStatus() const { return std::string(view->GetStatusText()->GetValue().View()); }

  SteppedHost host;
  Answers answers;
  std::shared_ptr<SequenceIndexView> view =
      qelcore::memory::MakeShareable<SequenceIndexView>(std::shared_ptr<SequenceIndexHandler>());
};

}  // namespace Vantrel

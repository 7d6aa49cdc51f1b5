#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/BE/Messages.h"
#include "host/ML/Player.h"
#include "host/MZ/Messages.h"
#include "host/MZ/Sequences.h"
#include "model/ModelFixture.h"
#include "standalone/model/PlayerNode.h"
#include "standalone/model/ProjectModel.h"
#include "standalone/runtime/StationRegistry.h"

namespace projectmodel {

using qelcore::Ref;
using qelcore::messaging::Message;
using qelcore::messaging::StationID;

inline std::string NameOf(const Ref<BE::ISequence>& sequence) {
  return sequence ? std::string(sequence->GetName().View()) : "none";
}

/// Writes down what a message says, and what the active sequence was meanwhile.
inline std::string Describe(const Message& message) {
  if (const auto* opened = dynamic_cast<const MZ::SequenceOpenedMessage*>(&message)) {
    return "opened " + NameOf(opened->GetSequence()) + (opened->IsToBeShown() ? " shown" : "");
  }
  if (const auto* activated = dynamic_cast<const MZ::SequenceActivatedMessage*>(&message)) {
    return "activated " + NameOf(activated->GetSequence());
  }
  if (const auto* closed = dynamic_cast<const MZ::SequenceClosedMessage*>(&message)) {
    return "closed " + NameOf(closed->GetSequence());
  }
  if (const auto* changed = dynamic_cast<const BE::SequenceChangedMessage*>(&message)) {
    return "changed " + NameOf(changed->GetSequence());
  }
  if (dynamic_cast<const BE::TrackGroupChangedMessage*>(&message) != nullptr) return "tracks";
  if (dynamic_cast<const BE::ProjectClosedMessage*>(&message) != nullptr) return "project closed";
  if (const auto* moved = dynamic_cast<const ML::PlayerPositionChangedMessage*>(&message)) {
    return "kind " + std::to_string(static_cast<std::uint32_t>(moved->GetKind()));
  }
  return "?";
}

using Notes = std::vector<std::string>;

class Recorder final : public qelcore::messaging::Listener {
 public:
  Recorder(std::string station, Notes& notes) : station(std::move(station)), notes(notes) {}
  void ReceiveMessage(const Message& message) override {
    notes.push_back(station + ": " + Describe(message));
  }

 private:
  std::string station;
  Notes& notes;
};

class ProjectModelTest : public testing::Test {
 protected:
  ProjectModelTest() {
    project.emplace();
    Listen("info", MZ::kStation_Info);
    Listen("activation", MZ::kStation_SequenceActivation);
    Listen("project", StationOf<BE::INotification>(project->GetProject()));
  }

  template <typename Interface, typename Object>
  static StationID StationOf(const Ref<Object>& object) {
    return qelcore::RequireInterface<Interface>(object)->GetStationID();
  }

  void Listen(const std::string& name, const StationID& station) {
    recorders.push_back(std::make_shared<Recorder>(name, notes));
    qelcore::messaging::AddWeakPtrListener(station, recorders.back());
  }
  void ListenTo(const Ref<BE::ISequence>& sequence) {
    Listen("content", StationOf<BE::ISequenceContent>(sequence));
    Listen("groups", StationOf<BE::ISequenceTrackGroups>(sequence));
  }

  void ListenToPlayer(const Ref<BE::ISequence>& sequence) {
    Listen("player", standalone::FindPlayer(sequence)->GetStationID());
  }

  Ref<BE::ISequence> Add(std::string_view name) {
    return project->AddDocument(drafts::MakeDocument(drafts::MakeSequence(name))).front();
  }
  /// A sequence of ten frames, opened.
  Ref<BE::ISequence> AddOpened(std::string_view name) {
    const auto added = project->AddDocument(drafts::MakeDocument(drafts::MakeOneClip(name))).front();
    project->ActivateSequence(added);
    TakeNotes();
    return added;
  }
  std::size_t CountListeners(const StationID& station) {
    return runtime.GetStations().CountListeners(station);
  }
  Notes TakeNotes() { return std::exchange(notes, {}); }

  standalone::Runtime runtime;
  std::optional<standalone::ProjectModel> project;
  Notes notes;
  std::vector<std::shared_ptr<Recorder>> recorders;
};

}  // namespace projectmodel

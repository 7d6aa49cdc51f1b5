#include "standalone/model/ProjectModel.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "host/BE/Messages.h"
#include "host/MZ/Messages.h"
#include "host/qelcore/Exceptions.h"
#include "host/qelcore/Messaging.h"
#include "standalone/model/ActiveProject.h"
#include "standalone/model/SequenceNode.h"
#include "standalone/model/TextPool.h"
#include "standalone/runtime/Runtime.h"

namespace standalone {
namespace {

using qelcore::Ref;
using qelcore::messaging::BroadcastMessageOnMainThread;

ProjectModel* currentModel = nullptr;

/// A station for the lifetime of this object.
class OpenStation {
 public:
  explicit OpenStation(const qelcore::messaging::StationID& station) : station(station) {
    qelcore::messaging::RegisterStation(station);
  }
  ~OpenStation() { qelcore::messaging::DisposeStation(station); }
  OpenStation(const OpenStation&) = delete;
  OpenStation& operator=(const OpenStation&) = delete;

 private:
  const qelcore::messaging::StationID& station;
};

bool HaveSameFacts(const SequenceContent& left, const SequenceContent& right) {
  return left.name == right.name && left.zeroPoint == right.zeroPoint &&
         left.videoFrameDuration == right.videoFrameDuration &&
         left.audioFrameDuration == right.audioFrameDuration && left.isDropFrame == right.isDropFrame &&
         left.timeFormat == right.timeFormat;
}

bool HaveSameTracks(const SequenceContent& left, const SequenceContent& right) {
  return left.videoGroup.tracks.size() == right.videoGroup.tracks.size() &&
         left.audioGroup.tracks.size() == right.audioGroup.tracks.size();
}

void AnnounceActivation(const Ref<BE::ISequence>& active) {
  BroadcastMessageOnMainThread(MZ::kStation_SequenceActivation, MZ::SequenceActivatedMessage(active));
}

}  // namespace

const ProjectModel* FindProjectModel() noexcept {
  return currentModel;
}

class ProjectModel::State {
 public:
  /// A sequence of this project by a reference to it. Throws when it is not one.
  Ref<SequenceNode> Find(const Ref<BE::ISequence>& sequence) const;
  bool IsOpen(const Ref<SequenceNode>& node) const {
    return std::find(opened.begin(), opened.end(), node) != opened.end();
  }
  /// Makes the most recently active one of the open sequences the active one; none if none is open.
  void FallBack() { active = opened.empty() ? Ref<SequenceNode>() : opened.back(); }

  OpenStation info{MZ::kStation_Info};
  OpenStation sequenceActivation{MZ::kStation_SequenceActivation};
  OpenStation trackItemActivation{MZ::kStation_TrackItemActivation};
  const Ref<ProjectNode> project{new ProjectNode};
  std::vector<Ref<SequenceNode>> timelines;
  std::vector<Ref<SequenceNode>> nested;
  /// The open ones, the most recently active last.
  std::vector<Ref<SequenceNode>> opened;
  Ref<SequenceNode> active;
};

Ref<SequenceNode> ProjectModel::State::Find(const Ref<BE::ISequence>& sequence) const {
  qelcore::Required(sequence);
  const auto node = qelcore::QueryInterface<SequenceNode>(sequence);
  if (std::find(timelines.begin(), timelines.end(), node) == timelines.end()) {
    throw qelcore::config::qel_exception(qelcore::config::ExceptionKind::kGeneric,
                                         "The sequence does not belong to the project",
                                         std::string(sequence->GetName().View()));
  }
  return node;
}

ProjectModel::ProjectModel() : state(std::make_unique<State>()) {
  AssertMainThread("ProjectModel::ProjectModel");
  currentModel = this;
}

ProjectModel::~ProjectModel() {
  AssertMainThread("ProjectModel::~ProjectModel");
  BroadcastMessageOnMainThread(state->project->GetStationID(), BE::ProjectClosedMessage());
  state->project->Close();
  currentModel = nullptr;
}

ProjectModel& ProjectModel::Current() {
  if (currentModel == nullptr) {
    std::fputs("There is no project\n", stderr);
    std::abort();
  }
  return *currentModel;
}

Ref<BE::IProject> ProjectModel::GetProject() const {
  return Ref<BE::IProject>(state->project);
}

std::vector<Ref<BE::ISequence>> ProjectModel::AddDocument(DocumentDraft document) {
  AssertMainThread("ProjectModel::AddDocument");
  TextPool texts;
  std::vector<Ref<BE::ISequence>> added;
  for (std::size_t i = 0; i < document.sequences.size(); ++i) {
    auto content = BuildContent(document.sequences[i], state->project, texts);
    // A draft can be larger than what is made of it: each goes as soon as it was read.
    document.sequences[i] = SequenceDraft();
    const Ref<SequenceNode> node(new SequenceNode(std::move(content)));
    const bool isTimeline = i < document.timelineCount;
    (isTimeline ? state->timelines : state->nested).push_back(node);
    if (isTimeline) added.emplace_back(node);
  }
  return added;
}

std::vector<Ref<BE::ISequence>> ProjectModel::GetNestedSequences() const {
  return {state->nested.begin(), state->nested.end()};
}

std::vector<Ref<BE::ISequence>> ProjectModel::GetSequences() const {
  return {state->timelines.begin(), state->timelines.end()};
}

Ref<BE::ISequence> ProjectModel::GetActiveSequence() const {
  return state->active;
}

void ProjectModel::ActivateSequence(const Ref<BE::ISequence>& sequence) {
  AssertMainThread("ProjectModel::ActivateSequence");
  const Ref<SequenceNode> node = state->Find(sequence);
  if (!state->IsOpen(node)) {
    constexpr bool kIsToBeShown = true;
    state->opened.insert(state->opened.begin(), node);
    BroadcastMessageOnMainThread(MZ::kStation_Info, MZ::SequenceOpenedMessage(node, kIsToBeShown));
  }
  std::erase(state->opened, node);
  state->opened.push_back(node);
  state->active = node;
  AnnounceActivation(node);
}

void ProjectModel::CloseSequence(const Ref<BE::ISequence>& sequence) {
  AssertMainThread("ProjectModel::CloseSequence");
  const Ref<SequenceNode> node = state->Find(sequence);
  if (std::erase(state->opened, node) == 0) return;
  if (state->active == node) state->FallBack();
  BroadcastMessageOnMainThread(MZ::kStation_Info, MZ::SequenceClosedMessage(node));
  AnnounceActivation(state->active);
}

void ProjectModel::ReplaceSequence(const Ref<BE::ISequence>& sequence, SequenceDraft draft) {
  AssertMainThread("ProjectModel::ReplaceSequence");
  const Ref<SequenceNode> node = state->Find(sequence);
  TextPool texts;
  const auto next = BuildContent(draft, state->project, texts);
  const auto previous = node->Publish(next);
  BroadcastMessageOnMainThread(node->GetContentStation(), BE::SequenceChangedMessage(node));
  if (!HaveSameTracks(*previous, *next)) {
    BroadcastMessageOnMainThread(node->GetTrackGroupStation(), BE::TrackGroupChangedMessage());
  }
  if (!HaveSameFacts(*previous, *next)) {
    BroadcastMessageOnMainThread(state->project->GetStationID(), BE::SequenceChangedMessage(node));
  }
}

}  // namespace standalone

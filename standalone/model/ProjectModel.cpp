#include "standalone/model/ProjectModel.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <unordered_map>
#include <utility>

#include "host/BE/Messages.h"
#include "host/MZ/Messages.h"
#include "host/qelcore/Exceptions.h"
#include "host/qelcore/Messaging.h"
#include "standalone/model/ActiveProject.h"
#include "standalone/model/SequenceNode.h"
#include "standalone/model/TextPool.h"
#include "standalone/runtime/LetDieOnPool.h"
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
  /// What one file brought.
  struct Document {
    std::vector<Ref<SequenceNode>> timelines;
    /// The sequences that the timelines nest.
    std::vector<Ref<SequenceNode>> nested;
  };

  /// The document of a timeline; none when it is not one of this project.
  auto FindDocument(const Ref<SequenceNode>& timeline) {
    return std::ranges::find_if(documents, [&](const Document& document) {
      return std::ranges::find(document.timelines, timeline) != document.timelines.end();
    });
  }
  /// All sequences of one kind.
  std::vector<Ref<BE::ISequence>> List(std::vector<Ref<SequenceNode>> Document::*kind) const {
    std::vector<Ref<BE::ISequence>> list;
    for (const Document& document : documents) {
      list.insert(list.end(), (document.*kind).begin(), (document.*kind).end());
    }
    return list;
  }
  /// A sequence of this project by a reference to it. Throws when it is not one.
  Ref<SequenceNode> Find(const Ref<BE::ISequence>& sequence);
  /// Publishes a timeline's content anew and announces what changed. Returns what was published before.
  Ref<SequenceContent> Replace(const Ref<SequenceNode>& node, const Ref<SequenceContent>& next);
  bool IsOpen(const Ref<SequenceNode>& node) const {
    return std::find(opened.begin(), opened.end(), node) != opened.end();
  }
  /// Makes the most recently active one of the open sequences the active one; none if none is open.
  void FallBack() { active = opened.empty() ? Ref<SequenceNode>() : opened.back(); }

  OpenStation info{MZ::kStation_Info};
  OpenStation sequenceActivation{MZ::kStation_SequenceActivation};
  OpenStation trackItemActivation{MZ::kStation_TrackItemActivation};
  const Ref<ProjectNode> project{new ProjectNode};
  /// In the order added.
  std::vector<Document> documents;
  /// The open ones, the most recently active last.
  std::vector<Ref<SequenceNode>> opened;
  Ref<SequenceNode> active;
};

Ref<SequenceNode> ProjectModel::State::Find(const Ref<BE::ISequence>& sequence) {
  qelcore::Required(sequence);
  const auto node = qelcore::QueryInterface<SequenceNode>(sequence);
  if (FindDocument(node) == documents.end()) {
    throw qelcore::config::qel_exception(qelcore::config::ExceptionKind::kGeneric,
                                         "The sequence does not belong to the project",
                                         std::string(sequence->GetName().View()));
  }
  return node;
}

Ref<SequenceContent> ProjectModel::State::Replace(const Ref<SequenceNode>& node,
                                                  const Ref<SequenceContent>& next) {
  const auto previous = node->Publish(next);
  if (node->GetPlayer()) node->GetPlayer()->SetEnd(next->clipsEnd);
  BroadcastMessageOnMainThread(node->GetContentStation(), BE::SequenceChangedMessage(node));
  if (!HaveSameTracks(*previous, *next)) {
    BroadcastMessageOnMainThread(node->GetTrackGroupStation(), BE::TrackGroupChangedMessage());
  }
  if (!HaveSameFacts(*previous, *next)) {
    BroadcastMessageOnMainThread(project->GetStationID(), BE::SequenceChangedMessage(node));
  }
  return previous;
}

ProjectModel::ProjectModel() : state(std::make_unique<State>()) {
  AssertMainThread("ProjectModel::ProjectModel");
  currentModel = this;
}

ProjectModel::~ProjectModel() {
  AssertMainThread("ProjectModel::~ProjectModel");
  // A copy: who hears of it may close sequences.
  for (const auto& node : std::vector(state->opened)) node->GetPlayer()->Close();
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

Ref<ProjectNode> ProjectModel::GetProjectNode() const noexcept {
  return state->project;
}

std::vector<Ref<BE::ISequence>> ProjectModel::AddDocument(DocumentDraft document) {
  return AddDocument(PreparedDocument(std::move(document)));
}

std::vector<Ref<BE::ISequence>> ProjectModel::AddDocument(PreparedDocument document) {
  const std::size_t count = document.CountTimelines();
  return ReplaceDocument(std::vector<std::optional<Ref<BE::ISequence>>>(count), std::move(document));
}

std::vector<Ref<BE::ISequence>> ProjectModel::ReplaceDocument(
    const std::vector<std::optional<Ref<BE::ISequence>>>& replaced, PreparedDocument document) {
  AssertMainThread("ProjectModel::ReplaceDocument");
  std::vector<Ref<SequenceContent>>& contents = document.GetContents();
  State::Document next;
  std::vector<std::pair<Ref<SequenceNode>, Ref<SequenceContent>>> changes;
  auto place = state->documents.end();
  // The timelines of the documents concerned, found once, so that each further one takes no search.
  std::unordered_map<const SequenceNode*, decltype(place)> homes;
  for (std::size_t i = 0; i < contents.size(); ++i) {
    if (i >= document.CountTimelines()) {
      next.nested.emplace_back(new SequenceNode(std::move(contents[i])));
    } else if (replaced.at(i)) {
      const auto node = qelcore::QueryInterface<SequenceNode>(*replaced[i]);
      if (!homes.contains(node.Get())) {
        const auto home = state->FindDocument(state->Find(*replaced[i]));
        for (const Ref<SequenceNode>& timeline : home->timelines) homes.emplace(timeline.Get(), home);
      }
      place = homes.at(node.Get());
      next.timelines.push_back(node);
      changes.emplace_back(next.timelines.back(), std::move(contents[i]));
    } else {
      next.timelines.emplace_back(new SequenceNode(std::move(contents[i])));
    }
  }
  const std::vector<Ref<BE::ISequence>> timelines(next.timelines.begin(), next.timelines.end());
  if (place == state->documents.end()) {
    state->documents.push_back(std::move(next));
  } else {
    // Those that the document no longer has stay until they are removed.
    for (const Ref<SequenceNode>& timeline : next.timelines) homes.erase(timeline.Get());
    for (const Ref<SequenceNode>& old : place->timelines) {
      if (homes.contains(old.Get())) next.timelines.push_back(old);
    }
    std::swap(place->timelines, next.timelines);
    std::swap(place->nested, next.nested);
    LetDieOnPool(std::move(next));
  }
  for (auto& [node, content] : changes) content = state->Replace(node, content);
  if (!changes.empty()) LetDieOnPool(std::move(changes));
  return timelines;
}

void ProjectModel::RemoveSequence(const Ref<BE::ISequence>& sequence) {
  AssertMainThread("ProjectModel::RemoveSequence");
  const Ref<SequenceNode> node = state->Find(sequence);
  CloseSequence(sequence);
  // Who heard of it may have removed the sequence.
  const auto document = state->FindDocument(node);
  if (document == state->documents.end()) return;
  std::erase(document->timelines, node);
  if (!document->timelines.empty()) return;
  LetDieOnPool(std::move(*document));
  state->documents.erase(document);
}

bool ProjectModel::HasSequence(const Ref<BE::ISequence>& sequence) const {
  AssertMainThread("ProjectModel::HasSequence");
  const auto node = qelcore::QueryInterface<SequenceNode>(sequence);
  return state->FindDocument(node) != state->documents.end();
}

std::vector<Ref<BE::ISequence>> ProjectModel::GetNestedSequences() const {
  return state->List(&State::Document::nested);
}

std::vector<Ref<BE::ISequence>> ProjectModel::GetSequences() const {
  return state->List(&State::Document::timelines);
}

Ref<BE::ISequence> ProjectModel::GetActiveSequence() const {
  return state->active;
}

void ProjectModel::ActivateSequence(const Ref<BE::ISequence>& sequence) {
  AssertMainThread("ProjectModel::ActivateSequence");
  const Ref<SequenceNode> node = state->Find(sequence);
  if (!state->IsOpen(node)) {
    constexpr bool kIsToBeShown = true;
    node->OpenPlayer();
    state->opened.insert(state->opened.begin(), node);
    BroadcastMessageOnMainThread(MZ::kStation_Info, MZ::SequenceOpenedMessage(node, kIsToBeShown));
    // Who heard of it may have closed the sequence.
    if (!state->IsOpen(node)) return;
  }
  std::erase(state->opened, node);
  state->opened.push_back(node);
  state->active = node;
  AnnounceActivation(node);
}

void ProjectModel::CloseSequence(const Ref<BE::ISequence>& sequence) {
  AssertMainThread("ProjectModel::CloseSequence");
  const Ref<SequenceNode> node = state->Find(sequence);
  if (!state->IsOpen(node)) return;
  node->GetPlayer()->Close();
  // Who heard of it may have closed the sequence.
  if (std::erase(state->opened, node) == 0) return;
  if (state->active == node) state->FallBack();
  BroadcastMessageOnMainThread(MZ::kStation_Info, MZ::SequenceClosedMessage(node));
  AnnounceActivation(state->active);
}

void ProjectModel::StopPlayback() {
  AssertMainThread("ProjectModel::StopPlayback");
  // A copy: who hears of it may close sequences.
  for (const auto& node : std::vector(state->opened)) node->GetPlayer()->Stop();
}

void ProjectModel::ReplaceSequence(const Ref<BE::ISequence>& sequence, SequenceDraft draft) {
  AssertMainThread("ProjectModel::ReplaceSequence");
  const Ref<SequenceNode> node = state->Find(sequence);
  TextPool texts;
  state->Replace(node, BuildContent(draft, state->project, texts));
}

}  // namespace standalone

#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"
#include "standalone/model/PreparedDocument.h"
#include "standalone/model/SequenceDraft.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

class ProjectNode;

/// The host's one project: its sequences, which of them are open, and which is active. There before
/// the first panel and for the whole life of the host, possibly empty. Unless they say otherwise, all
/// operations are [main-thread], and each announces what it did on the stations that panels listen to.
class STANDALONE_API ProjectModel {
 public:
  ProjectModel();
  /// Stops playback for good, then announces that the project is closed.
  ~ProjectModel();
  ProjectModel(const ProjectModel&) = delete;
  ProjectModel& operator=(const ProjectModel&) = delete;

  /// The project's model, which must be there. [any-thread]
  static ProjectModel& Current();

  qelcore::Ref<BE::IProject> GetProject() const;
  /// The same as the host's own class; never empty. [any-thread]
  qelcore::Ref<ProjectNode> GetProjectNode() const noexcept;

  /// Adds the timelines of a document, closed; returns them in file order.
  std::vector<qelcore::Ref<BE::ISequence>> AddDocument(DocumentDraft document);
  std::vector<qelcore::Ref<BE::ISequence>> AddDocument(PreparedDocument document);

  /// A document was read again. Its timeline `i` replaces the content of `replaced[i]`, as
  /// ReplaceSequence does, or is added, closed, where there is none; what the document nests replaces
  /// what it nested before. Returns its timelines in file order. What was shown before dies on the
  /// pool.
  std::vector<qelcore::Ref<BE::ISequence>> ReplaceDocument(
      const std::vector<std::optional<qelcore::Ref<BE::ISequence>>>& replaced,
      PreparedDocument document);

  /// Closes a timeline, if it is open, and takes it out of the project, with what its document nests if
  /// it is the last timeline of it; that dies on the pool. Throws: qel_exception when the project has
  /// no such timeline.
  void RemoveSequence(const qelcore::Ref<BE::ISequence>& sequence);
  /// Whether a sequence is a timeline of the project; false for an empty one.
  bool HasSequence(const qelcore::Ref<BE::ISequence>& sequence) const;

  /// The timelines of the project, in the order added; nested sequences are not listed.
  std::vector<qelcore::Ref<BE::ISequence>> GetSequences() const;
  /// The sequences that timelines nest, in the order added; items of the project that nothing opens by
  /// itself.
  std::vector<qelcore::Ref<BE::ISequence>> GetNestedSequences() const;
  qelcore::Ref<BE::ISequence> GetActiveSequence() const;

  /// Makes a sequence the active one. One that was not open yet is announced as opened first, to be
  /// shown; it has a player from its first opening on. Then the activation is announced.
  void ActivateSequence(const qelcore::Ref<BE::ISequence>& sequence);

  /// Closes an open sequence: stops its player, announces it, then the activation of the sequence then
  /// active (none if none is left, the most recently active one otherwise).
  void CloseSequence(const qelcore::Ref<BE::ISequence>& sequence);

  /// Stops every player. While one plays, the main queue never becomes empty.
  void StopPlayback();

  /// Publishes a sequence anew under the write lock, keeping its identity and its playhead. Announces a
  /// changed content on the sequence's content station, then, where they changed, the number of tracks
  /// on its track-group station, and name, start or format on the project's. Throws: qel_exception when
  /// the calling thread holds the read lock; nothing changes then.
  void ReplaceSequence(const qelcore::Ref<BE::ISequence>& sequence, SequenceDraft draft);

 private:
  class State;
  std::unique_ptr<State> state;
};

}  // namespace standalone

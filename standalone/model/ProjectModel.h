#pragma once

#include <memory>
#include <vector>

#include "host/BE/Model.h"
#include "host/qelcore/Reference.h"
#include "standalone/model/SequenceDraft.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

/// The host's one project: its sequences, which of them are open, and which is active. There before
/// the first panel and for the whole life of the host, possibly empty. All operations are
/// [main-thread]; each announces what it did on the stations that panels listen to.
class STANDALONE_API ProjectModel {
 public:
  ProjectModel();
  /// Announces that the project is closed.
  ~ProjectModel();
  ProjectModel(const ProjectModel&) = delete;
  ProjectModel& operator=(const ProjectModel&) = delete;

  static ProjectModel& Current();

  qelcore::Ref<BE::IProject> GetProject() const;

  /// Adds the timelines of a document, closed; returns them in file order.
  std::vector<qelcore::Ref<BE::ISequence>> AddDocument(DocumentDraft document);

  /// The timelines of the project, in the order added; nested sequences are not listed.
  std::vector<qelcore::Ref<BE::ISequence>> GetSequences() const;
  /// The sequences that timelines nest, in the order added; items of the project that nothing opens by
  /// itself.
  std::vector<qelcore::Ref<BE::ISequence>> GetNestedSequences() const;
  qelcore::Ref<BE::ISequence> GetActiveSequence() const;

  /// Makes a sequence the active one. One that was not open yet is announced as opened first, to be
  /// shown; then the activation is announced.
  void ActivateSequence(const qelcore::Ref<BE::ISequence>& sequence);

  /// Closes an open sequence: announces it, then the activation of the sequence then active (none if
  /// none is left, the most recently active one otherwise).
  void CloseSequence(const qelcore::Ref<BE::ISequence>& sequence);

  /// Publishes a sequence anew under the write lock, keeping its identity. Announces a changed content
  /// on the sequence's content station, then, where they changed, the number of tracks on its
  /// track-group station, and name, start or format on the project's. Throws: qel_exception when the
  /// calling thread holds the read lock; nothing changes then.
  void ReplaceSequence(const qelcore::Ref<BE::ISequence>& sequence, SequenceDraft draft);

 private:
  class State;
  std::unique_ptr<State> state;
};

}  // namespace standalone

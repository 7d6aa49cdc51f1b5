#pragma once

#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "host/qelcore/Threads.h"
#include "standalone/documents/DocumentSession.h"
#include "standalone/documents/LoadingJob.h"

namespace standalone {

/// What a session does: a queue of files, of which one is read at a time. Steps run on the pool, and
/// come back through the main queue, weakly, so that a session that is gone hears nothing. Whoever is
/// told of something may open and close files meanwhile: nothing is taken for granted after a call that
/// tells. [main-thread]
class DocumentSession::State : public std::enable_shared_from_this<DocumentSession::State> {
 public:
  using path = std::filesystem::path;

  State(ProjectModel& project, LoadingOptions options, DocumentObserver& observer);

  void Open(const path& file);
  void Reload(const path& file);
  void Close(const path& file);
  void SetTimeFormat(std::optional<TimeFormat> format);
  void Cancel();
  /// Cancels, and tells nobody.
  void Abandon();
  bool IsBusy() const noexcept { return current != nullptr; }
  const std::vector<OpenDocument>& GetDocuments() const noexcept { return documents; }

 private:
  using Sequence = qelcore::Ref<BE::ISequence>;
  using SharedJob = std::shared_ptr<LoadingJob>;
  template <typename Result>
  using Done = void (State::*)(const SharedJob&, LoadingOutcome<Result>&);

  /// These take a file as Identify gives it.
  OpenDocument* Find(const path& file);
  void Read(const path& file);
  void Fail(const path& file, const LoadingTrouble& trouble);
  void Show(const path& file, LoadedDocument& loaded);
  void AddNewDocument(const path& file, LoadedDocument& loaded);
  /// Replaces the contents of an open document's sequences, adds those that are new, removes those that
  /// are gone.
  void ReplaceContents(const path& file, PreparedDocument prepared);
  void TellOfChange(const path& file);

  void StartNext();
  void LoadTimeline(const SharedJob& job);
  void LoadMedia(const SharedJob& job, DocumentDraft draft);
  void TimelineLoaded(const SharedJob& job, LoadingOutcome<LoadedDocument>& outcome);
  void MediaLoaded(const SharedJob& job, LoadingOutcome<PreparedDocument>& outcome);
  void ShowMediaFacts(LoadingJob& job, LoadingOutcome<PreparedDocument>& outcome);
  void End(const SharedJob& job);
  bool IsObsolete(const SharedJob& job) const { return job != current || job->isCancelled; }

  /// Runs `work` on the pool, then `done` with its outcome on the main thread, if the session still is.
  template <typename Result, typename Work>
  void Run(const SharedJob& job, Work work, Done<Result> done);
  std::function<void(double)> MakeReport(const SharedJob& job, LoadingStep step);

  /// Takes sequences out of the project, those that are still in it.
  void RemoveSequences(std::vector<Sequence> sequences);

  ProjectModel& project;
  DocumentObserver& observer;
  std::shared_ptr<const LoadingOptions> options;
  std::vector<OpenDocument> documents;
  SharedJob current;
  std::deque<path> waiting;
  const std::shared_ptr<MediaProber> prober = std::make_shared<MediaProber>();
  const std::shared_ptr<qelcore::threads::AsyncExecutor> executor;
};

}  // namespace standalone

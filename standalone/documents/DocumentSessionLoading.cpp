#include <exception>
#include <utility>

#include "standalone/documents/DocumentSessionState.h"
#include "standalone/runtime/LetDieOnPool.h"

namespace standalone {

namespace {
constexpr unsigned kSoon = 0;
constexpr bool kAlsoInNestedLoops = true;
}  // namespace

void DocumentSession::State::StartNext() {
  if (waiting.empty()) return;
  current = std::make_shared<LoadingJob>();
  current->file = std::move(waiting.front());
  waiting.pop_front();
  LoadTimeline(current);
}

template <typename Result, typename Work>
void DocumentSession::State::Run(const SharedJob& job, Work work, Done<Result> done) {
  executor->Submit([job, done, work = std::move(work), weak = weak_from_this()]() mutable {
    auto outcome = std::make_shared<LoadingOutcome<Result>>();
    try {
      if (!job->isCancelled) outcome->result = work(*outcome);
    } catch (...) {
      outcome->trouble = DescribeFailure(std::current_exception());
    }
    qelcore::threads::CallFromMainThread(
        [job, done, outcome = std::move(outcome), weak]() mutable {
          if (const auto state = weak.lock()) {
            try {
              ((*state).*done)(job, *outcome);
            } catch (...) {
              // A step that failed must not keep the files behind it waiting.
              state->End(job);
              throw;
            }
          }
          LetDieOnPool(std::move(outcome));
        },
        kSoon, kAlsoInNestedLoops);
  });
}

std::function<void(double)> DocumentSession::State::MakeReport(const SharedJob& job, LoadingStep step) {
  // At most one report waits for the main thread, however often the worker has something to say.
  return [job, step, weak = weak_from_this()](double fraction) {
    job->fraction = fraction;
    if (job->isReporting.exchange(true)) return;
    qelcore::threads::CallFromMainThread(
        [job, step, weak] {
          job->isReporting = false;
          const auto state = weak.lock();
          if (!state || state->IsObsolete(job)) return;
          state->observer.LoadingProgressed(job->file, step, job->fraction);
        },
        kSoon, kAlsoInNestedLoops);
  };
}

void DocumentSession::State::LoadTimeline(const SharedJob& job) {
  ImportProgress progress;
  progress.report = MakeReport(job, LoadingStep::kTimeline);
  progress.isCancelled = [job] { return job->isCancelled.load(); };
  Run<LoadedDocument>(
      job,
      [job, options = options, progress = std::move(progress)](const LoadingOutcome<LoadedDocument>&) {
        return LoadDocument(job->file, *options, progress);
      },
      &State::TimelineLoaded);
}

void DocumentSession::State::TimelineLoaded(const SharedJob& job,
                                            LoadingOutcome<LoadedDocument>& outcome) {
  if (IsObsolete(job)) return End(job);
  if (!outcome.result) {
    Fail(job->file, outcome.trouble);
    return End(job);
  }
  if (outcome.result->draft && Find(job->file) != nullptr) {
    // Shown in one go: what media files told must not vanish from the panel for a moment.
    DocumentDraft draft = *std::exchange(outcome.result->draft, std::nullopt);
    job->heldBack = *std::move(outcome.result);
    return LoadMedia(job, std::move(draft));
  }
  Show(job->file, *outcome.result);
  // Whoever was told may have cancelled it.
  if (IsObsolete(job) || !outcome.result->draft || Find(job->file) == nullptr) return End(job);
  LoadMedia(job, *std::move(outcome.result->draft));
}

void DocumentSession::State::LoadMedia(const SharedJob& job, DocumentDraft draft) {
  ProbeProgress progress;
  progress.report = [report = MakeReport(job, LoadingStep::kMedia)](std::size_t done, std::size_t all) {
    if (all > 0) report(static_cast<double>(done) / static_cast<double>(all));
  };
  progress.isCancelled = [job] { return job->isCancelled.load(); };
  Run<PreparedDocument>(
      job,
      [options = options, prober = prober, progress = std::move(progress),
       draft = std::move(draft)](LoadingOutcome<PreparedDocument>& outcome) mutable {
        return LoadMediaFacts(std::move(draft), *options, *prober, progress, outcome.note);
      },
      &State::MediaLoaded);
}

void DocumentSession::State::MediaLoaded(const SharedJob& job,
                                         LoadingOutcome<PreparedDocument>& outcome) {
  if (!outcome.note.empty() && job == current) observer.MediaFilesCantBeRead(outcome.note);
  if (!IsObsolete(job)) ShowMediaFacts(*job, outcome);
  End(job);
}

void DocumentSession::State::ShowMediaFacts(LoadingJob& job,
                                            LoadingOutcome<PreparedDocument>& outcome) {
  auto heldBack = std::exchange(job.heldBack, std::nullopt);
  if (heldBack && Find(job.file) != nullptr) {
    if (outcome.result) heldBack->prepared = *std::exchange(outcome.result, std::nullopt);
    Show(job.file, *heldBack);
  }
  if (!outcome.trouble.sentence.empty()) {
    Fail(job.file, outcome.trouble);
  } else if (outcome.result && Find(job.file) != nullptr) {
    ReplaceContents(job.file, *std::move(outcome.result));
  }
}

void DocumentSession::State::End(const SharedJob& job) {
  if (job != current) return;
  current.reset();
  observer.LoadingEnded(job->file);
  if (!current) StartNext();
}

}  // namespace standalone

#include "standalone/probing/MediaProbe.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "standalone/probing/MediaFiles.h"
#include "standalone/runtime/Runtime.h"
#include "standalone/runtime/ThreadPool.h"

namespace standalone {

namespace {

/// Beyond the processors, since a read waits for its drive most of the time.
unsigned CountHelpers(std::size_t tasks) {
  constexpr unsigned kFewest = 4;
  const unsigned most = std::max(kFewest, std::thread::hardware_concurrency());
  const std::size_t useful = tasks == 0 ? 0 : tasks - 1;
  return static_cast<unsigned>(std::min<std::size_t>(most, useful));
}

}  // namespace

MediaProbe::MediaProbe(std::vector<std::string> paths, const MediaProber::Setup& setup,
                       MediaCache& cache, const ProbeProgress& progress)
    : setup(setup), cache(cache), progress(progress), entries(paths.size()) {
  for (std::size_t i = 0; i < paths.size(); ++i) entries[i].path = std::move(paths[i]);
}

void MediaProbe::LookAtFiles() {
  ForEach(entries.size(), [this](std::size_t i) { entries[i].look = LookAtFile(entries[i].path); }, {});
  for (std::size_t i = 0; i < entries.size(); ++i) {
    Entry& entry = entries[i];
    entry.file.reading.outcome = MediaOutcome::kAbsent;
    if (!entry.look) continue;
    if (auto known = cache.Find(entry.path, *entry.look)) {
      entry.file.reading = std::move(*known);
    } else {
      unread.push_back(i);
    }
  }
}

bool MediaProbe::HasFoundFiles() const noexcept {
  return std::ranges::any_of(entries, [](const Entry& entry) { return entry.look.has_value(); });
}

void MediaProbe::ReadFiles(const MediaReader& reader) {
  ForEach(
      unread.size(), [&](std::size_t i) { ReadFile(reader, entries[unread[i]]); },
      [this](std::size_t done) {
        if (progress.report) progress.report(done, unread.size());
      });
}

void MediaProbe::ReadFile(const MediaReader& reader, Entry& entry) {
  if (AskWhetherCancelled()) return;
  MediaReadRequest request;
  request.path = entry.path;
  request.timeLimit = setup.timeLimit;
  request.isCancelled = &MediaProbe::AnswerReader;
  request.context = this;
  entry.file.reading = reader(request);
  entry.isRead = true;
  ++readCount;
}

void MediaProbe::LookForGrowth() {
  // To the end, also after a cancel: what was read is remembered.
  RunLoop({entries.size(), [this](std::size_t i) { LookForGrowth(entries[i]); }, {}});
}

void MediaProbe::LookForGrowth(Entry& entry) {
  if (!entry.look || (isCancelled && !entry.isRead)) return;
  const auto look = LookAtFile(entry.path);
  entry.file.isGrowing = look && look->size != entry.look->size;
  if (entry.isRead && look == entry.look) cache.Store(entry.path, *look, entry.file.reading);
}

void MediaProbe::Fill(DocumentDraft& document) const {
  std::unordered_map<std::string_view, const MediaFile*> files;
  for (const Entry& entry : entries) files.emplace(entry.path, &entry.file);
  for (SequenceDraft& sequence : document.sequences) {
    for (TrackDraft& track : sequence.tracks) {
      for (TrackItemDraft& item : track.items) {
        if (!item.clip || !HasReadableFile(item.clip->media)) continue;
        const auto found = files.find(item.clip->media.lookUpPath);
        if (found != files.end()) FillClip(*item.clip, track.kind, *found->second);
      }
    }
  }
}

void MediaProbe::ForEach(std::size_t count, const std::function<void(std::size_t)>& body,
                         const std::function<void(std::size_t)>& report) {
  const auto goesOn = [&](std::size_t done) {
    if (report) report(done);
    return !AskWhetherCancelled();
  };
  RunLoop({count, body, goesOn});
}

void MediaProbe::RunLoop(ParallelLoop::Setup loop) {
  const unsigned helpers = CountHelpers(loop.count);
  std::shared_ptr<qelcore::threads::AsyncExecutor> executor = setup.executor;
  if (!executor && Runtime::Exists()) executor = Runtime::Current().GetCPUExecutor();
  if (!executor && helpers > 0) executor = std::make_shared<ThreadPool>(helpers);
  ParallelLoop::Run(std::move(loop), executor.get(), helpers);
}

bool MediaProbe::AskWhetherCancelled() {
  const bool mayAsk = std::this_thread::get_id() == callingThread && progress.isCancelled;
  if (mayAsk && progress.isCancelled()) isCancelled = true;
  return isCancelled;
}

bool MediaProbe::AnswerReader(void* probe) {
  return static_cast<MediaProbe*>(probe)->AskWhetherCancelled();
}

}  // namespace standalone

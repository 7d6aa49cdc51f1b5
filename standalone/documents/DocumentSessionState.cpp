#include "standalone/documents/DocumentSessionState.h"

#include <algorithm>
#include <utility>

#include "standalone/documents/SequenceMatching.h"
#include "standalone/runtime/LetDieOnPool.h"

namespace standalone {

namespace {

using std::filesystem::path;
using Sequence = qelcore::Ref<BE::ISequence>;

constexpr int kOneAtATime = 1;

/// What two names of one file have in common.
path Identify(const path& file) {
  std::error_code ignored;
  path whole = std::filesystem::weakly_canonical(file, ignored);
  return ignored ? std::filesystem::absolute(file, ignored) : whole;
}

/// The sequence that each timeline goes on from, if there is one; leaves in `old` those that none does.
std::vector<std::optional<Sequence>> TakeMatches(std::vector<Sequence>& old,
                                                 const PreparedDocument& prepared) {
  std::vector<qelcore::UTF8String> texts;
  for (const Sequence& sequence : old) texts.push_back(sequence->GetName());
  for (std::size_t i = 0; i < prepared.CountTimelines(); ++i) texts.push_back(prepared.GetName(i));
  std::vector<std::string_view> oldNames;
  for (const qelcore::UTF8String& text : texts) oldNames.push_back(text.View());
  const auto firstNew = oldNames.begin() + static_cast<std::ptrdiff_t>(old.size());
  const std::vector<std::string_view> newNames(firstNew, oldNames.end());
  oldNames.erase(firstNew, oldNames.end());

  std::vector<std::optional<Sequence>> matches;
  for (const auto& match : MatchSequences(oldNames, newNames)) {
    matches.push_back(match ? std::optional(std::exchange(old[*match], {})) : std::nullopt);
  }
  std::erase(old, Sequence());
  return matches;
}

}  // namespace

DocumentSession::State::State(ProjectModel& project, LoadingOptions options, DocumentObserver& observer)
    : project(project),
      observer(observer),
      options(std::make_shared<const LoadingOptions>(std::move(options))),
      executor(qelcore::threads::CreateQueueBasedSubExecutor(qelcore::threads::GetCPUBoundExecutor(),
                                                             kOneAtATime)) {}

OpenDocument* DocumentSession::State::Find(const path& file) {
  const auto found = std::ranges::find(documents, file, &OpenDocument::file);
  return found == documents.end() ? nullptr : &*found;
}

void DocumentSession::State::Open(const path& file) {
  const path whole = Identify(file);
  Read(whole);
  const OpenDocument* const document = Find(whole);
  if (document == nullptr) return;
  // Whoever opens a file wants to see it, also when its sequences were closed since.
  const bool isSeen =
      std::ranges::find(document->sequences, project.GetActiveSequence()) != document->sequences.end();
  if (isSeen) return;
  const Sequence first = document->sequences.front();
  project.ActivateSequence(first);
}

void DocumentSession::State::Reload(const path& file) {
  const path whole = Identify(file);
  if (Find(whole) != nullptr) Read(whole);
}

void DocumentSession::State::Read(const path& file) {
  std::erase(waiting, file);
  waiting.push_back(file);
  // What is read of that file now is out of date.
  if (current && current->file == file) current->isCancelled = true;
  if (!current) StartNext();
}

void DocumentSession::State::Show(const path& file, LoadedDocument& loaded) {
  if (loaded.prepared.CountTimelines() == 0) return Fail(file, {0, "The file holds no timeline."});
  OpenDocument* const document = Find(file);
  if (document == nullptr) return AddNewDocument(file, loaded);
  document->notes = std::move(loaded.notes);
  document->report = std::move(loaded.report);
  document->trouble.clear();
  document->troubleLine = 0;
  ReplaceContents(file, std::move(loaded.prepared));
}

void DocumentSession::State::AddNewDocument(const path& file, LoadedDocument& loaded) {
  OpenDocument document;
  document.file = file;
  document.sequences = project.AddDocument(std::move(loaded.prepared));
  document.notes = std::move(loaded.notes);
  document.report = std::move(loaded.report);
  const Sequence first = document.sequences.front();
  documents.push_back(std::move(document));
  TellOfChange(file);
  if (project.HasSequence(first)) project.ActivateSequence(first);
}

void DocumentSession::State::ReplaceContents(const path& file, PreparedDocument prepared) {
  std::vector<Sequence> gone = Find(file)->sequences;
  const auto matches = TakeMatches(gone, prepared);
  std::vector<Sequence> sequences = project.ReplaceDocument(matches, std::move(prepared));
  OpenDocument* const document = Find(file);
  if (document == nullptr) {
    // Who heard of the new contents has closed the file, with the sequences known by then.
    gone.insert(gone.end(), sequences.begin(), sequences.end());
    return RemoveSequences(std::move(gone));
  }
  document->sequences = std::move(sequences);
  RemoveSequences(std::move(gone));
  TellOfChange(file);
}

void DocumentSession::State::Fail(const path& file, const LoadingTrouble& trouble) {
  OpenDocument* const document = Find(file);
  if (document == nullptr) return observer.DocumentFailed(file, trouble.line, trouble.sentence);
  document->trouble = trouble.sentence;
  document->troubleLine = trouble.line;
  TellOfChange(file);
}

void DocumentSession::State::TellOfChange(const path& file) {
  const OpenDocument* const document = Find(file);
  if (document == nullptr) return;
  // A copy: who hears of it may close the file.
  const OpenDocument told = *document;
  observer.DocumentChanged(told);
}

void DocumentSession::State::Close(const path& file) {
  const path whole = Identify(file);
  std::erase(waiting, whole);
  if (current && current->file == whole) current->isCancelled = true;
  const auto document = std::ranges::find(documents, whole, &OpenDocument::file);
  if (document == documents.end()) return;
  std::vector<Sequence> sequences = std::move(document->sequences);
  documents.erase(document);
  RemoveSequences(std::move(sequences));
  observer.DocumentClosed(whole);
}

void DocumentSession::State::RemoveSequences(std::vector<Sequence> sequences) {
  // The active one last, so that none becomes active which is about to go.
  const Sequence active = project.GetActiveSequence();
  std::ranges::stable_partition(sequences, [&](const Sequence& other) { return other != active; });
  for (const Sequence& sequence : sequences) {
    // Who hears of one may remove others.
    if (project.HasSequence(sequence)) project.RemoveSequence(sequence);
  }
  LetDieOnPool(std::move(sequences));
}

void DocumentSession::State::SetTimeFormat(std::optional<TimeFormat> format) {
  if (format == options->timeFormat) return;
  auto changed = std::make_shared<LoadingOptions>(*options);
  changed->timeFormat = format;
  options = std::move(changed);
  std::vector<path> files;
  for (const OpenDocument& document : documents) files.push_back(document.file);
  // A file that is read for the first time is read in the old format yet.
  const bool isFirstRead = current && !current->isCancelled && Find(current->file) == nullptr;
  if (isFirstRead) files.push_back(current->file);
  for (const path& file : files) Read(file);
}

void DocumentSession::State::Cancel() {
  waiting.clear();
  if (current) current->isCancelled = true;
}

void DocumentSession::State::Abandon() {
  Cancel();
  current.reset();
}

}  // namespace standalone

#include "standalone/documents/DocumentSession.h"

#include <algorithm>
#include <utility>

#include "standalone/documents/DocumentSessionState.h"
#include "standalone/runtime/Runtime.h"

namespace standalone {

DocumentObserver::DocumentObserver() = default;
DocumentObserver::~DocumentObserver() = default;

DocumentSession::DocumentSession(ProjectModel& project, LoadingOptions options,
                                 DocumentObserver& observer)
    : state(std::make_shared<State>(project, std::move(options), observer)) {
  AssertMainThread("DocumentSession::DocumentSession");
}

DocumentSession::~DocumentSession() {
  state->Abandon();
}

void DocumentSession::Open(const std::filesystem::path& file) {
  AssertMainThread("DocumentSession::Open");
  state->Open(file);
}

void DocumentSession::Reload(const std::filesystem::path& file) {
  AssertMainThread("DocumentSession::Reload");
  state->Reload(file);
}

void DocumentSession::Close(const std::filesystem::path& file) {
  AssertMainThread("DocumentSession::Close");
  state->Close(file);
}

void DocumentSession::SetTimeFormat(std::optional<TimeFormat> format) {
  AssertMainThread("DocumentSession::SetTimeFormat");
  state->SetTimeFormat(format);
}

void DocumentSession::Cancel() {
  AssertMainThread("DocumentSession::Cancel");
  state->Cancel();
}

bool DocumentSession::IsBusy() const {
  return state->IsBusy();
}

const std::vector<OpenDocument>& DocumentSession::GetDocuments() const {
  return state->GetDocuments();
}

const OpenDocument* DocumentSession::FindDocument(const qelcore::Ref<BE::ISequence>& sequence) const {
  const auto holds = [&](const OpenDocument& document) {
    return std::ranges::find(document.sequences, sequence) != document.sequences.end();
  };
  const auto& documents = state->GetDocuments();
  const auto found = std::ranges::find_if(documents, holds);
  return found == documents.end() ? nullptr : &*found;
}

}  // namespace standalone

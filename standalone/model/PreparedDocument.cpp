#include "standalone/model/PreparedDocument.h"

#include <algorithm>
#include <utility>

#include "standalone/model/ProjectModel.h"
#include "standalone/model/SequenceContent.h"
#include "standalone/model/TextPool.h"

namespace standalone {

PreparedDocument::PreparedDocument(const DocumentDraft& draft)
    : timelineCount(std::min(draft.timelineCount, draft.sequences.size())) {
  const auto project = ProjectModel::Current().GetProjectNode();
  TextPool texts;
  contents.reserve(draft.sequences.size());
  for (const SequenceDraft& sequence : draft.sequences) {
    contents.push_back(BuildContent(sequence, project, texts));
  }
}

PreparedDocument::PreparedDocument(DocumentDraft&& draft)
    : timelineCount(std::min(draft.timelineCount, draft.sequences.size())) {
  const auto project = ProjectModel::Current().GetProjectNode();
  TextPool texts;
  contents.reserve(draft.sequences.size());
  for (SequenceDraft& sequence : draft.sequences) {
    // A draft can be larger than what is made of it: each goes as soon as it was read.
    const SequenceDraft read = std::move(sequence);
    contents.push_back(BuildContent(read, project, texts));
  }
}

PreparedDocument::PreparedDocument(PreparedDocument&&) noexcept = default;
PreparedDocument& PreparedDocument::operator=(PreparedDocument&&) noexcept = default;
PreparedDocument::~PreparedDocument() = default;

qelcore::UTF8String PreparedDocument::GetName(std::size_t timeline) const {
  return contents.at(timeline)->name;
}

}  // namespace standalone

#pragma once

#include <cstddef>
#include <vector>

#include "host/qelcore/Reference.h"
#include "host/qelcore/UTF8String.h"
#include "standalone/model/SequenceDraft.h"
#include "standalone/runtime/StandaloneAPI.h"

namespace standalone {

class SequenceContent;

/// The sequences of a document, built and ready to be published: building takes time for every clip,
/// publishing does not. Built by one thread, handed to the main thread. Needs the project.
class STANDALONE_API PreparedDocument {
 public:
  /// Reads the draft, or uses it up on the way, which takes less memory. [any-thread]
  explicit PreparedDocument(const DocumentDraft& draft);
  explicit PreparedDocument(DocumentDraft&& draft);
  PreparedDocument(PreparedDocument&&) noexcept;
  PreparedDocument& operator=(PreparedDocument&&) noexcept;
  ~PreparedDocument();

  /// How many timelines there are: the first ones of the contents. The others are nested in them.
  std::size_t CountTimelines() const noexcept { return timelineCount; }
  const std::vector<qelcore::Ref<SequenceContent>>& GetContents() const noexcept { return contents; }
  std::vector<qelcore::Ref<SequenceContent>>& GetContents() noexcept { return contents; }
  /// The name of a timeline.
  qelcore::UTF8String GetName(std::size_t timeline) const;

 private:
  std::vector<qelcore::Ref<SequenceContent>> contents;
  std::size_t timelineCount;
};

}  // namespace standalone

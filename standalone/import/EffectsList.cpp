#include "standalone/import/EffectsList.h"

#include <algorithm>

#include "host/ML/TextFilter.h"
#include "host/qelcore/Strings.h"
#include "standalone/import/FileBuffer.h"
#include "standalone/import/TimelineReader.h"
#include "standalone/model/UnicodeText.h"

namespace standalone {
namespace {

std::string_view Trim(std::string_view line) {
  constexpr std::string_view kBlanks = " \t\r";
  const std::size_t first = line.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return line.substr(first, line.find_last_not_of(kBlanks) - first + 1);
}

bool IsUTF8(std::string_view text) {
  return qelcore::string::UTF16to8(UTF8To16(text)).View() == text;
}

bool IsJudgedByList(const ComponentDraft& component) {
  return !component.isIntrinsic && !component.isMissingStated &&
         component.matchName != ML::kMatchnameText;
}

void MarkMissing(ClipDraft& clip, const EffectsList& present) {
  for (ComponentDraft& component : clip.components) {
    if (IsJudgedByList(component)) component.isMissing = !present.Names(component.displayName);
  }
}

}  // namespace

EffectsList ParseEffectsList(std::string_view text) {
  EffectsList list;
  text = SkipByteOrderMark(text);
  for (std::size_t line = 1; !text.empty(); ++line) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view name = Trim(text.substr(0, end));
    if (!IsUTF8(name)) throw ImportError(line, "The list is not valid UTF-8; save it as UTF-8.");
    if (!name.empty()) list.Add(name);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return list;
}

EffectsList ReadEffectsList(const std::filesystem::path& file) {
  return ParseEffectsList(ReadAnyFile(file, "The list"));
}

void MarkMissingEffects(DocumentDraft& document, const EffectsList& present) {
  for (SequenceDraft& sequence : document.sequences) {
    for (TrackDraft& track : sequence.tracks) {
      for (TrackItemDraft& item : track.items) {
        if (item.clip) MarkMissing(*item.clip, present);
      }
    }
  }
}

}  // namespace standalone

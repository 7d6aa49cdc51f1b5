#include "standalone/import/OtioReader.h"

#include <algorithm>
#include <utility>

#include "standalone/import/FileBuffer.h"
#include "standalone/import/OtioImport.h"
#include "standalone/import/OtioSequences.h"

namespace standalone {
namespace {

/// Parsing takes about as long as building.
constexpr double kParsedFraction = 0.5;

/// What a file has at its top, collections taken apart.
struct TopObjects {
  std::vector<JsonValue> timelines;
  std::vector<JsonValue> compositions;
  std::vector<JsonValue> clips;
  std::vector<JsonValue> others;
};

void Collect(JsonValue object, TopObjects& top, OtioImport& import) {
  switch (import.Recognise(object, OtioPlace()).kind) {
    case OtioKind::kTimeline:
      top.timelines.push_back(object);
      break;
    case OtioKind::kStack:
    case OtioKind::kTrack:
      top.compositions.push_back(object);
      break;
    case OtioKind::kClip:
      top.clips.push_back(object);
      break;
    default:
      top.others.push_back(object);
  }
}

/// Collections may hold collections, in any depth: they are taken apart in the order of the file
/// without a call for each level.
TopObjects FindTopObjects(JsonValue root, OtioImport& import) {
  TopObjects top;
  std::vector<JsonValue> waiting = {root};
  while (!waiting.empty()) {
    const JsonValue object = waiting.back();
    waiting.pop_back();
    if (GetOtioSchema(object).kind != OtioKind::kCollection) {
      Collect(object, top, import);
      continue;
    }
    import.Recognise(object, OtioPlace());
    const auto first = static_cast<std::ptrdiff_t>(waiting.size());
    for (const JsonValue child : object[JsonKey::kChildren]) waiting.push_back(child);
    std::reverse(waiting.begin() + first, waiting.end());
  }
  return top;
}

std::string_view GetLooseWord(JsonValue object) {
  switch (GetOtioSchema(object).kind) {
    case OtioKind::kStack:
      return "stack";
    case OtioKind::kTrack:
      return "track";
    case OtioKind::kClip:
      return "clip";
    default:
      return "object";
  }
}

void NoteLoose(const std::vector<JsonValue>& objects, OtioImport& import) {
  for (const JsonValue object : objects) {
    const std::string_view name = object[JsonKey::kName].GetText();
    import.AddNote(OtioPlace{{}, {}, GetLooseWord(object), name}, object,
                   "It stands beside the timelines and is not shown.");
  }
}

/// Timelines if there are any, else what can stand for one.
std::vector<JsonValue> ChooseSequences(TopObjects top, OtioImport& import) {
  if (!top.timelines.empty()) {
    NoteLoose(top.compositions, import);
    NoteLoose(top.clips, import);
    NoteLoose(top.others, import);
    return std::move(top.timelines);
  }
  if (!top.compositions.empty()) {
    NoteLoose(top.clips, import);
    NoteLoose(top.others, import);
    return std::move(top.compositions);
  }
  if (!top.clips.empty()) NoteLoose(top.others, import);
  return std::move(top.clips);
}

/// Only OpenTimelineIO names the schema of every object.
void RequireSchema(JsonValue root) {
  if (!root[JsonKey::kSchema].GetText().empty()) return;
  throw ImportError(root.GetLine(),
                    "This is JSON but no OpenTimelineIO: its top object has no \"OTIO_SCHEMA\".");
}

std::string Times(std::size_t count) {
  return count == 1 ? "" : " (" + std::to_string(count) + " times in the file)";
}

/// Damage of the text itself, which belongs to no item.
void NoteRepairs(const JsonRepairs& repairs, OtioImport& import) {
  if (repairs.repeatedMembers > 0) {
    import.AddNote(repairs.repeatedMemberLine, "\"" + std::string(repairs.repeatedMemberName) +
                                                   "\" stands twice in one object; the first is used" +
                                                   Times(repairs.repeatedMembers) + ".");
  }
  if (repairs.brokenCharacters > 0) {
    import.AddNote(repairs.brokenCharacterLine,
                   "A text holds half a character; \uFFFD stands in its place" +
                       Times(repairs.brokenCharacters) + ".");
  }
}

}  // namespace

std::string_view OtioReader::GetFormatName() const {
  return "OpenTimelineIO";
}

bool OtioReader::Recognises(std::string_view beginning, const std::filesystem::path&) const {
  beginning = SkipByteOrderMark(beginning);
  const std::size_t first = beginning.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos) return false;
  // In UTF-16 a zero byte stands behind the bracket.
  const bool isWide = first + 1 < beginning.size() && beginning[first + 1] == '\0';
  return !isWide && (beginning[first] == '{' || beginning[first] == '[');
}

ImportResult OtioReader::Read(TextSource& text, const TimelineSource& source,
                              const ImportProgress& progress) const {
  const JsonTree tree(text, progress, kParsedFraction);
  RequireSchema(tree.GetRoot());
  OtioImport import(source, progress);
  NoteRepairs(tree.GetRepairs(), import);
  import.SetScale(kParsedFraction, tree.GetNodeCount());
  const std::vector<JsonValue> objects =
      ChooseSequences(FindTopObjects(tree.GetRoot(), import), import);
  if (objects.empty()) {
    throw ImportError(tree.GetRoot().GetLine(),
                      "There is nothing to show: no timeline, track, stack or clip.");
  }
  OtioSequenceBuilder builder(import, objects.size());
  ImportResult result;
  for (const JsonValue object : objects) result.document.sequences.push_back(builder.Build(object));
  result.document.timelineCount = objects.size();
  for (SequenceDraft& nested : builder.TakeNested()) {
    result.document.sequences.push_back(std::move(nested));
  }
  import.GetReport().AddUnreadMetadata(tree, objects.size() > 1);
  result.notes = import.TakeNotes();
  result.report = import.GetReport().TakeLines();
  import.Finish();
  return result;
}

}  // namespace standalone

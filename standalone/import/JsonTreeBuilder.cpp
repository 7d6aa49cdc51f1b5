#include "standalone/import/JsonTreeBuilder.h"

#include <rapidjson/reader.h>

#include <algorithm>
#include <string>
#include <utility>

#include "standalone/import/FileBuffer.h"

namespace standalone {

struct JsonTreeBuilder::Stream {
  using Ch = char;

  explicit Stream(char* text) : source(text), target(text), head(text) {}

  char Peek() const { return *source; }
  char Take() {
    if (*source == '\n') ++line;
    return *source++;
  }
  std::size_t Tell() const { return static_cast<std::size_t>(source - head); }
  void Put(char c) { *target++ = c; }
  void Flush() {}
  char* PutBegin() { return target = source; }
  std::size_t PutEnd(const char* begin) const { return static_cast<std::size_t>(target - begin); }

  char* source;
  char* target;
  char* head;
  std::uint32_t line = 1;
};

}  // namespace standalone

/// The parser works on a copy of the stream and writes it back: it finds the beginning of a number's
/// digits by the original, and the compiler keeps the copy in registers.
template <>
struct rapidjson::StreamTraits<standalone::JsonTreeBuilder::Stream> {
  enum { copyOptimization = 1 };
};

namespace standalone {
namespace {

constexpr unsigned kParseFlags =
    rapidjson::kParseInsituFlag | rapidjson::kParseIterativeFlag | rapidjson::kParseNanAndInfFlag |
    rapidjson::kParseValidateEncodingFlag | rapidjson::kParseNumbersAsStringsFlag |
    rapidjson::kParseFullPrecisionFlag;

/// One megabyte: often enough for a progress bar, rare enough to cost nothing.
constexpr std::size_t kReportStep = std::size_t{1} << 20;

}  // namespace

JsonTreeBuilder::JsonTreeBuilder(JsonTree& tree, const ImportProgress& progress, double lastFraction)
    : tree(tree), progress(progress), lastFraction(lastFraction) {}

void JsonTreeBuilder::Parse() {
  const std::size_t markLength = tree.buffer.size() - SkipByteOrderMark(tree.buffer).size();
  char* text = tree.buffer.data() + markLength;
  Stream source(text);
  stream = &source;
  rapidjson::Reader reader;
  const rapidjson::ParseResult result = reader.Parse<kParseFlags>(source, *this);
  if (isCancelled) throw ImportError(0, "Reading was cancelled.");
  if (result.IsError()) ThrowParseError(result.Code(), markLength + result.Offset());
  // The parser takes a zero byte for the end. Some systems pad files with them; text behind is damage.
  constexpr std::string_view kPadding("\0 \t\r\n", 5);
  const std::size_t end = markLength + source.Tell();
  if (tree.buffer.find_first_not_of(kPadding, end) == std::string::npos) return;
  ThrowParseError(rapidjson::kParseErrorDocumentRootNotSingular, end);
}

void JsonTreeBuilder::ThrowParseError(int code, std::size_t offset) const {
  const std::size_t line = stream->line;
  if (offset >= tree.buffer.size()) {
    throw ImportError(line,
                      "The file ends in the middle; it is not complete: export or copy it again.");
  }
  switch (code) {
    case rapidjson::kParseErrorStringInvalidEncoding:
    case rapidjson::kParseErrorStringUnicodeSurrogateInvalid:
      throw ImportError(line, "The text is not valid UTF-8; save the file as UTF-8.");
    case rapidjson::kParseErrorNumberTooBig:
      throw ImportError(line, "A number is too big to be read; correct it.");
    case rapidjson::kParseErrorDocumentRootNotSingular:
      throw ImportError(line, "There is more text behind the end of the timeline; remove it.");
    default:
      throw ImportError(line, "This is not valid JSON; export the timeline again.");
  }
}

bool JsonTreeBuilder::GoesOn() {
  const std::size_t position = stream->Tell();
  if (position < nextReport) return true;
  nextReport = position + kReportStep;
  if (progress.report) {
    progress.report(lastFraction * static_cast<double>(position) /
                    static_cast<double>(tree.buffer.size()));
  }
  isCancelled = progress.isCancelled && progress.isCancelled();
  return !isCancelled;
}

/// Whether the value that comes now, no container, is kept; uses up the pending member name.
bool JsonTreeBuilder::IsWanted(bool hasContent) {
  if (droppedDepth != 0) return false;
  if (!isMemberDropped) return true;
  isMemberDropped = false;
  EndUnread(hasContent, false);
  return false;
}

void JsonTreeBuilder::BeginUnread(std::string_view name) {
  const JsonContext context = open.back().context;
  if (context == JsonContext::kMetadata && name != "OTIO_SCHEMA") unreadName = name;
  if (context == JsonContext::kWriter && writer.count == 0) unreadName = writer.name;
}

void JsonTreeBuilder::EndUnread(bool hasContent, bool isObject) {
  const std::string_view name = std::exchange(unreadName, {});
  if (name.empty() || !hasContent) return;
  if (open.back().context == JsonContext::kWriter) {
    writer.count = 1;
    CountUnread(writer);
    return;
  }
  // Many effects keep their parameters there, one by one.
  const bool isEffect =
      open.size() >= 3 && tree.nodes[open[open.size() - 3].node].key == JsonKey::kEffects;
  if (isEffect && !isObject) return;
  CountUnread(UnreadMetadata{name, open[open.size() - 2].node, 1});
}

void JsonTreeBuilder::CountUnread(const UnreadMetadata& metadata) {
  auto& known = tree.unreadMetadata;
  const auto found = std::find_if(known.begin(), known.end(), [&](const UnreadMetadata& entry) {
    return entry.name == metadata.name;
  });
  // More lines than that nobody reads.
  constexpr std::size_t kMostNames = 20;
  UnreadMetadata& further = tree.furtherUnreadMetadata;
  if (found != known.end()) {
    ++found->count;
  } else if (known.size() < kMostNames) {
    known.push_back(metadata);
  } else if (further.count++ == 0) {
    further.firstOwner = metadata.firstOwner;
  }
}

void JsonTreeBuilder::AddNode(JsonValue::Type type, const char* text, std::size_t length) {
  const auto index = static_cast<std::uint32_t>(tree.nodes.size());
  // A free name's node ends where its value ends; Close() sets that for containers.
  if (key == JsonKey::kNamed) tree.nodes.back().end = index + 1;
  JsonTree::Node node;
  node.text = text;
  node.length = static_cast<std::uint32_t>(length);
  node.end = index + 1;
  node.line = stream->line;
  node.key = key == JsonKey::kNamed ? JsonKey::kNone : key;
  node.type = type;
  tree.nodes.push_back(node);
  key = JsonKey::kNone;
}

bool JsonTreeBuilder::Null() {
  if (IsWanted(false)) AddNode(JsonValue::Type::kNull, nullptr, 0);
  return true;
}

bool JsonTreeBuilder::Bool(bool value) {
  if (IsWanted(true)) AddNode(JsonValue::Type::kBool, nullptr, value ? 1 : 0);
  return true;
}

bool JsonTreeBuilder::RawNumber(const char* text, unsigned length, bool) {
  if (IsWanted(true)) AddNode(JsonValue::Type::kNumber, text, length);
  return true;
}

bool JsonTreeBuilder::String(const char* text, unsigned length, bool) {
  if (IsWanted(length != 0)) AddNode(JsonValue::Type::kString, text, length);
  return true;
}

bool JsonTreeBuilder::Key(const char* text, unsigned length, bool) {
  if (droppedDepth != 0) return true;
  const std::string_view name(text, length);
  const JsonContext context = open.back().context;
  key = FindJsonKey(name, context);
  isMemberDropped = key == JsonKey::kNone;
  if (key == JsonKey::kNamed) {
    AddName(text, length);
  } else if (isMemberDropped) {
    BeginUnread(name);
  } else {
    NoteRepeat(name);
    if (context == JsonContext::kMetadata) writer = {name, open[open.size() - 2].node, 0, true};
    if (context == JsonContext::kParameters) writer = {};
  }
  return true;
}

/// Fonts go by several names, each of which counts.
void JsonTreeBuilder::NoteRepeat(std::string_view name) {
  const auto position = static_cast<std::size_t>(key);
  auto& keys = open.back().keys;
  if (keys.test(position) && key != JsonKey::kFont && tree.repairs.repeatedMembers++ == 0) {
    tree.repairs.repeatedMemberLine = stream->line;
    tree.repairs.repeatedMemberName = name;
  }
  keys.set(position);
}

void JsonTreeBuilder::AddName(const char* text, unsigned length) {
  JsonTree::Node node;
  node.text = text;
  node.length = length;
  node.line = stream->line;
  node.key = JsonKey::kNamed;
  node.type = JsonValue::Type::kString;
  tree.nodes.push_back(node);
}

bool JsonTreeBuilder::Open(JsonValue::Type type) {
  if (!GoesOn()) return false;
  if (droppedDepth != 0 || isMemberDropped) {
    isMemberDropped = false;
    ++droppedDepth;
    return true;
  }
  JsonContext context = JsonContext::kObject;
  if (!open.empty()) {
    const bool isElement = tree.nodes[open.back().node].type == JsonValue::Type::kArray;
    context = isElement ? open.back().context : ContextOfMember(key, open.back().context);
  }
  open.push_back({static_cast<std::uint32_t>(tree.nodes.size()), context, {}});
  AddNode(type, nullptr, 0);
  return true;
}

bool JsonTreeBuilder::Close(unsigned count, bool isObject) {
  if (droppedDepth != 0) {
    if (--droppedDepth == 0) EndUnread(count != 0, isObject);
    return true;
  }
  const std::uint32_t node = open.back().node;
  const auto end = static_cast<std::uint32_t>(tree.nodes.size());
  tree.nodes[node].end = end;
  if (node > 0 && tree.nodes[node - 1].key == JsonKey::kNamed) tree.nodes[node - 1].end = end;
  open.pop_back();
  return true;
}

bool JsonTreeBuilder::StartObject() {
  return Open(JsonValue::Type::kObject);
}

bool JsonTreeBuilder::EndObject(unsigned memberCount) {
  return Close(memberCount, true);
}

bool JsonTreeBuilder::StartArray() {
  return Open(JsonValue::Type::kArray);
}

bool JsonTreeBuilder::EndArray(unsigned elementCount) {
  return Close(elementCount, false);
}

}  // namespace standalone

#include "standalone/import/JsonTreeBuilder.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <utility>

#include "standalone/import/FileBuffer.h"
#include "standalone/import/JsonStream.h"
#include "standalone/import/ShortText.h"
#include "standalone/runtime/LargePages.h"

namespace standalone {
namespace {

constexpr unsigned kParseFlags =
    rapidjson::kParseInsituFlag | rapidjson::kParseIterativeFlag | rapidjson::kParseNanAndInfFlag |
    rapidjson::kParseValidateEncodingFlag | rapidjson::kParseNumbersAsStringsFlag |
    rapidjson::kParseFullPrecisionFlag;

/// One megabyte: often enough for a progress bar, rare enough to cost nothing.
constexpr std::size_t kReportStep = std::size_t{1} << 20;

}  // namespace

JsonTreeBuilder::JsonTreeBuilder(JsonTree& tree, JsonWindow& window, std::size_t expectedLength,
                                 const ImportProgress& progress, double lastFraction)
    : tree(tree),
      window(window),
      expectedLength(expectedLength),
      progress(progress),
      lastFraction(lastFraction) {}

void JsonTreeBuilder::Parse() {
  JsonStream source(window);
  const std::string_view beginning = window.GetRest(source.source);
  source.source += beginning.size() - SkipByteOrderMark(beginning).size();
  stream = &source;
  rapidjson::GenericReader<JsonEncoding, JsonEncoding> reader;
  const rapidjson::ParseResult result = reader.Parse<kParseFlags>(source, *this);
  if (isCancelled) throw ImportError(0, "Reading was cancelled.");
  if (result.IsError()) ThrowParseError(result.Code(), result.Offset());
  const std::size_t end = source.Tell();
  if (!IsPaddingToEnd(source)) ThrowParseError(rapidjson::kParseErrorDocumentRootNotSingular, end);
}

/// The parser takes a zero byte for the end. Some systems pad files with them; text behind is damage.
bool JsonTreeBuilder::IsPaddingToEnd(const JsonStream& source) {
  constexpr std::string_view kPadding("\0 \t\r\n", 5);
  std::string_view rest = window.GetRest(source.source);
  while (rest.find_first_not_of(kPadding) == std::string_view::npos) {
    if (window.IsAtEnd()) return true;
    window.Slide(rest.data() + rest.size(), source.line);
    rest = window.GetRest(window.GetBegin());
  }
  return false;
}

void JsonTreeBuilder::ThrowParseError(int code, std::size_t offset) const {
  const std::size_t line = stream->line;
  if (window.IsAtEnd() && offset >= window.GetLengthSoFar()) {
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
                    static_cast<double>(std::max(position, expectedLength)));
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
  if (context == JsonContext::kWriter && writer.count == 0) unreadName = writerName;
}

void JsonTreeBuilder::EndUnread(bool hasContent, bool isObject) {
  if (unreadName.empty()) return;
  const std::string name = std::exchange(unreadName, {});
  if (!hasContent) return;
  if (open.back().context == JsonContext::kWriter) {
    writer.count = 1;
    writer.name = writerName;
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
    known.back().name = KeepName(metadata.name);
  } else if (further.count++ == 0) {
    further.firstOwner = metadata.firstOwner;
  }
}

/// As many as the text will give if it goes on as it began; so a large one is not copied as it grows.
std::size_t JsonTreeBuilder::ExpectInAll(std::size_t countSoFar) const {
  constexpr double kMargin = 1.1;
  const double whole = static_cast<double>(expectedLength) / static_cast<double>(stream->Tell() + 1);
  const auto expected = static_cast<std::size_t>(static_cast<double>(countSoFar) * whole * kMargin);
  return std::max(countSoFar * 5 / 4, expected);
}

void JsonTreeBuilder::MakeRoom() {
  constexpr std::size_t kSample = std::size_t{1} << 16;
  const std::size_t count = tree.nodes.size();
  // Bytes of the text for each node, in a dense file.
  constexpr std::size_t kTextOfNode = 32;
  const std::size_t first = std::min(kSample, expectedLength / kTextOfNode + 1);
  tree.nodes.reserve(count < kSample ? std::max(2 * count, first) : ExpectInAll(count));
  PreferLargePages(tree.nodes.data() + count, (tree.nodes.capacity() - count) * sizeof(JsonNode));
}

std::uint32_t JsonTreeBuilder::Keep(std::string_view text) {
  constexpr std::size_t kSample = std::size_t{1} << 19;
  std::string& texts = tree.texts;
  const std::size_t place = texts.size();
  if (texts.capacity() - place < text.size() && place >= kSample) {
    texts.reserve(ExpectInAll(place + text.size()));
  }
  texts.append(text);
  return static_cast<std::uint32_t>(place);
}

std::uint32_t JsonTreeBuilder::KeepValue(std::string_view text) {
  KeptText& last = lastTexts[static_cast<std::size_t>(key)];
  const std::string_view lastText(tree.texts.data() + last.place, last.size);
  if (!ShortText::IsSame(lastText, text)) last = {Keep(text), static_cast<std::uint32_t>(text.size())};
  return last.place;
}

std::string_view JsonTreeBuilder::KeepName(std::string_view name) {
  return tree.names.emplace_back(name);
}

void JsonTreeBuilder::AddNode(JsonValue::Type type, const char* text, std::size_t extent) {
  if (tree.nodes.size() == tree.nodes.capacity()) MakeRoom();
  JsonNode node;
  if (text != nullptr) node.text = KeepValue({text, extent});
  node.extent = static_cast<std::uint32_t>(extent);
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
    AddNode(JsonValue::Type::kString, text, length);
    key = tree.nodes.back().key = JsonKey::kNamed;
  } else if (isMemberDropped) {
    BeginUnread(name);
  } else {
    if (!open.back().AddKey(key)) NoteRepeat(name);
    if (context == JsonContext::kMetadata) {
      writer = {{}, open[open.size() - 2].node, 0, true};
      writerName = name;
    }
    if (context == JsonContext::kParameters) {
      writer = {};
      writerName.clear();
    }
  }
  return true;
}

void JsonTreeBuilder::NoteRepeat(std::string_view name) {
  // Fonts go by several names, each of which counts.
  if (key == JsonKey::kFont || tree.repairs.repeatedMembers++ != 0) return;
  tree.repairs.repeatedMemberLine = stream->line;
  tree.repairs.repeatedMemberName = KeepName(name);
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
  JsonNode& node = tree.nodes[open.back().node];
  node.extent = static_cast<std::uint32_t>(tree.nodes.size());
  node.text = isObject ? open.back().keyBits : count;
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

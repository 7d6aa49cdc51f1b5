#include "generator/JsonText.h"

namespace generator {
namespace {

constexpr std::size_t kBlockSize = std::size_t{1} << 16U;
constexpr std::size_t kIndentation = 4;

}  // namespace

JsonText::JsonText(std::ostream& stream, Layout layout) : stream(stream), layout(layout) {
  block.reserve(2 * kBlockSize);
}

void JsonText::OpenObject() {
  BeginLine();
  Open('{');
}

void JsonText::OpenObject(std::string_view key) {
  BeginMember(key);
  Open('{');
}

void JsonText::OpenList(std::string_view key) {
  BeginMember(key);
  Open('[');
}

void JsonText::AddText(std::string_view key, std::string_view value) {
  BeginMember(key);
  AppendQuoted(value);
}

void JsonText::AddLiteral(std::string_view key, std::string_view literal) {
  BeginMember(key);
  block += literal;
}

void JsonText::AddNumber(std::string_view key, std::int64_t number) {
  BeginMember(key);
  block += std::to_string(number);
}

void JsonText::AddElement(std::string_view text) {
  BeginLine();
  AppendQuoted(text);
}

void JsonText::Finish() {
  block += '\n';
  stream.write(block.data(), static_cast<std::streamsize>(block.size()));
  block.clear();
}

void JsonText::BeginLine() {
  if (!isEmpty) block += ',';
  if (block.size() > kBlockSize) {
    stream.write(block.data(), static_cast<std::streamsize>(block.size()));
    block.clear();
  }
  isEmpty = false;
  if (depth > 0) BreakLine();
}

void JsonText::BreakLine() {
  if (layout == Layout::kOneLine) return;
  block += '\n';
  block.append(kIndentation * depth, ' ');
}

void JsonText::BeginMember(std::string_view key) {
  BeginLine();
  AppendQuoted(key);
  block += ": ";
}

void JsonText::Open(char bracket) {
  block += bracket;
  ++depth;
  isEmpty = true;
}

void JsonText::Close(char bracket) {
  --depth;
  if (!isEmpty) BreakLine();
  block += bracket;
  isEmpty = false;
}

void JsonText::AppendQuoted(std::string_view text) {
  block += '"';
  for (std::size_t end = text.find_first_of("\"\\\n"); end != std::string_view::npos;
       end = text.find_first_of("\"\\\n")) {
    block.append(text.substr(0, end)).append(1, '\\').append(1, text[end] == '\n' ? 'n' : text[end]);
    text.remove_prefix(end + 1);
  }
  block.append(text).append(1, '"');
}

}  // namespace generator

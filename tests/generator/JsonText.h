#pragma once

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>

namespace generator {

/// Writes JSON with a line for each member, as editing programs do, or all of it on one line. Texts go
/// to the stream by the block, so that a long file takes no more memory than a short one.
class JsonText {
 public:
  enum class Layout { kMemberALine, kOneLine };
  JsonText(std::ostream& stream, Layout layout);

  /// The next element of a list, or the whole text.
  void OpenObject();
  void OpenObject(std::string_view key);
  void CloseObject() { Close('}'); }
  void OpenList(std::string_view key);
  void CloseList() { Close(']'); }

  void AddText(std::string_view key, std::string_view value);
  /// A number, true, false or null as it is.
  void AddLiteral(std::string_view key, std::string_view literal);
  void AddNumber(std::string_view key, std::int64_t number);
  void AddElement(std::string_view text);
  /// To be called once, at the end.
  void Finish();

 private:
  void BeginLine();
  void BreakLine();
  void BeginMember(std::string_view key);
  void Open(char bracket);
  void Close(char bracket);
  void AppendQuoted(std::string_view text);

  std::ostream& stream;
  const Layout layout;
  std::string block;
  std::size_t depth = 0;
  bool isEmpty = true;
};

}  // namespace generator

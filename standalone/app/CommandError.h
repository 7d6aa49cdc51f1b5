#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace standalone {

/// Why a command can't go on: the end of one line on standard error, and exit code 2.
class CommandError {
 public:
  /// `place` is the file concerned (empty: none), `line` its line (0: none).
  CommandError(std::string place, std::size_t line, std::string sentence);
  explicit CommandError(std::string sentence) : CommandError({}, 0, std::move(sentence)) {}

  /// "sequence-index: FILE:LINE: sentence", without line break.
  std::string GetLine() const;

 private:
  std::string place;
  std::size_t line;
  std::string sentence;
};

/// "sequence-index: FILE:LINE: sentence" as one line: the parts that are there, joined by colons. What
/// would drive a terminal or move the text beside it (DisplayText.h), which names in files may hold,
/// becomes a blank.
std::string MakeReportLine(std::string_view place, std::size_t line, std::string_view sentence);

}  // namespace standalone

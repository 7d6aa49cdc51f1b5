#include "standalone/app/CommandError.h"

#include <utility>

#include "standalone/app/DisplayText.h"

namespace standalone {

CommandError::CommandError(std::string place, std::size_t line, std::string sentence)
    : place(std::move(place)), line(line), sentence(std::move(sentence)) {}

std::string CommandError::GetLine() const {
  return MakeReportLine(place, line, sentence);
}

std::string MakeReportLine(std::string_view place, std::size_t line, std::string_view sentence) {
  std::string text = "sequence-index: ";
  if (!place.empty()) {
    text.append(place);
    if (line != 0) text.append(":").append(std::to_string(line));
    text.append(": ");
  }
  text.append(sentence);
  return BlankControls(text);
}

}  // namespace standalone

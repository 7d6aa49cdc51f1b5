#include "standalone/app/Terminal.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <charconv>
#include <cstdlib>
#include <system_error>

namespace standalone {

namespace {

constexpr std::size_t kUsualWidth = 80;

std::string_view GetText(const char* variable) {
  return variable == nullptr ? std::string_view() : std::string_view(variable);
}

std::size_t GetTerminalWidth() {
  winsize size{};
  if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0) return size.ws_col;
  return ReadWidth(GetText(std::getenv("COLUMNS"))).value_or(kUsualWidth);
}

}  // namespace

OutputTerminal GetOutputTerminal() {
  if (isatty(STDOUT_FILENO) != 1) return {};
  return {GetTerminalWidth(),
          ChooseColorDepth(std::getenv("NO_COLOR"), std::getenv("TERM"), std::getenv("COLORTERM"))};
}

ColorDepth ChooseColorDepth(const char* noColor, const char* term, const char* colorTerm) {
  if (!GetText(noColor).empty() || GetText(term) == "dumb") return ColorDepth::kNone;
  const std::string_view depth = GetText(colorTerm);
  return depth == "truecolor" || depth == "24bit" ? ColorDepth::kTrue : ColorDepth::kPalette;
}

std::optional<std::size_t> ReadWidth(std::string_view text) {
  std::size_t width = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, failure] = std::from_chars(text.data(), end, width);
  if (failure != std::errc() || stop != end || width == 0) return std::nullopt;
  return width;
}

}  // namespace standalone
